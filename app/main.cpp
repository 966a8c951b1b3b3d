#include "app/commandline/Complain.h"
#include "app/commandline/HelpText.h"
#include "app/commandline/OpenStations.h"
#include "app/commandline/ParseCommandLine.h"
#include "app/commandline/RunCommand.h"
#include "app/commandline/RunCompare.h"
#include "app/commandline/RunDiagnose.h"
#include "app/commandline/RunRender.h"
#include "app/commandline/RunSimulate.h"
#include "app/commandline/TellErrors.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <QApplication>

#include <cstdlib>
#include <iostream>

using namespace quillon_ed;

namespace {

int refuse(const UsageError& error)
{
    const std::string word = CommandWord(error.understood.command);
    const std::string command = word.empty() ? "quillon-ed" : "quillon-ed " + word;
    const Language language = LanguageOf(error.understood);
    Complain(std::cerr, error.reason.In(language));
    std::cerr << LocalizedText{"See '" + command + " --help'.", "Siehe '" + command + " --help'."}.In(language) << '\n';
    return ExitUsage;
}

/// What the toolkit remarks about the desktop or the network is nothing to a command, which tells itself what matters.
void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) Complain(std::cerr, text.toStdString());
}

Language languageOfStart = Language::English;

/// Without a display the toolkit would explain itself in many lines and abort.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type != QtFatalMsg) return;
    const LocalizedText reason{"no window can be opened: no display can be reached",
                               "es kann kein Fenster geöffnet werden: kein Bildschirm ist erreichbar"};
    Complain(std::cerr, reason.In(languageOfStart));
    std::_Exit(ExitFile);
}

/// An exception must not travel through the toolkit: it is told among the messages, and the window goes on.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        bool handled = false;
        zqbchwcx::G_Trap("Application", "notify", [&] { handled = QApplication::notify(receiver, event); });
        return handled;
    }
};

/// Draws, but shows no window.
bool drawsOnly(const CommandLine& line)
{
    return line.command == Command::Render || (line.command == Command::Compare && !line.html.empty());
}

int runApplication(const CommandLine& line, const CommandStreams& streams, char** argv)
{
    languageOfStart = LanguageOf(line);
    if (drawsOnly(line)) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(endWithoutDisplay);
    // The arguments have been read; the application gets none of them.
    int count = 1;
    const Application application(count, argv);
    qInstallMessageHandler(drawsOnly(line) ? keepQuiet : nullptr);
    if (line.command == Command::Compare) return RunCompare(line, streams);
    return line.command == Command::Render ? RunRender(line, streams) : OpenStations(line);
}

/// Commands that wait for others, but need no display.
int runInLoop(const CommandLine& line, const CommandStreams& streams, char** argv)
{
    int count = 1;
    const QCoreApplication application(count, argv);
    qInstallMessageHandler(keepQuiet);
    return line.command == Command::Diagnose ? RunDiagnose(line, streams) : RunSimulate(line, streams);
}

void nameProgram()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Halvar"));
    QCoreApplication::setApplicationName(QStringLiteral("Quillon_Ed"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillon Ed"));
}

int run(int argc, char** argv)
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
    if (line.command == Command::Open || drawsOnly(line)) return runApplication(line, streams, argv);
    if (line.command == Command::Diagnose || line.command == Command::Simulate) return runInLoop(line, streams, argv);
    if (line.command == Command::Compare) return RunCompare(line, streams);
    return EndOutput(streams, LanguageOf(line), RunCommand(line, streams));
}

} // namespace

int main(int argc, char** argv)
{
    return TellErrors(std::cerr, Language::English, [&] { return run(argc, argv); });
}
