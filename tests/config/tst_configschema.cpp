#include "config/configschema.h"
#include "configdocument.h"
#include "filecontents.h"
#include "schemacheck.h"

#include <QDir>
#include <QtTest>

class TestConfigSchema : public QObject
{
    Q_OBJECT

private slots:
    void shippedSchemaIsTheInstalledOne();
    void examplesAreValid_data();
    void examplesAreValid();
    void acceptedDocuments_data();
    void acceptedDocuments();
    void problemsNameTheirLine_data();
    void problemsNameTheirLine();
    void brokenSchemaFailsEveryCheck();
};

void TestConfigSchema::shippedSchemaIsTheInstalledOne()
{
    QCOMPARE(ConfigSchema::shipped(), fileContents(QStringLiteral(ZELKON_SCHEMA_FILE)));
    QVERIFY(ConfigSchema().isValid());
}

void TestConfigSchema::examplesAreValid_data()
{
    QTest::addColumn<QString>("path");
    const QDir examples(QStringLiteral(ZELKON_EXAMPLES_DIR));
    const QStringList names = examples.entryList({ QStringLiteral("*.tavlocfg") });
    QVERIFY(!names.isEmpty());
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << examples.filePath(name);
}

void TestConfigSchema::examplesAreValid()
{
    QFETCH(QString, path);
    const QStringList problems = schemaProblems(fileContents(path));
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

// What the wizard writes in its corners: empty choices, repeated desktops, printers
// without port, sessions without id, the browser's general settings, the fresh document.
void TestConfigSchema::acceptedDocuments_data()
{
    QTest::addColumn<QByteArray>("sections");
    QTest::newRow("fresh") << QByteArray();
    QTest::newRow("nothing chosen") << QByteArray("<display><resolution/><color_depth/><refresh_rate/>"
                                                  "<multi_monitor_mode/><primary_monitor></primary_monitor></display>"
                                                  "<wireless><ssid/><security/><passphrase/></wireless>"
                                                  "<keyboard><layout/></keyboard>\n");
    QTest::newRow("two desktops") << QByteArray("<desktop><kiosk_mode>true</kiosk_mode></desktop>"
                                                "<desktop><kiosk_mode>false</kiosk_mode></desktop>\n");
    QTest::newRow("printers") << QByteArray("<network_printer><printer id=\"1\"><name>A</name><address>a</address>"
                                            "</printer><printer><name>B</name><address>b</address><port>9100</port>"
                                            "<driver>PCL</driver></printer></network_printer>\n");
    QTest::newRow("browser") << QByteArray(
        "<browser><general_settings><proxy><enable>true</enable><address>p</address>"
        "<port>8080</port></proxy></general_settings><session id=\"{1}\"><name>W"
        "</name><autostart>false</autostart><url>http://x</url></session></browser>\n");
    QTest::newRow("keys in any order") << QByteArray("<usb><read_only>true</read_only><enable>true</enable></usb>\n");
    QTest::newRow("largest values") << QByteArray("<power><screen_saver_delay>99</screen_saver_delay></power>"
                                                  "<parlix><session><port>65536</port><local_port>0</local_port>"
                                                  "</session></parlix>\n");
}

void TestConfigSchema::acceptedDocuments()
{
    QFETCH(QByteArray, sections);
    const QStringList problems = schemaProblems(configDocument(sections));
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

void TestConfigSchema::problemsNameTheirLine_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<qint64>("line");
    QTest::addColumn<QString>("words");
    QTest::newRow("misspelt key") << configDocument(" <usb>\n  <enabel>true</enabel>\n </usb>\n") << qint64(4)
                                  << "enabel";
    QTest::newRow("misspelt section") << configDocument(" <dispaly/>\n") << qint64(3) << "dispaly";
    QTest::newRow("wrong type") << configDocument(" <sound>\n  <enable>yes</enable>\n </sound>\n") << qint64(4)
                                << "enable does not match its type definition: String content is not listed in the "
                                   "enumeration facet. The value is \"yes\".";
    QTest::newRow("not a number") << configDocument(
        " <power>\n\n  <screen_saver_delay>ten</screen_saver_delay>\n</power>\n")
                                  << qint64(5) << "ten";
    QTest::newRow("out of range") << configDocument(
        " <power>\n  <screen_saver_delay>150</screen_saver_delay>\n</power>\n")
                                  << qint64(4) << "150";
    QTest::newRow("port out of range") << configDocument(
        " <network_printer>\n  <printer>\n   <name>A</name>\n   <port>70000</port>\n  </printer>\n"
        " </network_printer>\n") << qint64(6)
                                       << "70000";
    QTest::newRow("not a choice") << configDocument(" <wireless>\n  <security>WPA3</security>\n </wireless>\n")
                                  << qint64(4) << "WPA3";
    QTest::newRow("wrong root") << QByteArray("<?xml version=\"1.0\"?>\n\n<config/>\n") << qint64(3) << "\"config\"";
    QTest::newRow("not well-formed") << configDocument(" <usb>\n  <enable>true</usb>\n") << qint64(4) << "well-formed";
}

void TestConfigSchema::problemsNameTheirLine()
{
    QFETCH(QByteArray, xml);
    QFETCH(qint64, line);
    QFETCH(QString, words);
    const QList<ConfigSchema::Problem> problems = ConfigSchema().check(xml);
    QVERIFY(!problems.isEmpty());
    QCOMPARE(problems.constFirst().line, line);
    QVERIFY(problems.constFirst().column > 0);
    QVERIFY2(problems.constFirst().message.contains(words), qPrintable(problems.constFirst().message));
    QVERIFY2(!problems.constFirst().message.contains('<'), "messages are plain text");
    // xmllint agrees wherever it is installed.
    if (!QStandardPaths::findExecutable(QStringLiteral("xmllint")).isEmpty())
        QVERIFY(!schemaProblems(xml).filter(QStringLiteral("xmllint")).isEmpty());
}

void TestConfigSchema::brokenSchemaFailsEveryCheck()
{
    const ConfigSchema broken("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"><xs:element/>");
    QVERIFY(!broken.isValid());
    QVERIFY(!broken.schemaError().isEmpty());
    QCOMPARE(broken.check(configDocument(QByteArray())).size(), 1);
}

QTEST_GUILESS_MAIN(TestConfigSchema)
#include "tst_configschema.moc"
