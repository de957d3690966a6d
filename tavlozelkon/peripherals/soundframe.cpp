#include "soundframe.h"

#include "peripheralgrid.h"

#include "config/configfile.h"

#include "platform.h"

#include <QCheckBox>

namespace {
const QString Section = QStringLiteral("sound");
const QString Enable = QStringLiteral("enable");
const QString HideControl = QStringLiteral("hide_control");
} // namespace

SoundFrame::SoundFrame(QWidget* parent)
    : ConfigFrame(parent)
    , m_enable(new QCheckBox(this))
    , m_hideControl(new QCheckBox(this))
{
    m_enable->setObjectName(QStringLiteral("SoundEnable"));
    m_hideControl->setObjectName(QStringLiteral("SoundHideControl"));
    m_enable->setChecked(true);
    for (QCheckBox* box : { m_enable, m_hideControl })
        connect(box, &QCheckBox::stateChanged, this, &ConfigFrame::setDirty);
    PeripheralGrid::createCheckBoxGrid(this, { m_enable, m_hideControl });
    retranslateUi();

    connect(Platform::instance(), &Platform::platformChange, this, &SoundFrame::updatePlatformOptions);
    updatePlatformOptions();
}

SoundFrame::~SoundFrame() = default;

QString SoundFrame::title() const
{
    return tr("Sound");
}

QIcon SoundFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/audio.svg"));
}

QString SoundFrame::helpText() const
{
    return tr("<b>Sound</b> <br> This enables or disables sound and hides or shows the volume controls.");
}

void SoundFrame::retranslateUi()
{
    m_enable->setText(tr("Enable"));
    m_hideControl->setText(tr("Hide volume control"));
}

void SoundFrame::updatePlatformOptions()
{
    m_hideControl->setHidden(!Platform::isLunvex());
}

void SoundFrame::loadConfig(ConfigFile* config)
{
    if (!enterSectionForLoad(config, Section))
        return;
    m_enable->setChecked(config->boolValue(Enable));
    if (Platform::isLunvex())
        m_hideControl->setChecked(config->boolValue(HideControl));
}

void SoundFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, Section))
        return;
    config->setBoolValue(Enable, m_enable->isChecked());
    if (Platform::isLunvex())
        config->setBoolValue(HideControl, m_hideControl->isChecked());
    leaveSection(config);
}
