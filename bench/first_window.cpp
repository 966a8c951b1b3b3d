// Starts as Quillon Ed does with a station, and ends after the first picture of its window, or of the station in it.
// Usage: first_window STATION window|station

#include "app/host/AppServices.h"
#include "app/window/MainWindow.h"
#include "bench/QuitAfterPaint.h"

#include <QSettings>
#include <QTemporaryDir>

using namespace quillon_ed;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir directory;
    QSettings settings(directory.filePath("settings.ini"), QSettings::IniFormat);
    AppServices services(settings);
    MainWindow window(services);
    window.resize(1000, 700);
    window.Start(QString::fromLocal8Bit(argv[1]));
    bench::QuitAfterPaint quit;
    if (std::string_view(argv[2]) == "window") {
        quit.Watch(window);
    } else {
        // The page that shows the station is there when it has been opened.
        QObject::connect(&window.Files(), &FileCommands::opened, &window, [&] { quit.Watch(*window.centralWidget()); });
    }
    return QApplication::exec();
}
