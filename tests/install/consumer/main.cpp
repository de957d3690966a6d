#include <config/configfile.h>
#include <pages/zelkonregionalpage.h>
#include <platform.h>

#include <QApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    Platform::instance()->setStandalone(true);
    ConfigFile config;
    ZelkonRegionalPage page;
    page.saveConfig(&config);
    QTextStream(stdout) << config.toString();
    return page.title() == QLatin1String("Regional") ? 0 : 1;
}
