#include "config/configfile.h"
#include "devicetree.h"
#include "markingtranslator.h"

#include <QtTest>

namespace {
void setXml(ConfigFile& config, const QByteArray& xml)
{
    QVERIFY(config.setContent(xml));
    config.setCurrentNodeAsRoot();
}

// Qt's serialisation without indentation or line breaks.
QString compact(const QDomNode& node)
{
    QString text;
    QTextStream stream(&text);
    node.save(stream, -1);
    return text;
}
} // namespace

// The document in memory: the cursor, values, sorting and the HTML summary.
class ConfigDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void navigation()
    {
        ConfigFile config;
        QVERIFY(!config.leaveNode()); // never above the root
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));

        setXml(config, "<zelkon><rdp><session><name>a</name><session/></session>text<!--c--></rdp></zelkon>");
        // Keys are found at any depth; value() leaves the cursor on the key's parent.
        QCOMPARE(config.value(QStringLiteral("name")), QStringLiteral("a"));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp/session"));
        QVERIFY(config.leaveNode());
        QCOMPARE(config.nodeCount(), 3); // text and comment count too
        QVERIFY(!config.findNode(QStringLiteral("session"), 2));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp"));
        QVERIFY(config.findNode(QStringLiteral("session"), 1));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp/session/session"));
        config.setCurrentNodeAsRoot();
        QVERIFY(config.removeNode(QStringLiteral("name"), 0));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp/session"));

        // addNode() answers how many namesakes were below the cursor, at any depth, before it.
        config.setCurrentNodeAsRoot();
        QCOMPARE(config.addNode(QStringLiteral("session")), 2);
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/session"));
        // appendNode() appends the same way, without the index, and then counts as a namesake.
        QVERIFY(config.appendNode(QStringLiteral("proxy")));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/session/proxy"));
        config.setCurrentNodeAsRoot();
        QCOMPARE(config.addNode(QStringLiteral("proxy")), 1);

        // A root of another name leaves no element under the cursor, and nothing is added.
        setXml(config, "<other/>");
        QVERIFY(config.currentNode().isNull());
        QCOMPARE(config.addNode(QStringLiteral("sound")), -1);
        QVERIFY(!config.appendNode(QStringLiteral("sound")));
        QVERIFY(!config.documentElement().hasChildNodes());
    }

    void setValue()
    {
        ConfigFile config;
        setXml(config, "<zelkon><wireless><ssid/><key>a</key></wireless></zelkon>");
        config.setBoolValue(QStringLiteral("enabled"), false);
        // <ssid/> as read from a file has no text node to change, so it stays empty.
        config.setValue(QStringLiteral("ssid"), QStringLiteral("office"));
        config.setValue(QStringLiteral("key"), QStringLiteral("b & c"));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/wireless"));
        QCOMPARE(compact(config),
                 QStringLiteral(
                     "<zelkon><wireless><ssid/><key>b &amp; c</key></wireless><enabled>false</enabled></zelkon>"));
    }

    void boolValue_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("expected");
        QTest::newRow("true") << "true" << true;
        QTest::newRow("any case") << "TrUE" << true;
        QTest::newRow("false") << "false" << false;
        // Files have always read a stored 0 as true and 1 as false.
        QTest::newRow("0") << "0" << true;
        QTest::newRow("1") << "1" << false;
        QTest::newRow("padded") << " true" << false;
        QTest::newRow("missing") << QString() << false;
    }

    void boolValue()
    {
        QFETCH(QString, stored);
        QFETCH(bool, expected);
        ConfigFile config;
        if (!stored.isNull())
            config.setValue(QStringLiteral("flag"), stored);
        QCOMPARE(config.boolValue(QStringLiteral("flag")), expected);
    }

    void sortNodes_data()
    {
        QTest::addColumn<QByteArray>("children");
        QTest::addColumn<QString>("sorted");
        QTest::newRow("upper case first")
            << QByteArray("<apple/><Zebra/><mango/><Banana/>") << "<Banana/><Zebra/><apple/><mango/>";
        QTest::newRow("equal names keep their order")
            << QByteArray("<s>2</s><k/><s>1</s><a/><s>3</s>") << "<a/><k/><s>2</s><s>1</s><s>3</s>";
        QTest::newRow("root's children only")
            << QByteArray("<b/>t<!--c--><a><z/><y/></a>") << "<!--c-->t<a><z/><y/></a><b/>";
    }

    void sortNodes()
    {
        QFETCH(QByteArray, children);
        QFETCH(QString, sorted);
        ConfigFile config;
        setXml(config, "<zelkon>" + children + "</zelkon>");
        config.sortNodes();
        QCOMPARE(compact(config.documentElement()), "<zelkon>" + sorted + "</zelkon>");
    }

    void summary()
    {
        DeviceTree device;
        device.addFile(QStringLiteral("/usr/bin/view-runner"));
        device.addFile(QStringLiteral("/usr/bin/rdesktop-runner"));

        ConfigFile config;
        setXml(config, R"(<zelkon version="1.0" creator="zelkon" creator_version="2.0">
     <time_zone><timezone>Europe/Oslo</timezone></time_zone>
     <wireless><ssid>Caf&amp;&lt;e&gt; "net"</ssid><!-- not shown --><passphrase>secret</passphrase>
      <hide_control>true</hide_control><empty_key/></wireless>
     <sound/>
     <rdp>
      <session><name>Desk</name><password>plain</password><proxy><host>p.example</host></proxy></session>
      <session><name>Two</name></session>
     </rdp>
     <browser><general_settings><home_page>http://x/?a=1&amp;b=2</home_page></general_settings></browser>
     <vmware/>
     <xenapp/>
     <network><password>topsecret</password></network>
    </zelkon>)");
        config.findNode(QStringLiteral("rdp"), 0);

        // Secrets are masked in plain sections only; sessions are shown as stored. The empty
        // vmware section is listed because its launcher is installed.
        const QString expected = QStringLiteral(
            R"(<h3>Time Zone</h3><table><tr><td width ="50%">Time Zone</td><td>Europe/Oslo</td></tr></table>)"
            R"(<h3>Wireless</h3><table><tr><td width ="50%">SSID</td><td>Caf&amp;&lt;e&gt; &quot;net&quot;</td></tr>)"
            R"(<tr><td width ="50%">Passphrase</td><td>********</td></tr>)"
            R"(<tr><td width ="50%">Hide_control</td><td>true</td></tr>)"
            R"(<tr><td width ="50%">Empty_key</td><td></td></tr></table>)"
            R"(<h3>RDP</h3><table><tr><td width="10%"/><td width ="50%">Name</td><td>Desk</td></tr>)"
            R"(<tr><td width="10%"/><td width ="50%">Password</td><td>plain</td></tr>)"
            R"(<tr><td width="10%"/><td width ="50%">Proxy</td></tr>)"
            R"(<tr><td width="10%"/><td width ="50%">Host</td><td>p.example</td></tr><tr/><tr/>)"
            R"(<tr><td width="10%"/><td width ="50%">Name</td><td>Two</td></tr><tr/></table>)"
            R"(<h3>Web Browser</h3><table><tr><td width="10%"/><td width ="50%">General Settings</td></tr>)"
            R"(<tr><td width="10%"/><td width ="50%">Home_page</td><td>http://x/?a=1&amp;b=2</td></tr><tr/></table>)"
            R"(<h3>VMware View</h3><table></table>)"
            R"(<h3>Network</h3><table><tr><td width ="50%">Password</td><td>********</td></tr></table>)");
        QCOMPARE(config.toFormattedString(), expected);
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp"));
    }

    // A session value is all of its text, whatever nodes hold it; each label is looked up
    // anew for every rendering.
    void summaryOfSessionValues()
    {
        ConfigFile config;
        setXml(config,
               "<zelkon><rdp><session><name>A<!--x-->B<![CDATA[<C>]]></name><address/>"
               "<autostart><x>in</x>ner</autostart></session></rdp></zelkon>");
        const QString row = QStringLiteral(R"(<tr><td width="10%"/><td width ="50%">%1</td><td>%2</td></tr>)");
        const QString expected = QStringLiteral("<h3>RDP</h3><table>") + row.arg("Name", "AB&lt;C&gt;")
            + row.arg("Address", "") + row.arg("Autostart", "inner") + QStringLiteral("<tr/></table>");
        QCOMPARE(config.toFormattedString(), expected);

        MarkingTranslator marking;
        QCoreApplication::installTranslator(&marking);
        const QString marked = config.toFormattedString();
        QCoreApplication::removeTranslator(&marking);
        QVERIFY2(marked.contains(QStringLiteral("<h3>") + MarkingTranslator::mark("RDP") + "</h3>"),
                 qPrintable(marked));
        QCOMPARE(config.toFormattedString(), expected);
    }
};

QTEST_MAIN(ConfigDocumentTest)
#include "tst_configdocument.moc"
