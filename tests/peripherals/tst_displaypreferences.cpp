#include "devicetree.h"

#include "peripherals/displaypreferences.h"

#include <QtTest>

// The machine's display preference file: what its three kinds of line yield.
class TestDisplayPreferences : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void missingFileYieldsNothing();
    void singleMonitorDriverIsALinkToXgiPrefs_data();
    void singleMonitorDriverIsALinkToXgiPrefs();
};

void TestDisplayPreferences::lines_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QStringList>("resolutions");
    QTest::addColumn<QStringList>("depths");
    QTest::addColumn<QStringList>("refreshRates");

    QTest::newRow("good lines, text after the first comma ignored")
        << QByteArray("Resolution=1024x768,primary\nResolution=1920x1080,x,y\r\nDepth=16,16 Bpp\nDepth=24,24 Bpp,"
                      "extra\nRefresh=0,auto\nRefresh=60\n")
        << QStringList { "1024x768", "1920x1080" } << QStringList { "16 Bpp", "24 Bpp" }
        << QStringList { "Auto", "60" };
    QTest::newRow("bad sizes add nothing")
        << QByteArray("Resolution=0x768\nResolution=1024x0\nResolution=-1024x768\nResolution=1024x-768\n"
                      "Resolution=wide x tall\nResolution=1024by768\nResolution=1024x768x2\nResolution=\n"
                      "Resolution=x\nResolution=800x600\n")
        << QStringList { "800x600" } << QStringList() << QStringList();
    QTest::newRow("duplicate resolutions once, duplicate rates kept")
        << QByteArray("Resolution=1024x768\nResolution=1024x768,again\nRefresh=60\nRefresh= 60 ,x\nRefresh=0\n")
        << QStringList { "1024x768" } << QStringList() << QStringList { "60", "60", "Auto" };
    QTest::newRow("prefixes are case-sensitive and start the line")
        << QByteArray("resolution=1024x768\n Resolution=800x600\n#Depth=8,8 Bpp\nREFRESH=60\nRefreshRate=75\n")
        << QStringList() << QStringList() << QStringList();
    QTest::newRow("depth name as written, empty names skipped")
        << QByteArray("Depth=16, 16 Bpp \nDepth=8\nDepth=24,,x\n") << QStringList() << QStringList { " 16 Bpp " }
        << QStringList();
    QTest::newRow("no final line break") << QByteArray("Refresh=75") << QStringList() << QStringList()
                                         << QStringList { "75" };
}

void TestDisplayPreferences::lines()
{
    QFETCH(QByteArray, contents);
    DeviceTree device;
    device.addFile(DisplayPreferences::machinePath(), contents);

    const DisplayPreferences preferences;
    QTEST(preferences.resolutions(), "resolutions");
    QTEST(preferences.depths(), "depths");
    QTEST(preferences.refreshRates(), "refreshRates");
}

void TestDisplayPreferences::missingFileYieldsNothing()
{
    DeviceTree device;
    const DisplayPreferences preferences;
    QVERIFY(preferences.resolutions().isEmpty());
    QVERIFY(preferences.depths().isEmpty());
    QVERIFY(preferences.refreshRates().isEmpty());
    QVERIFY(!DisplayPreferences::isSingleMonitorDriver());
}

void TestDisplayPreferences::singleMonitorDriverIsALinkToXgiPrefs_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("single");
    QTest::newRow("relative link to prefs.xgi") << "prefs.xgi" << true;
    QTest::newRow("absolute link to a driver's prefs.xgi") << "/usr/share/tavlotc/vga-prefs.xgi" << true;
    QTest::newRow("link to another driver") << "prefs.radeon" << false;
    QTest::newRow("upper case suffix") << "prefs.XGI" << false;
    QTest::newRow("xgi in the middle") << "prefs.xgi.old" << false;
}

void TestDisplayPreferences::singleMonitorDriverIsALinkToXgiPrefs()
{
    QFETCH(QString, target);
    DeviceTree device;
    device.addFile(QStringLiteral("/etc/tavlotc-display-prefs/prefs.xgi"), "Resolution=1024x768\n");
    const QString link = device.root() + DisplayPreferences::machinePath();
    QVERIFY(QFile::link(target, link));

    QTEST(DisplayPreferences::isSingleMonitorDriver(), "single");
    // The link is read like the file, wherever it points.
    if (target == QLatin1String("prefs.xgi"))
        QCOMPARE(DisplayPreferences().resolutions(), QStringList { "1024x768" });
}

QTEST_MAIN(TestDisplayPreferences)
#include "tst_displaypreferences.moc"
