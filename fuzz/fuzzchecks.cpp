#include "fuzzchecks.h"

#include "config/configfile.h"
#include "connections/model/connectionmodel.h"

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
