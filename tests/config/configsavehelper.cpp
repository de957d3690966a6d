// Edits and saves a document in a process of its own, so that Qt's hash seed, and with it
// the DOM's attribute order, differs from run to run.
//
// configsavehelper <file to load> <output>

#include "config/configfile.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    ConfigFile config;
    if (app.arguments().size() != 3 || !config.load(app.arguments().at(1)))
        return 2;
    config.setAttributeValue(QStringLiteral("added"), QStringLiteral("yes"));
    config.findNode(QStringLiteral("printer"), 0);
    config.setAttributeValue(QStringLiteral("zeta"), QStringLiteral("z"));
    config.setAttributeValue(QStringLiteral("alpha"), QStringLiteral("a"));
    config.setAttributeValue(QStringLiteral("port"), QStringLiteral("515"));
    config.setCurrentNodeAsRoot();
    config.addNode(QStringLiteral("monitor"));
    config.setAttributeValue(QStringLiteral("rate"), QStringLiteral("60"));
    config.setAttributeValue(QStringLiteral("name"), QStringLiteral("DVI-1"));
    config.setAttributeValue(QStringLiteral("depth"), QStringLiteral("24"));
    return config.save(app.arguments().at(2)) ? 0 : 1;
}
