// Starts as Quillon Ed does with a station, and ends after the first picture of its window, of what it offers before
// the station is open, or of the station in it.
//
// Usage: first_window STATION window|tools|station

#include "app/host/AppServices.h"
#include "app/window/MainWindow.h"
#include "bench/QuitAfterPaint.h"

#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>

#include <string_view>

using namespace quillon_ed;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const std::string_view until(argv[2]);
    bench::QuitAfterPaint quit;
    if (until == "window") quit.Watch(application);

    const QTemporaryDir directory;
    QSettings settings(directory.filePath("settings.ini"), QSettings::IniFormat);
    AppServices services(settings);
    MainWindow window(services);
    window.Start(QString::fromLocal8Bit(argv[1]));
    if (until == "tools") quit.Watch(*window.statusBar());
    // The page that shows the station is there when it has been opened.
    QObject::connect(&window.Files(), &FileCommands::opened, &window, [&] { quit.Watch(*window.centralWidget()); });
    return QApplication::exec();
}
