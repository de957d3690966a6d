#include "zelkonperipheralpage.h"

#include "device/externaltool.h"
#include "peripherals/displayframe.h"
#include "peripherals/powerframe.h"
#include "peripherals/soundframe.h"
#include "peripherals/usbframe.h"
#include "peripherals/wirelessframe.h"

#include "accordionitem.h"
#include "platform.h"

ZelkonPeripheralPage::ZelkonPeripheralPage(QWidget* parent)
    : ConfigPage(parent)
{
    setup();
    connect(Platform::instance(), &Platform::platformChange, this, &ZelkonPeripheralPage::updatePlatformOptions);
}

ZelkonPeripheralPage::~ZelkonPeripheralPage() = default;

void ZelkonPeripheralPage::setup()
{
    setupAccordion([this] { createItems(); });
    updatePlatformOptions();
}

void ZelkonPeripheralPage::createItems()
{
    addPeripheralFrame(Peripheral::Display, new DisplayFrame(this));
    addPeripheralFrame(Peripheral::Power, new PowerFrame(this));
    addPeripheralFrame(Peripheral::Wireless, new WirelessFrame(this));
    addPeripheralFrame(Peripheral::Sound, new SoundFrame(this));
    addPeripheralFrame(Peripheral::Usb, new UsbFrame(this));
}

AccordionItem* ZelkonPeripheralPage::addPeripheralFrame(Peripheral peripheral, ConfigFrame* frame)
{
    AccordionItem* added = addFrame(frame);
    m_items.insert(peripheral, added);
    return added;
}

bool ZelkonPeripheralPage::isWirelessPresent()
{
    if (Platform::isLunvex() && !Platform::isStandalone())
        return ExternalTool::run(QStringLiteral("tregctl"),
                                 { QStringLiteral("get"), QStringLiteral("root/zelkon-view/wireless") })
            == 0;
    return !Platform::isCe();
}

void ZelkonPeripheralPage::updatePlatformOptions()
{
    if (AccordionItem* wireless = m_items.value(Peripheral::Wireless))
        wireless->setVisible(isWirelessPresent());
}

QString ZelkonPeripheralPage::title() const
{
    return pageTitle();
}

QString ZelkonPeripheralPage::pageTitle()
{
    return tr("Peripherals");
}

QString ZelkonPeripheralPage::description() const
{
    return tr("Settings for various peripherals.");
}

QString ZelkonPeripheralPage::baseHelpText() const
{
    return tr("<b>Peripherals</b> <br>This enables you to modify the configuration of various peripherals.<p/>");
}

void ZelkonPeripheralPage::retranslateUi() { }
