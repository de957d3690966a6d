// The wizard started exactly as the application's main() starts it, with a probe that
// reports the first painted window.
#include "firstpaintprobe.h"
#include "launcher.h"

#include <QApplication>

int main(int argc, char** argv)
{
    Launcher::prepareProcess();
    const QStringList arguments = Launcher::prepareArguments(argc, argv);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zelkon"));
    QApplication::setOrganizationName(QStringLiteral("Tavlo"));
    FirstPaintProbe probe;
    application.installEventFilter(&probe);
    return Launcher::run(arguments);
}
