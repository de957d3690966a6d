#pragma once

#include "tavlozelkon_lib_export.h"

#include "pages/configframe.h"

class QCheckBox;

/*
 * Sound on the Peripherals page: sound on or off and, on Lunvex, whether the volume
 * control is hidden from the user. Stored in the "sound" section.
 */
class TAVLOZELKON_LIB_EXPORT SoundFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(SoundFrame)

public:
    explicit SoundFrame(QWidget* parent = nullptr);
    ~SoundFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

public slots:
    void updatePlatformOptions();

private:
    QCheckBox* m_enable;
    QCheckBox* m_hideControl;
};
