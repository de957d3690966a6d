#pragma once

#include "platformchoiceframe.h"

/*
 * The language, date format and currency symbol of the thin client
 * ("system_locale/locale"), from the platform's list. A standalone wizard also offers
 * the Asian locales of the WES and CE images that only some devices carry.
 */
class TAVLOZELKON_LIB_EXPORT LocaleFrame : public PlatformChoiceFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(LocaleFrame)

public:
    explicit LocaleFrame(QWidget* parent = nullptr);
    ~LocaleFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;

protected:
    QStringList choices() const override;
    QString labelText() const override;

    // Locales the device itself adds to its platform's list, asked for instead of the
    // standalone ones when the wizard runs on a device. None on any platform so far; the
    // hook stays so a device with extra locales needs no change elsewhere.
    virtual QStringList additionalLocalbyOS() const;
};
