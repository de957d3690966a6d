#include "devicetree.h"

#include "regional/model/ctimezone.h"

#include <QTest>
#include <QTextStream>

namespace {
const QString TablePath = QStringLiteral("/usr/share/tavlotc-zelkon-tools/time_zones.tab");

// Europe/Paris comes twice, and three Linux zones share one Windows zone.
const QByteArray Table = "# Linux zone, country, Windows zone\n"
                         "\n"
                         "Europe\tMadrid\tES\tRomance Standard Time\n"
                         "Europe\tParis\tFR\tRomance Standard Time\n"
                         "Africa\tCeuta\tES\tRomance Standard Time\n"
                         "Europe\tmadrid\tXX\tLater Standard Time\n"
                         "America\tArgentina/Buenos_Aires\tAR\tArgentina Standard Time\n"
                         "UTC\tUTC\t\tUTC\n"
                         "Europe\tParis\tFR\tLater Standard Time\n";

QString entryText(const CTimeZone::tzdata_t& entry)
{
    return entry.area + '|' + entry.city + '|' + entry.windowsName;
}
} // namespace

class TestCTimeZone : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void parseTable_data();
    void parseTable();
    void fromLinux_data();
    void fromLinux();
    void fromWindows_data();
    void fromWindows();
    void failedLookupEmptiesTheZone();
    void listsNameEachZoneOnce();
};

// The table is read once per process, so reading it is checked here, before the lookups
// that need it.
void TestCTimeZone::initTestCase()
{
    DeviceTree device;
    int code = 0;
    try {
        CTimeZone zone;
    } catch (const CTimeZone::ExceptionType& error) {
        code = error.code();
    }
    QCOMPARE(code, 1);

    // The failed attempt is not remembered: the next construction reads the table.
    device.addFile(TablePath, Table);
    CTimeZone madrid(QStringLiteral("Europe"), QStringLiteral("Madrid"));
    QCOMPARE(madrid.toWindows(), QStringLiteral("Romance Standard Time"));

    // And it is never read again.
    device.removeFile(TablePath);
    CTimeZone again(QStringLiteral("Argentina Standard Time"));
    QCOMPARE(again.toLinux(), QStringLiteral("America/Argentina/Buenos_Aires"));
}

void TestCTimeZone::parseTable_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("file order, country and further fields unused")
        << QByteArray("Europe\tMadrid\tES\tRomance Standard Time\tspare\nAsia\tDubai\tAE\tArabian Standard Time\n")
        << QStringList { "Europe|Madrid|Romance Standard Time", "Asia|Dubai|Arabian Standard Time" };
    QTest::newRow("comments and blank lines")
        << QByteArray("# a\tcomment\twith\ttabs\n\n  \t \n  # indented\tcomment\tx\ty\nAsia\tDubai\tAE\tArabian\n")
        << QStringList { "Asia|Dubai|Arabian" };
    QTest::newRow("no tab") << QByteArray("Europe Madrid ES Romance\n") << QStringList();
    QTest::newRow("fewer than four fields")
        << QByteArray("Europe\tMadrid\tES\nEurope\tMadrid\nEurope\t\n") << QStringList();
    QTest::newRow("empty fields kept") << QByteArray("\tMadrid\t\tRomance\nEurope\t\tES\t\n")
                                       << QStringList { "|Madrid|Romance", "Europe||" };
    QTest::newRow("CRLF and stray spaces") << QByteArray("Europe \tMadrid\tES\tRomance Standard Time\r\n")
                                           << QStringList { "Europe|Madrid|Romance Standard Time" };
    QTest::newRow("UTF-8") << QByteArray("America\tS\xc3\xa3o_Paulo\tBR\tE. South America Standard Time\n")
                           << QStringList { QString::fromUtf8(
                                  "America|S\xc3\xa3o_Paulo|E. South America Standard Time") };
}

void TestCTimeZone::parseTable()
{
    QFETCH(QByteArray, text);
    QTextStream stream(text);
    QStringList entries;
    for (const CTimeZone::tzdata_t& entry : CTimeZone::parseTable(stream))
        entries.append(entryText(entry));
    QTEST(entries, "entries");
}

void TestCTimeZone::fromLinux_data()
{
    QTest::addColumn<QStringList>("arguments"); // one joined name or an area and a city
    QTest::addColumn<bool>("found");
    QTest::addColumn<QString>("linuxName");
    QTest::addColumn<QString>("windows");

    const QString romance = QStringLiteral("Romance Standard Time");
    QTest::newRow("pair") << QStringList { "Europe", "Madrid" } << true << "Europe/Madrid" << romance;
    // The first entry that matches wins, in its own spelling.
    QTest::newRow("pair in other case") << QStringList { "EUROPE", "mAdRiD" } << true << "Europe/Madrid" << romance;
    QTest::newRow("joined") << QStringList { "Europe/Madrid" } << true << "Europe/Madrid" << romance;
    QTest::newRow("joined, city with a slash")
        << QStringList { "america/argentina/buenos_aires" } << true << "America/Argentina/Buenos_Aires"
        << "Argentina Standard Time";
    QTest::newRow("no slash: area and city") << QStringList { "utc" } << true << "UTC/UTC"
                                             << "UTC";
    QTest::newRow("unknown city") << QStringList { "Europe", "Atlantis" } << false << ""
                                  << "";
    QTest::newRow("area alone") << QStringList { "Europe/" } << false << ""
                                << "";
    QTest::newRow("empty") << QStringList { "" } << false << ""
                           << "";
}

void TestCTimeZone::fromLinux()
{
    QFETCH(QStringList, arguments);
    CTimeZone zone;
    const bool found
        = arguments.size() == 1 ? zone.fromLinux(arguments.at(0)) : zone.fromLinux(arguments.at(0), arguments.at(1));
    QTEST(found, "found");
    QTEST(zone.toLinux(), "linuxName");
    QTEST(zone.toWindows(), "windows");

    QString area = QStringLiteral("stale");
    QString city = QStringLiteral("stale");
    zone.toLinuxPair(&area, &city);
    QTEST(area.isEmpty() ? QString() : area + '/' + city, "linuxName");
}

void TestCTimeZone::fromWindows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("linuxName");

    QTest::newRow("shared by three zones: the first") << "Romance Standard Time"
                                                      << "Europe/Madrid";
    QTest::newRow("other case") << "romance STANDARD time"
                                << "Europe/Madrid";
    QTest::newRow("first of a later name") << "Later Standard Time"
                                           << "Europe/madrid";
    QTest::newRow("unknown") << "Atlantis Standard Time"
                             << "";
}

void TestCTimeZone::fromWindows()
{
    QFETCH(QString, name);
    QFETCH(QString, linuxName);
    CTimeZone zone(name);
    QCOMPARE(zone.toLinux(), linuxName);
    QCOMPARE(zone.toWindows().compare(name, Qt::CaseInsensitive) == 0, !linuxName.isEmpty());
    QCOMPARE(zone.fromWindows(name), !linuxName.isEmpty());
}

void TestCTimeZone::failedLookupEmptiesTheZone()
{
    CTimeZone zone;
    QVERIFY(zone.fromLinux(QStringLiteral("Europe/Paris")));
    QVERIFY(!zone.fromLinux(QStringLiteral("Europe/Atlantis")));
    QCOMPARE(zone.toWindows(), QString());
    QCOMPARE(zone.toLinux(), QString());
    QVERIFY(zone.fromLinux(QStringLiteral("Europe/Paris")));
    QVERIFY(!zone.fromWindows(QStringLiteral("Atlantis")));
    QCOMPARE(zone.toLinux(), QString());
}

void TestCTimeZone::listsNameEachZoneOnce()
{
    const CTimeZone zone;
    QCOMPARE(zone.linuxList(),
             QStringList({ "Europe/Madrid", "Europe/Paris", "Africa/Ceuta", "Europe/madrid",
                           "America/Argentina/Buenos_Aires", "UTC/UTC" }));
    QCOMPARE(zone.windowsList(),
             QStringList({ "Romance Standard Time", "Later Standard Time", "Argentina Standard Time", "UTC" }));
}

QTEST_GUILESS_MAIN(TestCTimeZone)
#include "tst_ctimezone.moc"
