#include "config/configfile.h"
#include "printers/model/printermodel.h"
#include "printers/networkprinterframe.h"

#include <QSignalSpy>
#include <QUuid>
#include <QtTest>

namespace {
// Two printers as an administrator's file has them: one with everything, one bare.
const QByteArray TwoPrinters = R"(<zelkon version="1.0">
 <network_printer>
  <printer id="{00000000-0000-0000-0000-000000000001}">
   <name>Laser</name><address>prn.example.com</address><port>9100</port><driver>HP LaserJet 4250 PCL6</driver>
  </printer>
  <printer id="{00000000-0000-0000-0000-000000000002}"><name>Ink</name><address>10.0.0.7</address></printer>
 </network_printer>
</zelkon>)";

void setDocument(ConfigFile& config, const QByteArray& xml)
{
    QVERIFY(config.setContent(xml));
    config.setCurrentNodeAsRoot();
}

// Each "printer" element as "name=... address=..." in the order of its children.
QStringList printerRecords(const ConfigFile& config)
{
    QStringList records;
    const QDomNodeList printers = config.documentElement().elementsByTagName(QStringLiteral("printer"));
    for (int i = 0; i < printers.size(); ++i) {
        QStringList fields;
        for (QDomElement child = printers.at(i).firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            fields << child.tagName() + QLatin1Char('=') + child.text();
        records << fields.join(QLatin1Char(' '));
    }
    records.sort();
    return records;
}
} // namespace

class PrinterModelTest : public QObject
{
    Q_OBJECT

private slots:
    void summaryLine_data()
    {
        QTest::addColumn<QString>("port");
        QTest::addColumn<QString>("driver");
        QTest::addColumn<QString>("line");
        QTest::newRow("bare") << QString() << QString() << "Laser\tprn.example.com";
        QTest::newRow("port") << "9100" << QString() << "Laser\tprn.example.com:9100";
        QTest::newRow("driver") << QString() << "HP PCL6"
                                << "Laser\tprn.example.com\tHP PCL6";
        QTest::newRow("both") << "9100"
                              << "HP PCL6"
                              << "Laser\tprn.example.com:9100\tHP PCL6";
    }

    void summaryLine()
    {
        QFETCH(QString, port);
        QFETCH(QString, driver);
        PrinterModel model;
        const QString id = model.add(QStringLiteral("Laser"), QStringLiteral("prn.example.com"), port, driver);
        QTEST(model.item(id), "line");
        QCOMPARE(model.item(QStringLiteral("{unknown}")), QString());
    }

    // Port and driver are written only when set, and come back as they were.
    void roundTripThroughTheFrame()
    {
        ConfigFile loaded;
        setDocument(loaded, TwoPrinters);
        NetworkPrinterFrame frame;
        QSignalSpy refreshed(&frame.printerModel(), &PrinterModel::newConfigLoaded);
        frame.loadConfig(&loaded);
        QVERIFY(frame.isDirty());
        QCOMPARE(refreshed.count(), 1);
        PrinterModel& model = frame.printerModel();
        QCOMPARE(model.count(), 2);
        // Ids are made anew, not taken from the file.
        QVERIFY(!model.printers().contains(QStringLiteral("{00000000-0000-0000-0000-000000000001}")));
        QVERIFY(!QUuid(model.printers().firstKey()).isNull());
        QStringList lines;
        for (const QString& id : model.printers().keys())
            lines << model.item(id);
        lines.sort();
        QCOMPARE(lines, QStringList({ "Ink\t10.0.0.7", "Laser\tprn.example.com:9100\tHP LaserJet 4250 PCL6" }));

        ConfigFile saved;
        frame.saveConfig(&saved);
        QVERIFY(saved.currentNode() == saved.documentElement());
        QCOMPARE(printerRecords(saved),
                 QStringList({ "name=Ink address=10.0.0.7",
                               "name=Laser address=prn.example.com port=9100 driver=HP LaserJet 4250 PCL6" }));
        // Each record carries its id in the model, in the model's order.
        const QDomNodeList printers = saved.documentElement().elementsByTagName(QStringLiteral("printer"));
        QCOMPARE(printers.at(0).toElement().attribute(QStringLiteral("id")), model.printers().firstKey());
        QCOMPARE(printers.at(1).toElement().attribute(QStringLiteral("id")), model.printers().lastKey());
    }

    // Loading adds to what is there, and saving appends to what is there.
    void loadingAndSavingAppend()
    {
        ConfigFile config;
        setDocument(config, TwoPrinters);
        PrinterModel model;
        for (int load = 0; load < 2; ++load) {
            config.setCurrentNodeAsRoot();
            QVERIFY(config.findNode(QStringLiteral("network_printer"), 0));
            model.loadConfig(&config);
        }
        QCOMPARE(model.count(), 4);

        model.saveConfig(&config);
        QCOMPARE(config.namedNodeCount(QStringLiteral("printer")), 6);
    }

    void sectionWithoutPrinters_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::newRow("empty") << QByteArray("<network_printer/>");
        QTest::newRow("other children") << QByteArray("<network_printer><note>x</note><!-- c --></network_printer>");
    }

    void sectionWithoutPrinters()
    {
        QFETCH(QByteArray, section);
        ConfigFile config;
        setDocument(config, "<zelkon>" + section + "</zelkon>");
        NetworkPrinterFrame frame;
        QSignalSpy refreshed(&frame.printerModel(), &PrinterModel::newConfigLoaded);
        frame.loadConfig(&config);
        QCOMPARE(frame.printerModel().count(), 0);
        QCOMPARE(refreshed.count(), 1);

        // Loaded, so written back: an empty section.
        ConfigFile saved;
        frame.saveConfig(&saved);
        const QDomElement written = saved.documentElement().firstChildElement();
        QCOMPARE(written.tagName(), QStringLiteral("network_printer"));
        QVERIFY(!written.hasChildNodes());
    }

    void absentSectionIsNeitherLoadedNorWritten()
    {
        ConfigFile config;
        NetworkPrinterFrame frame;
        frame.loadConfig(&config);
        QVERIFY(!frame.isDirty());
        frame.printerModel().add(QStringLiteral("A"), QStringLiteral("a"), QString(), QString());
        frame.saveConfig(&config);
        QVERIFY(!config.documentElement().hasChildNodes());
    }
};

QTEST_MAIN(PrinterModelTest)
#include "tst_printermodel.moc"
