// A bare Qt widgets window of the wizard's size: the reference for the wizard's start-up.
#include "firstpaintprobe.h"

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    FirstPaintProbe probe;
    application.installEventFilter(&probe);
    QLabel window(QStringLiteral("Zelkon"));
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
