#include "config/configfile.h"
#include "devicetree.h"

#include <QtTest>

/*
 * The HTML summary shown before saving or applying: one heading and table per section,
 * display labels instead of keys, secrets masked at section level only.
 */
class ConfigSummaryTest : public QObject
{
    Q_OBJECT

private slots:
    void sectionAlias_data();
    void sectionAlias();
    void wholeDocument();
    void onlyEmptySectionsRenderNothing();
    void documentWithoutRootRendersNothing();
};

void ConfigSummaryTest::sectionAlias_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    // Labels the whole-document test below does not already show.
    const QList<QPair<QString, QString>> table {
        { "system_locale", "Locale" },
        { "screen_saver_delay", "Screen Saver On" },
        { "multi_monitor_mode", "Multi Monitor Mode" },
        { "read_only", "Read Only" },
        { "cda", "CDA" },
        { "xenapp", "XenApp" },
        // Without an alias only the first letter is raised; the map is case-sensitive.
        { "sound", "Sound" },
        { "SSID_name", "SSID_name" },
        { "Rdp", "Rdp" },
        { "x", "X" },
        { "", "" },
    };
    for (const auto& row : table)
        QTest::newRow(qPrintable(row.first.isEmpty() ? QStringLiteral("empty") : row.first)) << row.first << row.second;
}

void ConfigSummaryTest::sectionAlias()
{
    QFETCH(QString, name);
    QFETCH(QString, label);
    ConfigFile config;
    QCOMPARE(config.sectionAlias(name), label);
}

void ConfigSummaryTest::wholeDocument()
{
    DeviceTree device;
    device.addFile(QStringLiteral("/usr/bin/view-runner"));
    device.addFile(QStringLiteral("/usr/bin/rdesktop-runner"));

    ConfigFile config;
    QVERIFY(config.setContent(QByteArrayLiteral(R"(<?xml version="1.0" encoding="utf-8"?>
<zelkon version="1.0" creator="zelkon" creator_version="2.0">
 <time_zone><timezone>Europe/Oslo</timezone></time_zone>
 <wireless>
  <ssid>Caf&amp;&lt;e&gt; "net"</ssid>
  <!-- not shown -->
  <passphrase>secret</passphrase>
  <hide_control>true</hide_control>
  <empty_key/>
 </wireless>
 <sound/>
 <rdp>
  <session>
   <name>Desk</name>
   <password>plain</password>
   <proxy><host>p.example</host><port>8080</port></proxy>
  </session>
  <session><name>Two</name></session>
 </rdp>
 <browser>
  <general_settings><home_page>http://x/?a=1&amp;b=2</home_page></general_settings>
 </browser>
 <vmware/>
 <xenapp/>
 <cda/>
 <network><password>topsecret</password></network>
</zelkon>
)"),
                              true));
    config.setCurrentNodeAsRoot();
    config.findNode(QStringLiteral("rdp"), 0);

    const QString expected = QStringLiteral(
        R"(<h3>Time Zone</h3><table><tr><td width ="50%">Time Zone</td><td>Europe/Oslo</td></tr></table>)"
        R"(<h3>Wireless</h3><table>)"
        R"(<tr><td width ="50%">SSID</td><td>Caf&amp;&lt;e&gt; &quot;net&quot;</td></tr>)"
        R"(<tr><td width ="50%">Passphrase</td><td>********</td></tr>)"
        R"(<tr><td width ="50%">Hide_control</td><td>true</td></tr>)"
        R"(<tr><td width ="50%">Empty_key</td><td></td></tr>)"
        R"(</table>)"
        R"(<h3>RDP</h3><table>)"
        R"(<tr><td width="10%"/><td width ="50%">Name</td><td>Desk</td></tr>)"
        R"(<tr><td width="10%"/><td width ="50%">Password</td><td>plain</td></tr>)"
        R"(<tr><td width="10%"/><td width ="50%">Proxy</td></tr>)"
        R"(<tr><td width="10%"/><td width ="50%">Host</td><td>p.example</td></tr>)"
        R"(<tr><td width="10%"/><td width ="50%">Port</td><td>8080</td></tr>)"
        R"(<tr/>)"
        R"(<tr/>)"
        R"(<tr><td width="10%"/><td width ="50%">Name</td><td>Two</td></tr>)"
        R"(<tr/>)"
        R"(</table>)"
        R"(<h3>Web Browser</h3><table>)"
        R"(<tr><td width="10%"/><td width ="50%">General Settings</td></tr>)"
        R"(<tr><td width="10%"/><td width ="50%">Home_page</td><td>http://x/?a=1&amp;b=2</td></tr>)"
        R"(<tr/>)"
        R"(</table>)"
        R"(<h3>VMware View</h3><table></table>)"
        R"(<h3>Network</h3><table><tr><td width ="50%">Password</td><td>********</td></tr></table>)");
    QCOMPARE(config.toFormattedString(), expected);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp"));
}

void ConfigSummaryTest::onlyEmptySectionsRenderNothing()
{
    DeviceTree device;
    ConfigFile config;
    QVERIFY(config.toFormattedString().isEmpty());
    for (const QString& name : { QStringLiteral("sound"), QStringLiteral("rdp"), QStringLiteral("vmware") }) {
        config.addNode(name);
        config.leaveNode();
    }
    QVERIFY(config.toFormattedString().isEmpty());

    // Installing a launcher makes its empty section appear from the next rendering on.
    device.addFile(QStringLiteral("/usr/bin/rdesktop-runner"));
    QCOMPARE(config.toFormattedString(), QStringLiteral("<h3>RDP</h3><table></table>"));
}

void ConfigSummaryTest::documentWithoutRootRendersNothing()
{
    ConfigFile config;
    QVERIFY(config.setContent(QByteArrayLiteral("<other><sound><volume>1</volume></sound></other>")));
    QCOMPARE(config.toFormattedString(), QString());
}

QTEST_MAIN(ConfigSummaryTest)
#include "tst_configsummary.moc"
