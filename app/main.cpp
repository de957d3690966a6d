#include "launcher.h"

#include <QApplication>

int main(int argc, char** argv)
{
    Launcher::prepareProcess();
    const QStringList arguments = Launcher::prepareArguments(argc, argv);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zelkon"));
    QApplication::setApplicationVersion(QStringLiteral(ZELKON_VERSION));
    QApplication::setOrganizationName(QStringLiteral("Tavlo"));
    return Launcher::run(arguments);
}
