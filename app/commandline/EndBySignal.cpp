#include "app/commandline/EndBySignal.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace quillon_ed {

namespace {

/// A handler may do next to nothing; writing to a pipe, which the loop listens to, it may.
std::array<int, 2> ends{-1, -1};

void onSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = write(ends[1], &byte, 1);
}

} // namespace

EndBySignal::EndBySignal()
{
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    QObject::connect(notifier, &QSocketNotifier::activated, this, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    std::signal(SIGINT, onSignal);
    std::signal(SIGTERM, onSignal);
}

EndBySignal::~EndBySignal()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    for (int& end : ends)
        if (end >= 0) close(std::exchange(end, -1));
}

} // namespace quillon_ed
