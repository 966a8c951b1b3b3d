// Starts as Quillon Ed does when it opens a station, and ends after the first picture with the station in it.

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
    window.Files().OpenFile(QString::fromLocal8Bit(argv[1]));
    window.resize(1000, 700);
    const bench::QuitAfterPaint quit(window);
    window.show();
    return QApplication::exec();
}
