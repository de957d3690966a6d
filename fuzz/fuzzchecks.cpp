#include "fuzzchecks.h"

#include "config/attributeorder.h"
#include "config/configfile.h"
#include "config/configreader.h"
#include "config/domwriter.h"
#include "connections/model/connectionmodel.h"
#include "printers/model/printermodel.h"

#include <QDomDocument>
#include <QFile>
#include <cstdlib>

namespace {
// The one-pass reader must load what Qt's own parser loads, and save it byte for byte alike.
void checkReadersAgree(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.readAll();
    QDomDocument streamed;
    AttributeOrder streamedOrder;
    const ConfigReader::Result result = ConfigReader::read(bytes, streamed, &streamedOrder);
    QDomDocument parsed;
    AttributeOrder parsedOrder;
    const ConfigReader::Result reference = ConfigReader::readWithDomParser(bytes, parsed, &parsedOrder);
    if (result.parse.verdict != reference.parse.verdict)
        std::abort();
    if (result.accepted()
        && DomWriter(&streamedOrder).toString(streamed, 1) != DomWriter(&parsedOrder).toString(parsed, 1))
        std::abort();
}
} // namespace

void FuzzChecks::document(const QString& path)
{
    checkReadersAgree(path);
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
