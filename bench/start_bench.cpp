// How long a start to the first painted window takes, program by program in turns so that all meet the same load:
// Quillon Ed with a station, up to its window, to the tools in it, and to the station, against an empty window. Prints
// the medians and their ratios; fails above the limit.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int Rounds = 21;
constexpr double Limit = 1.5;

/// Until the program says that it has painted, in milliseconds; negative when the program could not be run.
double TimeOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    const bool bPainted = process.waitForReadyRead();
    const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    return process.waitForFinished() && bPainted && process.exitCode() == 0 ? time : -1;
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString directory = QCoreApplication::applicationDirPath();
    const QString station = QStringLiteral(QUILLON_SOURCE_DIR "/examples/packaging-line.station.json");
    struct Start {
        QString program;
        QStringList arguments;
        std::vector<double> times;
    };
    Start empty{directory + "/empty_window", {}, {}};
    Start window{directory + "/first_window", {station, "window"}, {}};
    Start tools{directory + "/first_window", {station, "tools"}, {}};
    Start withStation{directory + "/first_window", {station, "station"}, {}};
    for (int round = 0; round <= Rounds; ++round) {
        for (Start* start : {&empty, &window, &tools, &withStation}) {
            const double time = TimeOf(start->program, start->arguments);
            if (time < 0) {
                std::fprintf(stderr, "start_bench: a program could not be run\n");
                return 2;
            }
            // The first start reads the files from the disk.
            if (round > 0) start->times.push_back(time);
        }
    }
    const double base = Median(empty.times);
    const double ratio = Median(window.times) / base;
    std::printf("an empty window           %6.1f ms\n", base);
    std::printf("Quillon Ed's window       %6.1f ms, ratio %.3f   limit %.2f   %s\n", Median(window.times), ratio,
                Limit, ratio <= Limit ? "kept" : "EXCEEDED");
    std::printf("and the tools in it       %6.1f ms, ratio %.3f\n", Median(tools.times), Median(tools.times) / base);
    std::printf("and the station           %6.1f ms, ratio %.3f\n", Median(withStation.times),
                Median(withStation.times) / base);
    return ratio <= Limit ? 0 : 1;
}
