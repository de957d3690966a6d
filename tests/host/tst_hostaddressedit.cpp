#include "flagifinvalid.h"
#include "hostaddressedit.h"

#include <QTest>
#include <QValidator>

class TestHostAddressEdit : public QObject
{
    Q_OBJECT

private slots:
    void validator_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("acceptable");

        QTest::newRow("host name") << "citrix" << true;
        QTest::newRow("dotted host name") << "farm01.corp.example.com" << true;
        QTest::newRow("hyphen inside label") << "rds-gw.example.org" << true;
        QTest::newRow("ipv4") << "192.168.10.254" << true;
        QTest::newRow("ipv6") << "fe80::1ff:fe23:4567:890a" << true;
        QTest::newRow("ipv6 loopback") << "::1" << true;
        QTest::newRow("bracketed ipv6") << "[2001:db8::7]" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("ipv4 out of range") << "192.168.10.256" << false;
        QTest::newRow("short ipv4") << "10.1.1" << false;
        QTest::newRow("label starting with hyphen") << "-host.example.com" << false;
        QTest::newRow("double dot") << "host..example.com" << false;
        QTest::newRow("space") << "my host" << false;
        QTest::newRow("underscore") << "my_host" << false;
        QTest::newRow("url") << "http://host" << false;
        QTest::newRow("label longer than 63") << QString(64, QLatin1Char('a')) << false;
    }

    void validator()
    {
        QFETCH(QString, text);
        QFETCH(bool, acceptable);
        HostAddressEdit edit;
        int position = 0;
        QCOMPARE(edit.validator()->validate(text, position) == QValidator::Acceptable, acceptable);
    }

    void flagIfInvalidFlagsAndClears()
    {
        HostAddressEdit edit;
        QVERIFY(flagIfInvalid(&edit));
        QVERIFY(!edit.styleSheet().isEmpty());

        edit.setText(QStringLiteral("10.0.0.1"));
        QVERIFY(!flagIfInvalid(&edit));
        QVERIFY(edit.styleSheet().isEmpty());

        // An incomplete address is still flagged, although the validator let it be typed.
        edit.setText(QStringLiteral("10.0.0."));
        QVERIFY(flagIfInvalid(&edit));
    }

    void flagIfInvalidWithoutValidatorOnlyRejectsEmpty()
    {
        QLineEdit edit;
        QVERIFY(flagIfInvalid(&edit));
        edit.setText(QStringLiteral("anything at all"));
        QVERIFY(!flagIfInvalid(&edit));
    }
};

QTEST_MAIN(TestHostAddressEdit)
#include "tst_hostaddressedit.moc"
