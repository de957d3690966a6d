#include "hostedprinterframe.h"

#include "config/configfile.h"
#include "pages/configpage.h"

#include "accordion.h"
#include "accordionitem.h"

namespace {
const QString Section = QStringLiteral("network_printer");
} // namespace

HostedPrinterFrame::HostedPrinterFrame(QWidget* parent)
    : NetworkPrinterFrame(parent)
{
}

HostedPrinterFrame::~HostedPrinterFrame() = default;

HostedPrinterFrame* HostedPrinterFrame::addTo(ConfigPage* page)
{
    auto* frame = new HostedPrinterFrame;
    connect(frame, &ConfigFrame::dirty, page, &WizardPage::modified);
    page->accordion()->addItem(new AccordionItem(frame));
    return frame;
}

void HostedPrinterFrame::saveConfig(ConfigFile* config)
{
    if (isDirty() && config->findNode(Section, 0)) {
        while (config->removeNode(QStringLiteral("printer"), 0)) { }
        config->leaveNode();
    }
    NetworkPrinterFrame::saveConfig(config);
}
