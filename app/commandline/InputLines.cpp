#include "app/commandline/InputLines.h"

#include <QSocketNotifier>

#include <array>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace quillon_ed {

namespace {

constexpr std::size_t LongestLine = 4096; // bytes; what is longer is cut off

} // namespace

InputLines::InputLines(std::function<void(const std::string& line)> take) : mTake(std::move(take))
{
    auto* notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    QObject::connect(notifier, &QSocketNotifier::activated, this,
                     [this, notifier] { notifier->setEnabled(ReadSome()); });
}

bool InputLines::ReadSome()
{
    std::array<char, LongestLine> bytes{};
    const ssize_t count = read(STDIN_FILENO, bytes.data(), bytes.size());
    if (count <= 0) return false;
    for (const char byte : std::string_view(bytes.data(), static_cast<std::size_t>(count))) {
        if (byte == '\n') mTake(std::exchange(msLine, {}));
        else if (byte != '\r' && msLine.size() < LongestLine) msLine += byte;
    }
    return true;
}

} // namespace quillon_ed
