#include "fuzzchecks.h"

#include "config/configfile.h"
#include "connections/model/connectionmodel.h"
#include "printers/model/printermodel.h"

void FuzzChecks::document(const QString& path)
{
    ConfigFile config;
    if (!config.load(path))
        return;
    config.toFormattedString();
    config.setCurrentNodeAsRoot();
    config.value(QStringLiteral("layout"));
    config.setValue(QStringLiteral("layout"), QStringLiteral("Norway"));
    config.sortNodes();
    // save() writes through the same writer; only the file handling differs.
    config.toString();
}

void FuzzChecks::connectionModel(const QString& path)
{
    ConfigFile config;
    if (!config.load(path))
        return;
    config.setCurrentNodeAsRoot();
    ConnectionModel model;
    model.loadConfig(&config);
    model.toDebugString();
    config.setCurrentNodeAsRoot();
    model.saveConfig(&config);
    config.toFormattedString();
}

void FuzzChecks::printers(const QString& path)
{
    ConfigFile config;
    if (!config.load(path))
        return;
    config.setCurrentNodeAsRoot();
    if (!config.findNode(QStringLiteral("network_printer"), 0))
        return;
    PrinterModel model;
    model.loadConfig(&config);
    const QStringList ids = model.printers().keys();
    for (const QString& id : ids)
        model.item(id);
    config.setCurrentNodeAsRoot();
    config.addNode(QStringLiteral("network_printer"));
    model.saveConfig(&config);
    config.toFormattedString();
}
