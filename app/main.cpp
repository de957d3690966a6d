#include "launcher.h"

#include <QApplication>

int main(int argc, char** argv)
{
    Launcher::prepareProcess();
    const QStringList arguments = Launcher::prepareArguments(argc, argv);
    const int refused = Launcher::checkBeforeStart(arguments);
    if (refused >= 0)
        return refused;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zelkon"));
    QApplication::setApplicationVersion(QStringLiteral(ZELKON_VERSION));
    QApplication::setOrganizationName(QStringLiteral("Tavlo"));
    return Launcher::run(arguments);
}
