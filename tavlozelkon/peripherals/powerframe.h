#pragma once

#include "tavlozelkon_lib_export.h"

#include "pages/configframe.h"

class QLabel;
class QSpinBox;

/*
 * Power management on the Peripherals page: the screen-saver delay in minutes, the
 * "power" section's only setting. The monitor-off and sleep controls exist and report
 * changes, but no device reads them yet, so they are neither shown nor stored.
 */
class TAVLOZELKON_LIB_EXPORT PowerFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PowerFrame)

public:
    explicit PowerFrame(QWidget* parent = nullptr);
    ~PowerFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

private:
    QSpinBox* m_screenSaver;
    QSpinBox* m_monitorOff;
    QSpinBox* m_sleep;
    QLabel* m_screenSaverLabel;
    QLabel* m_monitorOffLabel;
    QLabel* m_sleepLabel;
    QLabel* m_minutesLabel;
};
