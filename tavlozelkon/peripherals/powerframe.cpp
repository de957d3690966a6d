#include "powerframe.h"

#include "peripheralgrid.h"

#include "config/configfile.h"

#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

namespace {
const QString Section = QStringLiteral("power");
const QString ScreenSaverDelay = QStringLiteral("screen_saver_delay");
} // namespace

PowerFrame::PowerFrame(QWidget* parent)
    : ConfigFrame(parent)
    , m_screenSaver(new QSpinBox(this))
    , m_monitorOff(new QSpinBox(this))
    , m_sleep(new QSpinBox(this))
    , m_screenSaverLabel(new QLabel(this))
    , m_monitorOffLabel(new QLabel(this))
    , m_sleepLabel(new QLabel(this))
    , m_minutesLabel(new QLabel(this))
{
    m_screenSaver->setObjectName(QStringLiteral("PowerScreenSaver"));
    m_monitorOff->setObjectName(QStringLiteral("PowerMonitorOff"));
    m_sleep->setObjectName(QStringLiteral("PowerSleep"));
    m_screenSaverLabel->setBuddy(m_screenSaver);
    for (QSpinBox* box : { m_screenSaver, m_monitorOff, m_sleep })
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &ConfigFrame::setDirty);

    auto* grid = new QGridLayout(this);
    grid->addWidget(m_screenSaverLabel, 0, 0);
    grid->addWidget(m_screenSaver, 0, 1);
    grid->addWidget(m_minutesLabel, 0, 2);
    PeripheralGrid::addBlank(grid, 0, 5);
    // Children outside the layout would otherwise appear stacked in the frame's corner.
    for (QWidget* unplaced : { static_cast<QWidget*>(m_monitorOff), static_cast<QWidget*>(m_sleep),
                               static_cast<QWidget*>(m_monitorOffLabel), static_cast<QWidget*>(m_sleepLabel) })
        unplaced->hide();

    retranslateUi();
}

PowerFrame::~PowerFrame() = default;

QString PowerFrame::title() const
{
    return tr("Power Management");
}

QIcon PowerFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/power_manag.svg"));
}

QString PowerFrame::helpText() const
{
    return tr("<b>Power Management</b> <br> This controls power saving and related options on the Thin Client.");
}

void PowerFrame::retranslateUi()
{
    m_screenSaverLabel->setText(tr("Screen saver on:"));
    m_monitorOffLabel->setText(tr("Monitor off:"));
    m_sleepLabel->setText(tr("Thin Client sleep:"));
    m_minutesLabel->setText(tr("minutes"));
}

void PowerFrame::loadConfig(ConfigFile* config)
{
    if (!enterSectionForLoad(config, Section))
        return;
    // Out-of-range delays are clamped by the spin box, and saved as clamped.
    m_screenSaver->setValue(config->value(ScreenSaverDelay).toInt(nullptr, 10));
}

void PowerFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, Section))
        return;
    config->setValue(ScreenSaverDelay, QString::number(m_screenSaver->value(), 10));
    leaveSection(config);
}
