#pragma once

#include "tavlozelkon_lib_export.h"

#include "model/printermodel.h"
#include "pages/configframe.h"

class PrinterEditor;

/*
 * The network printers of the "network_printer" section, listed and edited in a
 * PrinterEditor. No page of the wizard places this frame; it is ready for a host that
 * does.
 *
 * Saving appends the printers to the section without removing the "printer" elements
 * already there, so a host saves into a document whose printer section this frame did
 * not fill before.
 */
class TAVLOZELKON_LIB_EXPORT NetworkPrinterFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(NetworkPrinterFrame)

public:
    explicit NetworkPrinterFrame(QWidget* parent = nullptr);
    ~NetworkPrinterFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

    PrinterModel& printerModel() { return m_model; }
    PrinterEditor* printerEditor() const { return m_editor; }

private:
    PrinterModel m_model;
    PrinterEditor* m_editor;
};
