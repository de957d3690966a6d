#include "sectiontext.h"

#include "faketool.h"

#include "pages/zelkonperipheralpage.h"
#include "peripherals/wirelessframe.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

namespace {
using Peripheral = ZelkonPeripheralPage::Peripheral;

void setPlatform(Platform::Target target, bool standalone = false)
{
    Platform::instance()->setTarget(target);
    Platform::instance()->setStandalone(standalone);
}

// The frame's widgets, as a user finds them.
struct Fields
{
    explicit Fields(WirelessFrame& frame)
        : enable(frame.findChild<QCheckBox*>(QStringLiteral("WirelessEnable")))
        , ssid(frame.findChild<QLineEdit*>(QStringLiteral("WirelessSsid")))
        , security(frame.findChild<QComboBox*>(QStringLiteral("WirelessSecurity")))
        , passphrase(frame.findChild<QLineEdit*>(QStringLiteral("WirelessPassphrase")))
        , warning(frame.findChild<QLabel*>(QStringLiteral("WirelessWarning")))
    {
        if (!enable || !ssid || !security || !passphrase || !warning)
            qFatal("WirelessFrame lacks a named widget");
    }

    void choose(const QString& data) const
    {
        const int index = security->findData(data);
        if (index < 0)
            qFatal("no security item %s", qPrintable(data));
        security->setCurrentIndex(index);
    }

    QStringList itemData() const
    {
        QStringList data;
        for (int i = 0; i < security->count(); ++i)
            data.append(security->itemData(i).toString());
        return data;
    }

    QCheckBox* enable;
    QLineEdit* ssid;
    QComboBox* security;
    QLineEdit* passphrase;
    QLabel* warning;
};

const QString Section = QStringLiteral(
    "<wireless><enable>true</enable><ssid>LAGER</ssid><security>%1</security><passphrase>%2</passphrase></wireless>");
} // namespace

class TestWirelessFrame : public QObject
{
    Q_OBJECT

private slots:
    void init() { setPlatform(Platform::Lunvex); }

    void securityItemsFollowThePlatform_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("data");
        QTest::addColumn<bool>("enableShown");
        QTest::newRow("lunvex") << int(Platform::Lunvex) << QStringList { "none", "WEP", "WPA & WPA2 Personal" }
                                << QStringList { "none", "WEP", "WPA Personal" } << true;
        const QStringList windows { "none", "WEP", "WPA Personal", "WPA2 Personal" };
        QTest::newRow("wes") << int(Platform::Wes) << windows << windows << false;
        QTest::newRow("wes7") << int(Platform::Wes7) << windows << windows << true;
        QTest::newRow("ce") << int(Platform::Ce) << windows << windows << true;
    }

    // Items and the enable box are right whether the frame was built on the platform or
    // switched to it later, and a language change keeps them.
    void securityItemsFollowThePlatform()
    {
        QFETCH(int, target);
        QFETCH(QStringList, texts);
        QFETCH(bool, enableShown);
        for (bool switched : { false, true }) {
            setPlatform(switched ? Platform::Ce : Platform::Target(target));
            WirelessFrame frame;
            Fields fields(frame);
            if (switched)
                setPlatform(Platform::Target(target));
            QEvent languageChange(QEvent::LanguageChange);
            QCoreApplication::sendEvent(&frame, &languageChange);
            QStringList shown;
            for (int i = 0; i < fields.security->count(); ++i)
                shown.append(fields.security->itemText(i));
            QCOMPARE(shown, texts);
            QTEST(fields.itemData(), "data");
            QCOMPARE(fields.security->currentIndex(), 0);
            QCOMPARE(fields.enable->isHidden(), !enableShown);
            QVERIFY(fields.warning->isHidden());
            QVERIFY(!frame.isDirty());
        }
    }

    void passphraseRules_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<QString>("security");
        QTest::addColumn<QString>("passphrase");
        QTest::addColumn<bool>("valid");

        const auto add = [](const char* name, const char* security, const QString& passphrase, bool valid,
                            Platform::Target target = Platform::Lunvex) {
            QTest::newRow(name) << int(target) << QString::fromLatin1(security) << passphrase << valid;
        };
        add("none, empty", "none", "", true);
        add("none, anything", "none", "a b", true);
        add("WEP, 10 digits", "WEP", "0123456789", true);
        add("WEP, 10 mixed-case hex", "WEP", "abcDEF0123", true);
        add("WEP, 26 hex", "WEP", "0123456789abcdefABCDEF0123", true);
        add("WEP, 9", "WEP", "012345678", false);
        add("WEP, 11", "WEP", "0123456789a", false);
        add("WEP, 13", "WEP", "0123456789abc", false);
        add("WEP, 10 with a g", "WEP", "012345678g", false);
        add("WEP, empty", "WEP", "", false);
        add("WPA, 8 letters", "WPA Personal", "abcdefgh", true);
        add("WPA, 63 punctuation", "WPA Personal", QString(63, '~').replace(0, 1, '!'), true);
        add("WPA, 7", "WPA Personal", "abcdefg", false);
        add("WPA, 64", "WPA Personal", QString(64, 'x'), false);
        add("WPA, blank", "WPA Personal", "abcd efgh", false);
        add("WPA, non-ASCII", "WPA Personal", QStringLiteral("abcdéfgh"), false);
        add("WEP on ce", "WEP", "0123456789", true, Platform::Ce);
        add("WPA, 7 on ce", "WPA Personal", "abcdefg", false, Platform::Ce);
        add("WPA2, 8 on wes", "WPA2 Personal", "abcdefgh", true, Platform::Wes);
        add("WPA2, 7 on wes", "WPA2 Personal", "abcdefg", false, Platform::Wes);
        add("WPA2, 64 on wes7", "WPA2 Personal", QString(64, 'x'), false, Platform::Wes7);
    }

    void passphraseRules()
    {
        QFETCH(int, target);
        QFETCH(QString, security);
        QFETCH(QString, passphrase);
        QFETCH(bool, valid);
        setPlatform(Platform::Target(target));
        WirelessFrame frame;
        Fields fields(frame);
        fields.choose(security);
        // Pasted, as passphrases usually are; an empty paste changes nothing, so say so.
        fields.passphrase->insert(passphrase);
        if (passphrase.isEmpty())
            emit fields.passphrase->textChanged(passphrase);

        QCOMPARE(fields.passphrase->text(), passphrase);
        QCOMPARE(frame.isPassphraseValid(), valid);
        QCOMPARE(fields.warning->isHidden(), valid);
        QCOMPARE(frame.isDirty(), valid);
        QCOMPARE(fields.warning->text(), QStringLiteral("Please enter a valid passphrase!"));
        QCOMPARE(fields.warning->styleSheet(), QStringLiteral("color: red"));
    }

    // While the passphrase is invalid nothing of the frame counts as changed; a valid one
    // brings all the changes back.
    void invalidPassphraseWithdrawsChanges()
    {
        setPlatform(Platform::Wes);
        WirelessFrame frame;
        Fields fields(frame);
        QSignalSpy dirty(&frame, &ConfigFrame::dirty);

        QTest::keyClicks(fields.ssid, QStringLiteral("KANTOOR"));
        QVERIFY(frame.isDirty());
        QVERIFY(!dirty.isEmpty());

        fields.choose(QStringLiteral("WEP"));
        QVERIFY(!fields.warning->isHidden());
        QVERIFY(!frame.isDirty());
        dirty.clear();
        QTest::keyClicks(fields.ssid, QStringLiteral("-2"));
        QTest::keyClicks(fields.passphrase, QStringLiteral("01234"));
        QVERIFY(!frame.isDirty());
        QVERIFY(dirty.isEmpty());

        ConfigFile stored;
        fillDocument(stored, Section.arg(QStringLiteral("none"), QStringLiteral("old")));
        frame.saveConfig(&stored);
        QCOMPARE(sectionText(stored, QStringLiteral("wireless")),
                 QStringLiteral("enable=true;ssid=LAGER;security=none;passphrase=old"));
        ConfigFile empty;
        frame.saveConfig(&empty);
        QCOMPARE(sectionText(empty, QStringLiteral("wireless")), QStringLiteral("absent"));

        QTest::keyClicks(fields.passphrase, QStringLiteral("56789"));
        QVERIFY(fields.warning->isHidden());
        QVERIFY(frame.isDirty());
        QVERIFY(!dirty.isEmpty());
        frame.saveConfig(&stored);
        QCOMPARE(sectionText(stored, QStringLiteral("wireless")),
                 QStringLiteral("enable=true;ssid=KANTOOR-2;security=WEP;passphrase=0123456789"));
        QCOMPARE(stored.currentNodePath(), ConfigFile().currentNodePath());
    }

    void loadAndSave_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("standalone");
        QTest::addColumn<QString>("security");
        QTest::addColumn<QString>("passphrase");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("dirty");
        QTest::addColumn<bool>("warned");
        // What a save writes after the SSID was edited to "EDITED".
        QTest::addColumn<QString>("saved");

        const int lunvex = Platform::Lunvex;
        const int wes = Platform::Wes;
        QTest::newRow("device: written back only when edited")
            << lunvex << false << "WEP"
            << "0123456789" << 1 << true << false << false
            << "enable=true;ssid=EDITED;security=WEP;passphrase=0123456789";
        QTest::newRow("standalone: valid passphrase is written back")
            << lunvex << true << "WEP"
            << "0123456789" << 1 << true << true << false
            << "enable=true;ssid=EDITED;security=WEP;passphrase=0123456789";
        QTest::newRow("standalone: invalid passphrase is flagged, never written")
            << wes << true << "WEP"
            << "xyz" << 1 << false << false << true << "absent";
        QTest::newRow("device: invalid passphrase shows nothing until edited")
            << wes << false << "WPA Personal"
            << "short" << 2 << false << false << false << "absent";
        QTest::newRow("wes neither reads nor writes enable")
            << wes << false << "WPA2 Personal"
            << "groene-appel" << 3 << false << false << false
            << "ssid=EDITED;security=WPA2 Personal;passphrase=groene-appel";
        QTest::newRow("empty security is the first item")
            << int(Platform::Ce) << false << ""
            << "" << 0 << true << false << false << "enable=true;ssid=EDITED;security=none;passphrase=";
        QTest::newRow("security matched regardless of case")
            << lunvex << false << "wpa personal"
            << "abcdefgh" << 2 << true << false << false
            << "enable=true;ssid=EDITED;security=WPA Personal;passphrase=abcdefgh";
        // Lunvex offers no such item: nothing is chosen and no rule applies.
        QTest::newRow("lunvex has no WPA2 item")
            << lunvex << false << "WPA2 Personal"
            << "x" << -1 << true << false << false << "enable=true;ssid=EDITED;security=;passphrase=x";
    }

    void loadAndSave()
    {
        QFETCH(int, target);
        QFETCH(bool, standalone);
        QFETCH(QString, security);
        QFETCH(QString, passphrase);
        setPlatform(Platform::Target(target), standalone);
        WirelessFrame frame;
        Fields fields(frame);
        ConfigFile config;
        fillDocument(config, Section.arg(security, passphrase));

        frame.loadConfig(&config);
        QTEST(fields.security->currentIndex(), "index");
        QTEST(fields.enable->isChecked(), "enabled");
        QTEST(frame.isDirty(), "dirty");
        QTEST(!fields.warning->isHidden(), "warned");
        QCOMPARE(fields.ssid->text(), QStringLiteral("LAGER"));
        QCOMPARE(fields.passphrase->text(), passphrase);

        fields.ssid->setText(QStringLiteral("EDITED"));
        ConfigFile saved;
        frame.saveConfig(&saved);
        QTEST(sectionText(saved, QStringLiteral("wireless")), "saved");
    }

    void absentSectionKeepsTheDefaults()
    {
        WirelessFrame frame;
        Fields fields(frame);
        ConfigFile config;
        fillDocument(config, QStringLiteral("<sound/>"));
        frame.loadConfig(&config);
        QVERIFY(!frame.isDirty());
        QVERIFY(!fields.enable->isChecked());
        QVERIFY(fields.ssid->text().isEmpty());
        frame.saveConfig(&config);
        QCOMPARE(sectionText(config, QStringLiteral("wireless")), QStringLiteral("absent"));
    }

    void patternTableGrowsWithEveryRefill_data()
    {
        QTest::addColumn<int>("builtOn");
        QTest::addColumn<bool>("valid");
        QTest::newRow("built on wes: WPA2 rules") << int(Platform::Wes) << false;
        // Position 3 of the table holds the "none" list of Lunvex's second refill.
        QTest::newRow("built on lunvex: the none list") << int(Platform::Lunvex) << true;
    }

    void patternTableGrowsWithEveryRefill()
    {
        QFETCH(int, builtOn);
        setPlatform(Platform::Target(builtOn));
        WirelessFrame frame;
        Fields fields(frame);
        setPlatform(Platform::Wes);
        fields.choose(QStringLiteral("WPA2 Personal"));
        QTest::keyClicks(fields.passphrase, QStringLiteral("short"));
        QTEST(frame.isPassphraseValid(), "valid");
    }

    void indexOutsideThePatternTableAcceptsAnyPassphrase()
    {
        WirelessFrame frame;
        Fields fields(frame);
        fields.choose(QStringLiteral("WEP"));
        QTest::keyClicks(fields.passphrase, QStringLiteral("x"));
        QVERIFY(!frame.isPassphraseValid());
        for (int index : { -1, 1000 }) {
            frame.checkSecurityOption(index);
            QVERIFY(frame.isPassphraseValid());
            QVERIFY(fields.warning->isHidden());
        }
        fields.security->clear();
        QVERIFY(frame.isPassphraseValid());
    }

    void pageOffersWirelessWhereItIsPresent_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("standalone");
        QTest::addColumn<int>("registryAnswer");
        QTest::addColumn<bool>("shown");
        QTest::newRow("lunvex device with wireless") << int(Platform::Lunvex) << false << 0 << true;
        QTest::newRow("lunvex device without") << int(Platform::Lunvex) << false << 1 << false;
        QTest::newRow("wes") << int(Platform::Wes) << false << 1 << true;
        QTest::newRow("ce") << int(Platform::Ce) << false << 0 << false;
    }

    void pageOffersWirelessWhereItIsPresent()
    {
        QFETCH(int, target);
        QFETCH(bool, standalone);
        QFETCH(int, registryAnswer);
        FakeTool tregctl(QStringLiteral("tregctl"), registryAnswer);
        setPlatform(Platform::Wes7);
        ZelkonPeripheralPage page;
        setPlatform(Platform::Target(target), standalone);

        QStringList titles;
        for (AccordionItem* item : page.accordion()->items())
            titles.append(item->content()->title());
        // The display frame comes first.
        QCOMPARE(titles.mid(titles.size() - 4),
                 QStringList({ "Power Management", "Wireless Networking", "Sound", "USB Mass Storage" }));
        AccordionItem* wireless = page.item(Peripheral::Wireless);
        QVERIFY(qobject_cast<WirelessFrame*>(wireless->content()));
        QTEST(!wireless->isHidden(), "shown");
    }
};

QTEST_MAIN(TestWirelessFrame)
#include "tst_wirelessframe.moc"
