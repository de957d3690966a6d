#pragma once

#include "configpage.h"

#include <QMap>

/*
 * The Peripherals page: display, power, wireless, sound and USB. The wireless frame is
 * offered only where the device has wireless networking.
 */
class TAVLOZELKON_LIB_EXPORT ZelkonPeripheralPage : public ConfigPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ZelkonPeripheralPage)

public:
    enum class Peripheral { Display, Power, Wireless, Sound, Usb };

    explicit ZelkonPeripheralPage(QWidget* parent = nullptr);
    ~ZelkonPeripheralPage() override;

    QString title() const override;
    // The title, also before a page is made: a host may list its pages first.
    static QString pageTitle();
    QString description() const override;
    void retranslateUi() override;

    // On a Lunvex device the registry says; elsewhere every platform but CE has it.
    static bool isWirelessPresent();
    AccordionItem* item(Peripheral peripheral) const { return m_items.value(peripheral); }

public slots:
    void updatePlatformOptions();

protected:
    QString baseHelpText() const override;
    AccordionItem* addPeripheralFrame(Peripheral peripheral, ConfigFrame* frame);

private:
    void setup();
    void createItems();

    QMap<Peripheral, AccordionItem*> m_items;
};
