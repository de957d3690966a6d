#include "usbframe.h"

#include "peripheralgrid.h"

#include "config/configfile.h"

#include "platform.h"

#include <QCheckBox>

namespace {
const QString Section = QStringLiteral("usb");
const QString Enable = QStringLiteral("enable");
const QString ReadOnly = QStringLiteral("read_only");
} // namespace

UsbFrame::UsbFrame(QWidget* parent)
    : ConfigFrame(parent)
    , m_enable(new QCheckBox(this))
    , m_readOnly(new QCheckBox(this))
{
    m_enable->setObjectName(QStringLiteral("UsbEnable"));
    m_readOnly->setObjectName(QStringLiteral("UsbReadOnly"));
    m_enable->setChecked(true);
    connect(m_enable, &QCheckBox::stateChanged, this, &UsbFrame::changeUSBEnableMode);
    connect(m_readOnly, &QCheckBox::stateChanged, this, &ConfigFrame::setDirty);
    PeripheralGrid::createCheckBoxGrid(this, { m_enable, m_readOnly });

    connect(Platform::instance(), &Platform::platformChange, this, &UsbFrame::updatePlatformOptions);
    updatePlatformOptions();
}

UsbFrame::~UsbFrame() = default;

QString UsbFrame::title() const
{
    return tr("USB Mass Storage");
}

QIcon UsbFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/usb.svg"));
}

QString UsbFrame::helpText() const
{
    if (Platform::isLunvex())
        return tr("<b>USB</b> <br> This enables or disables USB mass storage automounts and potentially restricts "
                  "them to read only.");
    if (Platform::isWes())
        return tr("<b>USB</b> <br> This enables or disables USB mass storage and restricts USB storage devices to "
                  "read only.");
    return tr("<b>USB</b> <br> This enables or disables USB mass storage.");
}

void UsbFrame::retranslateUi()
{
    if (Platform::isLunvex()) {
        m_enable->setText(tr("Enable Automounts"));
        m_readOnly->setText(tr("Read-Only Automounts"));
    } else {
        m_enable->setText(tr("Enable"));
        m_readOnly->setText(tr("Read only storage"));
    }
}

void UsbFrame::updatePlatformOptions()
{
    m_readOnly->setHidden(Platform::isCe());
    retranslateUi();
}

void UsbFrame::changeUSBEnableMode(int state)
{
    m_readOnly->setEnabled(state == Qt::Checked);
    setDirty();
}

void UsbFrame::loadConfig(ConfigFile* config)
{
    if (!enterSectionForLoad(config, Section))
        return;
    m_enable->setChecked(config->boolValue(Enable));
    if (!Platform::isCe())
        m_readOnly->setChecked(config->boolValue(ReadOnly));
}

void UsbFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, Section))
        return;
    config->setBoolValue(Enable, m_enable->isChecked());
    if (!Platform::isCe())
        config->setBoolValue(ReadOnly, m_readOnly->isChecked() && m_enable->isChecked());
    leaveSection(config);
}
