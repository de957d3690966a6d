#pragma once

#include "tavlozelkon_lib_export.h"

#include "networkprinter.h"

#include <QMap>
#include <QObject>
#include <QString>

class ConfigFile;

/*
 * The network printers defined for the target thin client, keyed by an id made when a
 * printer is added (ids in files are not read back). The printer list and the printer
 * editor share one model and change it directly through printers().
 *
 * Loading adds to what the model holds and saving always appends new "printer"
 * elements: a model is meant to be loaded once, into a fresh frame, and saved into a
 * document whose printer section it has not filled before.
 */
class TAVLOZELKON_LIB_EXPORT PrinterModel : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PrinterModel)

public:
    explicit PrinterModel(QObject* parent = nullptr);
    ~PrinterModel() override;

    // Returns the new printer's id.
    QString add(const QString& name, const QString& address, const QString& port, const QString& driver);
    void remove(const QString& id);
    // "name<TAB>address[:port][<TAB>driver]"; empty for an unknown id.
    QString item(const QString& id) const;
    int count() const;
    QMap<QString, NetworkPrinter>& printers() { return m_printers; }
    const QMap<QString, NetworkPrinter>& printers() const { return m_printers; }

    // Both expect the document's cursor on the "network_printer" section and leave it there.
    void loadConfig(ConfigFile* config);
    void saveConfig(ConfigFile* config);
    void savePrinter(const QString& id, const NetworkPrinter& printer, ConfigFile* config);

signals:
    void newConfigLoaded();

private:
    QMap<QString, NetworkPrinter> m_printers;
};
