// The least that a program with a window can do: it shows an empty one and ends after its first picture.

#include "bench/QuitAfterPaint.h"

#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1000, 700);
    quillon_ed::bench::QuitAfterPaint quit;
    quit.Watch(application);
    window.show();
    return QApplication::exec();
}
