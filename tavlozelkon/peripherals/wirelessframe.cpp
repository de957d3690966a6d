#include "wirelessframe.h"

#include "peripheralgrid.h"

#include "config/configfile.h"

#include "platform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace {
const QString Section = QStringLiteral("wireless");
const QString Enable = QStringLiteral("enable");
const QString Ssid = QStringLiteral("ssid");
const QString Security = QStringLiteral("security");
const QString Passphrase = QStringLiteral("passphrase");

// Stored security values, the combo's item data.
const QString None = QStringLiteral("none");
const QString Wep = QStringLiteral("WEP");
const QString WpaPersonal = QStringLiteral("WPA Personal");
const QString Wpa2Personal = QStringLiteral("WPA2 Personal");

// An empty pattern accepts every passphrase, the empty one included.
const QStringList AnyPassphrase { QString() };
const QStringList WepPassphrase { QStringLiteral("[0-9A-Fa-f]{10}"), QStringLiteral("[0-9A-Fa-f]{26}") };
// Printable ASCII without the blank.
const QStringList WpaPassphrase { QStringLiteral("[!-~]{8,63}") };
} // namespace

WirelessFrame::WirelessFrame(QWidget* parent)
    : ConfigFrame(parent)
    , m_enable(new QCheckBox(this))
    , m_ssid(new QLineEdit(this))
    , m_security(new QComboBox(this))
    , m_passphrase(new QLineEdit(this))
    , m_ssidLabel(new QLabel(this))
    , m_securityLabel(new QLabel(this))
    , m_passphraseLabel(new QLabel(this))
    , m_warning(new QLabel(this))
{
    setup();
}

WirelessFrame::~WirelessFrame() = default;

void WirelessFrame::setup()
{
    m_enable->setObjectName(QStringLiteral("WirelessEnable"));
    m_ssid->setObjectName(QStringLiteral("WirelessSsid"));
    m_security->setObjectName(QStringLiteral("WirelessSecurity"));
    m_passphrase->setObjectName(QStringLiteral("WirelessPassphrase"));
    m_warning->setObjectName(QStringLiteral("WirelessWarning"));
    m_ssidLabel->setBuddy(m_ssid);
    m_securityLabel->setBuddy(m_security);
    m_passphraseLabel->setBuddy(m_passphrase);
    m_warning->setStyleSheet(QStringLiteral("color: red"));

    setupSecurity();

    connect(m_enable, &QCheckBox::stateChanged, this, &WirelessFrame::setSettingChange);
    connect(m_ssid, &QLineEdit::textChanged, this, &WirelessFrame::setSettingChange);
    connect(m_security, qOverload<int>(&QComboBox::activated), this, &WirelessFrame::checkSecurityOption);
    connect(m_security, qOverload<int>(&QComboBox::currentIndexChanged), this, &WirelessFrame::checkSecurityOption);
    connect(m_passphrase, &QLineEdit::textChanged, this, &WirelessFrame::checkPassphrase);

    QGridLayout* grid = PeripheralGrid::createCheckBoxGrid(this, { m_enable });
    grid->addWidget(m_ssidLabel, 1, 0);
    grid->addWidget(m_ssid, 1, 1, 1, 3);
    grid->addWidget(m_securityLabel, 2, 0);
    grid->addWidget(m_security, 2, 1, 1, 3);
    grid->addWidget(m_passphraseLabel, 3, 0);
    grid->addWidget(m_passphrase, 3, 1, 1, 3);
    PeripheralGrid::addBlank(grid, 4, 0);
    grid->addWidget(m_warning, 4, 1, 1, 2);

    m_warning->hide();
    retranslateUi();

    connect(Platform::instance(), &Platform::platformChange, this, &WirelessFrame::updatePlatformOptions);
    updatePlatformOptions();
}

void WirelessFrame::setupSecurity()
{
    // Refilling the combo is not a choice of the user's.
    disconnect(m_security, qOverload<int>(&QComboBox::currentIndexChanged), this, &WirelessFrame::checkSecurityOption);
    m_security->clear();

    addSecurityItem(tr("none"), None, AnyPassphrase);
    addSecurityItem(tr("WEP"), Wep, WepPassphrase);
    if (Platform::isLunvex()) {
        addSecurityItem(tr("WPA & WPA2 Personal"), WpaPersonal, WpaPassphrase);
    } else {
        addSecurityItem(tr("WPA Personal"), WpaPersonal, WpaPassphrase);
        addSecurityItem(tr("WPA2 Personal"), Wpa2Personal, WpaPassphrase);
        m_security->setCurrentIndex(0);
    }
    m_currentPatterns = m_securityPatterns.value(m_security->currentIndex());
}

void WirelessFrame::addSecurityItem(const QString& text, const QString& data, const QStringList& patterns)
{
    m_security->addItem(text, data);
    m_securityPatterns.append(patterns);
}

void WirelessFrame::updatePlatformOptions()
{
    m_enable->setHidden(Platform::isWes());
    setupSecurity();
    connect(m_security, qOverload<int>(&QComboBox::currentIndexChanged), this, &WirelessFrame::checkSecurityOption,
            Qt::UniqueConnection);
}

QString WirelessFrame::title() const
{
    return tr("Wireless Networking");
}

QIcon WirelessFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/wireless.svg"));
}

QString WirelessFrame::helpText() const
{
    return tr("<b>Wireless Networking</b> <br> This enables or disables wireless networking and configures the "
              "following encryption options.</p><ul><li> None</li><li> WEP</li><li> WPA Personal (TKIP)</li><li> "
              "WPA2 Personal (AES)</li></ul><p> Wireless networking is not supported on all Thin Clients.<p>Please "
              "be aware the wireless passphrase is not encrypted in the configuraton file. </p><p> The WEP "
              "passphrase must contain exactly 10 or 26 characters using 0-9 and A-F.</p><p> The WPA Personal and "
              "WPA2 Personal passphrase must contain between 8 to 63 printable characters.</p>");
}

void WirelessFrame::retranslateUi()
{
    m_enable->setText(tr("Enable"));
    m_ssidLabel->setText(tr("SSID:"));
    m_securityLabel->setText(tr("Security:"));
    m_passphraseLabel->setText(tr("Passphrase:"));
    m_warning->setText(tr("Please enter a valid passphrase!"));

    const auto setItemText = [this](const QString& data, const QString& text) {
        const int index = m_security->findData(data, Qt::UserRole, Qt::MatchFixedString);
        if (index >= 0)
            m_security->setItemText(index, text);
    };
    setItemText(None, tr("none"));
    setItemText(Wep, tr("WEP"));
    if (Platform::isLunvex()) {
        setItemText(WpaPersonal, tr("WPA & WPA2 Personal"));
    } else {
        setItemText(WpaPersonal, tr("WPA Personal"));
        setItemText(Wpa2Personal, tr("WPA2 Personal"));
    }
}

void WirelessFrame::checkSecurityOption(int index)
{
    // An index outside the table (no item chosen) has no rules, like an empty list.
    const QStringList patterns = m_securityPatterns.value(index);
    m_currentPatterns = patterns.isEmpty() ? AnyPassphrase : patterns;
    checkPassphrase();
}

bool WirelessFrame::isPassphraseValid() const
{
    const QString passphrase = m_passphrase->text();
    for (const QString& pattern : m_currentPatterns) {
        if (pattern.isEmpty())
            return true;
        if (QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(passphrase).hasMatch())
            return true;
    }
    return false;
}

void WirelessFrame::checkPassphrase()
{
    if (!isPassphraseValid()) {
        setPassphraseValidWarning();
        clearDirty();
        return;
    }
    setDirty();
    clearPassphraseValidWarning();
}

void WirelessFrame::setSettingChange()
{
    if (isPassphraseValid())
        setDirty();
}

void WirelessFrame::setPassphraseValidWarning()
{
    m_warning->show();
}

void WirelessFrame::clearPassphraseValidWarning()
{
    m_warning->hide();
}

void WirelessFrame::loadConfig(ConfigFile* config)
{
    if (!config->findNode(Section, 0))
        return;
    if (!Platform::isWes())
        m_enable->setChecked(config->boolValue(Enable));
    m_ssid->setText(config->value(Ssid));
    const QString security = config->value(Security);
    m_security->setCurrentIndex(
        security.isEmpty() ? 0 : m_security->findData(security, Qt::UserRole, Qt::MatchFixedString));
    m_passphrase->setText(config->value(Passphrase));

    // Filling the fields is not a change; on the device a loaded section is written back
    // only when the user edits it.
    clearDirty();
    clearPassphraseValidWarning();
    if (Platform::isStandalone())
        checkPassphrase();
}

void WirelessFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, Section))
        return;
    if (!Platform::isWes())
        config->setBoolValue(Enable, m_enable->isChecked());
    config->setValue(Ssid, m_ssid->text());
    config->setValue(Security, m_security->currentData().toString());
    config->setValue(Passphrase, m_passphrase->text());
    leaveSection(config);
}
