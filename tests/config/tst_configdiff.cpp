#include "config/configdiff.h"

#include <QDomDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

QDomDocument parsed(const QString& sections)
{
    QDomDocument document;
    document.setContent(QStringLiteral("<zelkon>") + sections + QStringLiteral("</zelkon>"));
    return document;
}

QString session(const QString& id, const QString& name, const QString& address)
{
    return QStringLiteral("<session id=\"%1\"><name>%2</name><address>%3</address></session>").arg(id, name, address);
}

// Each change as "kind section key before after", for comparing whole lists at once.
QStringList described(const QList<ConfigDiff::Change>& changes)
{
    QStringList lines;
    for (const ConfigDiff::Change& change : changes) {
        const char* kind = change.kind == ConfigDiff::Change::Kind::Added ? "+"
            : change.kind == ConfigDiff::Change::Kind::Removed            ? "-"
                                                                          : "~";
        lines.append(QStringLiteral("%1 %2 %3 [%4] [%5]")
                         .arg(QLatin1String(kind), change.section, change.key, change.before, change.after));
    }
    return lines;
}

} // namespace

class TestConfigDiff : public QObject
{
    Q_OBJECT

private slots:
    void changes_data();
    void changes();
    void textAndJson();
};

void TestConfigDiff::changes_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("equal") << "<usb><enable>true</enable></usb>"
                           << "<usb><enable>true</enable></usb>" << QStringList();
    QTest::newRow("value, added key, removed section")
        << "<usb><enable>true</enable></usb><sound><enable>true</enable></sound>"
        << "<usb><enable>false</enable><read_only>true</read_only></usb>"
        << QStringList { "~ usb enable [true] [false]", "+ usb read_only [] [true]", "- sound enable [true] []" };
    // Sessions are matched by id, not by position: a reordering is no change.
    QTest::newRow("sessions reordered") << "<rdp>" + session("{1}", "A", "a") + session("{2}", "B", "b") + "</rdp>"
                                        << "<rdp>" + session("{2}", "B", "b") + session("{1}", "A", "a") + "</rdp>"
                                        << QStringList();
    QTest::newRow("session changed and added")
        << "<rdp>" + session("{1}", "A", "a") + "</rdp>"
        << "<rdp>" + session("{1}", "A", "a2") + session("{2}", "B", "b") + "</rdp>"
        << QStringList { "~ rdp session[{1}]/address [a] [a2]", "+ rdp session[{2}]/name [] [B]",
                         "+ rdp session[{2}]/address [] [b]" };
    QTest::newRow("printers by name")
        << "<network_printer><printer id=\"x\"><name>Laser</name><port>9100</port></printer></network_printer>"
        << "<network_printer><printer id=\"y\"><name>Laser</name><port>515</port></printer></network_printer>"
        << QStringList { "~ network_printer printer[Laser]/port [9100] [515]" };
    // Secrets are masked at every level, and a changed one still shows as changed.
    QTest::newRow("secrets")
        << "<wireless><passphrase>old-secret</passphrase></wireless>"
        << "<wireless><passphrase>new-secret</passphrase></wireless><x><session id=\"1\"><password>p</password>"
           "</session></x>"
        << QStringList { "~ wireless passphrase [********] [********]", "+ x session[1]/password [] [********]" };
    QTest::newRow("repeated section")
        << "<desktop><kiosk_mode>true</kiosk_mode></desktop>"
        << "<desktop><kiosk_mode>true</kiosk_mode></desktop><desktop><kiosk_mode>false</kiosk_mode></desktop>"
        << QStringList { "+ desktop[2] kiosk_mode [] [false]" };
    QTest::newRow("grouped by section") << "<a><k>1</k></a><b><k>1</k></b>"
                                        << "<b><k>2</k></b><a><k>2</k><n>3</n></a>"
                                        << QStringList { "~ a k [1] [2]", "+ a n [] [3]", "~ b k [1] [2]" };
}

void TestConfigDiff::changes()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QStringList, expected);
    QCOMPARE(described(ConfigDiff::compare(parsed(before), parsed(after))), expected);
}

void TestConfigDiff::textAndJson()
{
    const auto changes = ConfigDiff::compare(parsed("<usb><enable>true</enable></usb><sound><x>1</x></sound>"),
                                             parsed("<usb><enable>false</enable></usb><power><d>5</d></power>"));
    QCOMPARE(ConfigDiff::toText(changes),
             QStringLiteral("usb\n  ~ enable: true -> false\nsound\n  - x: 1\n"
                            "power\n  + d: 5\n"));
    const QJsonArray json = ConfigDiff::toJson(changes);
    QCOMPARE(json.size(), 3);
    QCOMPARE(json.at(0).toObject(),
             (QJsonObject { { "change", "changed" },
                            { "section", "usb" },
                            { "key", "enable" },
                            { "before", "true" },
                            { "after", "false" } }));
    QVERIFY(!json.at(1).toObject().contains("after"));
    QVERIFY(!json.at(2).toObject().contains("before"));
}

QTEST_GUILESS_MAIN(TestConfigDiff)
#include "tst_configdiff.moc"
