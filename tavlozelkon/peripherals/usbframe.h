#pragma once

#include "tavlozelkon_lib_export.h"

#include "pages/configframe.h"

class QCheckBox;

/*
 * USB mass storage on the Peripherals page: storage (on Lunvex: automounting) on or off
 * and, except on CE, restricted to read-only. Stored in the "usb" section. A read-only
 * restriction means nothing while storage is off, so it is greyed out then and saved as
 * false.
 */
class TAVLOZELKON_LIB_EXPORT UsbFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(UsbFrame)

public:
    explicit UsbFrame(QWidget* parent = nullptr);
    ~UsbFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

public slots:
    void updatePlatformOptions();
    void changeUSBEnableMode(int state);

private:
    QCheckBox* m_enable;
    QCheckBox* m_readOnly;
};
