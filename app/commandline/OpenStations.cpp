#include "app/commandline/OpenStations.h"

#include "app/commandline/Complain.h"
#include "app/commandline/RunCommand.h"
#include "app/commandline/TellErrors.h"
#include "app/host/AppServices.h"
#include "app/host/Strings.h"
#include "app/host/UserSettings.h"
#include "app/window/MainWindow.h"

#include <QApplication>
#include <QProcess>

#include <iostream>

namespace quillon_ed {

namespace {

/// A program shows one station: the first one itself, each of the others in a program of its own, so that one that
/// dies takes no other with it.
void openOtherStations(const CommandLine& line)
{
    for (std::size_t i = 1; i < line.files.size(); ++i) {
        QStringList arguments;
        if (line.language)
            arguments << QStringLiteral("--lang")
                      << (*line.language == Language::German ? QStringLiteral("de") : QStringLiteral("en"));
        arguments << QStringLiteral("--") << ToQString(line.files[i]);
        if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
            Complain(std::cerr, line.files[i] + ": another program could not be started for it");
    }
}

} // namespace

int OpenStations(const CommandLine& line)
{
    return TellErrors(std::cerr, LanguageOf(line), [&] {
        UserSettings settings;
        AppServices services(settings.Settings());
        if (line.language) services.ShowLanguage(*line.language);
        openOtherStations(line);

        MainWindow window(services);
        if (settings.Refused()) window.Warn(ToQString(settings.Refused()->Message(services.CurrentLanguage())));
        window.Start(line.files.empty() ? QString() : ToQString(line.files.front()));
        return QApplication::exec();
    });
}

} // namespace quillon_ed
