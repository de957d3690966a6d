#include "printermodel.h"

#include "config/configfile.h"

#include <QUuid>

namespace {
const QString PrinterKey = QStringLiteral("printer");
const QString NameKey = QStringLiteral("name");
const QString AddressKey = QStringLiteral("address");
const QString PortKey = QStringLiteral("port");
const QString DriverKey = QStringLiteral("driver");
} // namespace

PrinterModel::PrinterModel(QObject* parent)
    : QObject(parent)
{
}

PrinterModel::~PrinterModel() = default;

QString PrinterModel::add(const QString& name, const QString& address, const QString& port, const QString& driver)
{
    const QString id = QUuid::createUuid().toString();
    m_printers.insert(id, NetworkPrinter { name, address, port, driver });
    return id;
}

void PrinterModel::remove(const QString& id)
{
    m_printers.remove(id);
}

QString PrinterModel::item(const QString& id) const
{
    const auto found = m_printers.constFind(id);
    if (found == m_printers.cend())
        return QString();
    const NetworkPrinter& printer = found.value();
    QString line = printer.name + QLatin1Char('\t') + printer.address;
    if (!printer.port.isEmpty())
        line += QLatin1Char(':') + printer.port;
    if (!printer.driver.isEmpty())
        line += QLatin1Char('\t') + printer.driver;
    return line;
}

int PrinterModel::count() const
{
    return m_printers.size();
}

void PrinterModel::loadConfig(ConfigFile* config)
{
    const int nodes = config->nodeCount();
    for (int i = 0; i < nodes; ++i) {
        if (!config->findNode(PrinterKey, i))
            continue;
        const QString name = config->value(NameKey);
        const QString address = config->value(AddressKey);
        const QString port = config->value(PortKey);
        const QString driver = config->value(DriverKey);
        add(name, address, port, driver);
        config->leaveNode();
    }
    emit newConfigLoaded();
}

void PrinterModel::saveConfig(ConfigFile* config)
{
    for (auto it = m_printers.cbegin(); it != m_printers.cend(); ++it)
        savePrinter(it.key(), it.value(), config);
}

void PrinterModel::savePrinter(const QString& id, const NetworkPrinter& printer, ConfigFile* config)
{
    if (config->addNode(PrinterKey) < 0)
        return;
    config->setAttributeValue(QStringLiteral("id"), id);
    config->setValue(NameKey, printer.name);
    config->setValue(AddressKey, printer.address);
    if (!printer.port.isEmpty())
        config->setValue(PortKey, printer.port);
    if (!printer.driver.isEmpty())
        config->setValue(DriverKey, printer.driver);
    config->leaveNode();
}
