// How long a start to the first painted window takes, program by program in turns so that both meet the same load:
// Quillon Ed with a station against an empty window. Prints the medians and their ratio; fails above the limit.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int Rounds = 21;
constexpr double Limit = 1.5;

/// In milliseconds; negative when the program could not be run.
double TimeOf(const QString& program, const QStringList& arguments)
{
    QElapsedTimer timer;
    timer.start();
    const int code = QProcess::execute(program, arguments);
    return code == 0 ? static_cast<double>(timer.nsecsElapsed()) / 1e6 : -1;
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
    std::vector<double> editor;
    std::vector<double> empty;
    for (int round = 0; round <= Rounds; ++round) {
        const double one = TimeOf(directory + "/first_window", {station});
        const double other = TimeOf(directory + "/empty_window", {});
        if (one < 0 || other < 0) {
            std::fprintf(stderr, "start_bench: a program could not be run\n");
            return 2;
        }
        if (round == 0) continue; // the first start reads the files from the disk
        editor.push_back(one);
        empty.push_back(other);
    }
    const double ratio = Median(editor) / Median(empty);
    std::printf("Quillon Ed %.1f ms, empty window %.1f ms, ratio %.3f   limit %.2f   %s\n", Median(editor),
                Median(empty), ratio, Limit, ratio <= Limit ? "kept" : "EXCEEDED");
    return ratio <= Limit ? 0 : 1;
}
