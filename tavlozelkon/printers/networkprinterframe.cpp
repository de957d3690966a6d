#include "networkprinterframe.h"

#include "printereditor.h"

#include "config/configfile.h"

#include <QVBoxLayout>

namespace {
const QString Section = QStringLiteral("network_printer");
} // namespace

NetworkPrinterFrame::NetworkPrinterFrame(QWidget* parent)
    : ConfigFrame(parent)
    , m_editor(new PrinterEditor(m_model, this))
{
    setObjectName(QStringLiteral("NetworkPrinterFrame"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_editor);
    connect(m_editor, &PrinterEditor::isDirty, this, &ConfigFrame::setDirty);
}

NetworkPrinterFrame::~NetworkPrinterFrame() = default;

QString NetworkPrinterFrame::title() const
{
    return tr("Network Printer");
}

QIcon NetworkPrinterFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/printer.svg"));
}

QString NetworkPrinterFrame::helpText() const
{
    return tr("<b>Network Printer</b> <br> This enables you to set a list of network printers.");
}

void NetworkPrinterFrame::retranslateUi() { }

void NetworkPrinterFrame::loadConfig(ConfigFile* config)
{
    if (enterSectionForLoad(config, Section))
        m_model.loadConfig(config);
}

void NetworkPrinterFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, Section))
        return;
    m_model.saveConfig(config);
    leaveSection(config);
}
