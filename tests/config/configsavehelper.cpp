// Saves two documents for the writer test, in a process of its own so that Qt's per-process
// hash seed differs from run to run: a fresh document with attributes added in this run,
// and a loaded one that keeps the attribute order of its file.
//
// configsavehelper <file to load> <fresh output> <loaded output>

#include "config/configfile.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 4)
        return 2;

    ConfigFile fresh;
    fresh.addNode(QStringLiteral("display"));
    fresh.addNode(QStringLiteral("monitor"));
    fresh.setAttributeValue(QStringLiteral("rate"), QStringLiteral("60"));
    fresh.setAttributeValue(QStringLiteral("depth"), QStringLiteral("24"));
    fresh.setAttributeValue(QStringLiteral("name"), QStringLiteral("DVI-1"));
    fresh.setValue(QStringLiteral("primary"), QStringLiteral("true"));
    if (!fresh.save(args.at(2)))
        return 1;

    ConfigFile loaded;
    if (!loaded.load(args.at(1)))
        return 1;
    loaded.findNode(QStringLiteral("printer"), 0);
    loaded.setAttributeValue(QStringLiteral("zeta"), QStringLiteral("z"));
    loaded.setAttributeValue(QStringLiteral("alpha"), QStringLiteral("a"));
    loaded.setAttributeValue(QStringLiteral("port"), QStringLiteral("515"));
    loaded.setCurrentNodeAsRoot();
    loaded.setAttributeValue(QStringLiteral("added"), QStringLiteral("yes"));
    loaded.findNode(QStringLiteral("sound"), 0);
    loaded.setValue(QStringLiteral("volume"), QStringLiteral("9"));
    return loaded.save(args.at(3)) ? 0 : 1;
}
