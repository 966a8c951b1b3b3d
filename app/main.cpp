#include "app/commandline/HelpText.h"
#include "app/commandline/OpenStations.h"
#include "app/commandline/ParseCommandLine.h"
#include "app/commandline/RunCommand.h"
#include "app/commandline/RunRender.h"

#include <QApplication>

#include <iostream>

using namespace quillon_ed;

namespace {

int refuse(const UsageError& error)
{
    const std::string word = CommandWord(error.understood.command);
    const std::string command = word.empty() ? "quillon-ed" : "quillon-ed " + word;
    const Language language = LanguageOf(error.understood);
    std::cerr << "quillon-ed: " << error.reason.In(language) << '\n'
              << LocalizedText{"See '" + command + " --help'.", "Siehe '" + command + " --help'."}.In(language) << '\n';
    return ExitUsage;
}

/// What the window system's layer remarks about the desktop is nothing to a command that needs none.
void keepQuietAboutTheDesktop()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << "quillon-ed: " << text.toStdString() << '\n';
    });
}

void nameProgram()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Halvar"));
    QCoreApplication::setApplicationName(QStringLiteral("Quillon_Ed"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillon Ed"));
}

} // namespace

int main(int argc, char** argv)
{
    const auto parsed = ParseCommandLine({argv + 1, argv + argc});
    if (const auto* error = std::get_if<UsageError>(&parsed)) return refuse(*error);
    const auto& line = std::get<CommandLine>(parsed);
    const CommandStreams streams{std::cout, std::cerr};
    if (line.help || line.version) {
        if (line.help) std::cout << HelpText(line.command, LanguageOf(line));
        else std::cout << "Quillon Ed " QUILLON_VERSION "\n";
        return EndOutput(streams, LanguageOf(line), ExitClean);
    }

    nameProgram();
    if (line.command == Command::Open || line.command == Command::Render) {
        if (line.command == Command::Render) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            keepQuietAboutTheDesktop();
        }
        // The arguments have been read; the application gets none of them.
        int count = 1;
        const QApplication application(count, argv);
        return line.command == Command::Render ? RunRender(line, streams) : OpenStations(line);
    }
    return EndOutput(streams, LanguageOf(line), RunCommand(line, streams));
}
