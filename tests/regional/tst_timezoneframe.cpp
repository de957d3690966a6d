#include "regionaldocument.h"

#include "regional/model/ctimezone.h"
#include "regional/timezoneframe.h"

#include "platform.h"

#include <QComboBox>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QTextStream>

namespace {
const QString Gmt = QStringLiteral("(GMT) Greenwich Mean Time : Dublin, Edinburgh, Lisbon, London");
const QString Utc = QStringLiteral("(UTC) Dublin, Edinburgh, Lisbon, London");

QStringList texts(const QComboBox* combo)
{
    QStringList list;
    for (int index = 0; index < combo->count(); ++index)
        list.append(combo->itemText(index));
    return list;
}

// The texts the frame shows as chosen: area and city on Lunvex, the zone elsewhere.
QStringList chosen(const TimeZoneFrame& frame)
{
    if (Platform::isLunvex())
        return { frame.areaComboBox()->currentText(), frame.cityComboBox()->currentText() };
    return { frame.zoneComboBox()->currentText() };
}

void choose(QComboBox* combo, const QString& text)
{
    const int index = combo->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo->setCurrentIndex(index);
}
} // namespace

class TestTimeZoneFrame : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void describesItself();
    void windowsLists_data();
    void windowsLists();
    void lunvexListsFollowTheDeviceTable();
    void choosingAnAreaListsItsCities();
    void platformChangeKeepsWhatTheNewListOffers();
    void loadAndSave_data();
    void loadAndSave();
    void writesOnlyWhenLoadedOrChanged();
    void wes7Mapping_data();
    void wes7Mapping();
};

void TestTimeZoneFrame::init()
{
    Platform::instance()->setStandalone(false);
    Platform::instance()->setTarget(Platform::Lunvex);
}

void TestTimeZoneFrame::describesItself()
{
    const TimeZoneFrame frame;
    QCOMPARE(frame.title(), QStringLiteral("Time Zone"));
    QCOMPARE(frame.helpText(),
             QStringLiteral("<b>Time Zone</b> <br> This sets the Time Zone used by the Thin Client."));
    QVERIFY(!frame.icon().pixmap(24).isNull());
}

void TestTimeZoneFrame::windowsLists_data()
{
    QTest::addColumn<int>("platform");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("chosen");

    QTest::newRow("CE") << int(Platform::Ce) << 91
                        << QStringList { "(GMT-12:00) International Date Line West", "(GMT-11:00) Midway Island, Samoa",
                                         "(GMT-10:00) Hawaii" }
                        << "(GMT+13:00) Nuku'alofa" << Gmt;
    QTest::newRow("WES") << int(Platform::Wes) << 98
                         << QStringList { "(GMT-12:00) International Date Line West",
                                          "(GMT-11:00) Coordinated Universal Time-11", "(GMT-11:00) Samoa" }
                         << "(GMT+13:00) Nuku'alofa" << Gmt;
    QTest::newRow("WES7") << int(Platform::Wes7) << 98
                          << QStringList { "(UTC-12:00) International Date Line West",
                                           "(UTC-11:00) Coordinated Universal Time-11", "(UTC-11:00) Samoa",
                                           "(UTC-10:00) Hawaii" }
                          << "(UTC+13:00) Nuku'alofa" << Utc;
}

// Built on Lunvex, so the Windows list comes from the platform change.
void TestTimeZoneFrame::windowsLists()
{
    QFETCH(int, platform);
    QFETCH(QStringList, first);
    const TimeZoneFrame frame;
    Platform::instance()->setTarget(Platform::Target(platform));

    QStringList list = texts(frame.zoneComboBox());
    QTEST(list.size(), "count");
    QCOMPARE(list.mid(0, first.size()), first);
    QTEST(list.constLast(), "last");
    QVERIFY(!list.contains(QStringLiteral("OVERFLOW CHECK")));
    QCOMPARE(list.removeDuplicates(), 0);
    QTEST(frame.zoneComboBox()->currentText(), "chosen");
    QTEST(frame.zoneComboBox()->toolTip(), "chosen");
    QVERIFY(!frame.zoneComboBox()->isHidden());
    QVERIFY(frame.areaComboBox()->isHidden() && frame.cityComboBox()->isHidden());
}

// The Lunvex lists and the device's table hold the same zones in the same order.
void TestTimeZoneFrame::lunvexListsFollowTheDeviceTable()
{
    QFile file(QStringLiteral(ZELKON_EXAMPLES_DIR "/device/usr/share/tavlotc-zelkon-tools/time_zones.tab"));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QTextStream stream(&file);
    QStringList tableAreas;
    QHash<QString, QStringList> tableCities;
    for (const CTimeZone::tzdata_t& entry : CTimeZone::parseTable(stream)) {
        if (!tableAreas.contains(entry.area))
            tableAreas.append(entry.area);
        tableCities[entry.area].append(entry.city);
    }

    Platform::instance()->setTarget(Platform::Wes);
    const TimeZoneFrame frame;
    Platform::instance()->setTarget(Platform::Lunvex);
    QVERIFY(frame.zoneComboBox()->isHidden());
    QCOMPARE(texts(frame.areaComboBox()), tableAreas);
    QCOMPARE(tableAreas.mid(0, 3), QStringList({ "Europe", "Asia", "America" }));
    QCOMPARE(chosen(frame), QStringList({ "Europe", "London" }));

    int zones = 0;
    for (const QString& area : qAsConst(tableAreas)) {
        choose(frame.areaComboBox(), area);
        QCOMPARE(texts(frame.cityComboBox()), tableCities.value(area));
        zones += frame.cityComboBox()->count();
    }
    QCOMPARE(zones, 406);
}

void TestTimeZoneFrame::choosingAnAreaListsItsCities()
{
    TimeZoneFrame frame;
    QSignalSpy dirty(&frame, &ConfigFrame::dirty);
    choose(frame.areaComboBox(), QStringLiteral("Asia"));
    QCOMPARE(texts(frame.cityComboBox()).mid(0, 2), QStringList({ "Dubai", "Kabul" }));
    QCOMPARE(chosen(frame), QStringList({ "Asia", "Dubai" }));
    QVERIFY(frame.isDirty());
    QVERIFY(!dirty.isEmpty());

    dirty.clear();
    choose(frame.cityComboBox(), QStringLiteral("Kabul"));
    QCOMPARE(dirty.count(), 1);
}

void TestTimeZoneFrame::platformChangeKeepsWhatTheNewListOffers()
{
    TimeZoneFrame frame;
    QSignalSpy dirty(&frame, &ConfigFrame::dirty);
    choose(frame.areaComboBox(), QStringLiteral("Asia"));
    choose(frame.cityComboBox(), QStringLiteral("Kabul"));
    dirty.clear();

    const QString amsterdam = QStringLiteral("(GMT+01:00) Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna");
    Platform::instance()->setTarget(Platform::Ce);
    QCOMPARE(chosen(frame), QStringList { Gmt });
    choose(frame.zoneComboBox(), amsterdam);
    dirty.clear();
    Platform::instance()->setTarget(Platform::Wes);
    QCOMPARE(chosen(frame), QStringList { amsterdam });
    Platform::instance()->setTarget(Platform::Wes7);
    QCOMPARE(chosen(frame), QStringList { Utc });
    Platform::instance()->setTarget(Platform::Lunvex);
    QCOMPARE(chosen(frame), QStringList({ "Asia", "Kabul" }));
    QCOMPARE(dirty.count(), 0);
}

void TestTimeZoneFrame::loadAndSave_data()
{
    QTest::addColumn<int>("platform");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QStringList>("chosen");
    QTest::addColumn<QStringList>("saved");

    const auto lunvex = int(Platform::Lunvex);
    QTest::newRow("Lunvex") << lunvex << "<area>Asia</area><city>Kabul</city>" << QStringList { "Asia", "Kabul" }
                            << QStringList { "area=Asia", "city=Kabul" };
    QTest::newRow("Lunvex, city with a slash") << lunvex << "<area>America</area><city>Argentina/Buenos_Aires</city>"
                                               << QStringList { "America", "Argentina/Buenos_Aires" }
                                               << QStringList { "area=America", "city=Argentina/Buenos_Aires" };
    // Positions are applied unguarded: what a list lacks leaves it with nothing chosen.
    QTest::newRow("Lunvex, unknown area") << lunvex << "<area>Atlantis</area><city>Kabul</city>"
                                          << QStringList { "", "" } << QStringList { "area=", "city=" };
    QTest::newRow("Lunvex, unknown city") << lunvex << "<area>Asia</area><city>Atlantis</city>"
                                          << QStringList { "Asia", "" } << QStringList { "area=Asia", "city=" };
    QTest::newRow("Lunvex, other case") << lunvex << "<area>asia</area><city>kabul</city>" << QStringList { "", "" }
                                        << QStringList { "area=", "city=" };
    QTest::newRow("Lunvex, Windows value")
        << lunvex << "<timezone>(GMT) Monrovia, Reykjavik</timezone>" << QStringList { "", "" }
        << QStringList { "timezone=(GMT) Monrovia, Reykjavik", "area=", "city=" };

    const QString dateline = QStringLiteral("(GMT-12:00) International Date Line West");
    QTest::newRow("CE") << int(Platform::Ce) << "<timezone>(GMT-05:00) Eastern Time (US &amp; Canada)</timezone>"
                        << QStringList { "(GMT-05:00) Eastern Time (US & Canada)" }
                        << QStringList { "timezone=(GMT-05:00) Eastern Time (US & Canada)" };
    QTest::newRow("WES: the display name") << int(Platform::Wes) << "<timezone>" + dateline + "</timezone>"
                                           << QStringList { dateline } << QStringList { "timezone=" + dateline };
    QTest::newRow("WES, unknown") << int(Platform::Wes) << "<timezone>Dateline Standard Time</timezone>"
                                  << QStringList { "" } << QStringList { "timezone=" };

    const auto wes7 = int(Platform::Wes7);
    const QString wes7Dateline = QStringLiteral("(UTC-12:00) International Date Line West");
    QTest::newRow("WES7: the zone id") << wes7 << "<timezone>Dateline Standard Time</timezone>"
                                       << QStringList { wes7Dateline }
                                       << QStringList { "timezone=Dateline Standard Time" };
    QTest::newRow("WES7, a display name")
        << wes7 << "<timezone>" + wes7Dateline + "</timezone>" << QStringList { wes7Dateline }
        << QStringList { "timezone=Dateline Standard Time" };
    QTest::newRow("WES7, an id of no entry") << wes7 << "<timezone>Kaliningrad Standard Time</timezone>"
                                             << QStringList { "" } << QStringList { "timezone=" };
    QTest::newRow("WES7, a WES name") << wes7 << "<timezone>" + dateline + "</timezone>" << QStringList { "" }
                                      << QStringList { "timezone=" };
}

void TestTimeZoneFrame::loadAndSave()
{
    QFETCH(int, platform);
    QFETCH(QString, section);
    Platform::instance()->setTarget(Platform::Target(platform));
    TimeZoneFrame frame;
    ConfigFile config;
    setSections(config, "<keyboard><layout>Norway</layout></keyboard><time_zone>" + section + "</time_zone>");

    frame.loadConfig(&config);
    QTEST(chosen(frame), "chosen");
    QVERIFY(frame.isDirty());

    config.setCurrentNodeAsRoot();
    frame.saveConfig(&config);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QTEST(sectionValues(config, QStringLiteral("time_zone")), "saved");
    QCOMPARE(sectionValues(config, QStringLiteral("keyboard")), QStringList { "layout=Norway" });
}

void TestTimeZoneFrame::writesOnlyWhenLoadedOrChanged()
{
    Platform::instance()->setTarget(Platform::Wes7);
    TimeZoneFrame frame;
    ConfigFile config;
    setSections(config, QStringLiteral("<keyboard><layout>Norway</layout></keyboard>"));
    frame.loadConfig(&config);
    QVERIFY(!frame.isDirty());
    QCOMPARE(chosen(frame), QStringList { Utc });
    config.setCurrentNodeAsRoot();
    frame.saveConfig(&config);
    QCOMPARE(sectionValues(config, QStringLiteral("time_zone")), QStringList { "absent" });

    choose(frame.zoneComboBox(), QStringLiteral("(UTC+13:00) Nuku'alofa"));
    frame.saveConfig(&config);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QCOMPARE(sectionValues(config, QStringLiteral("time_zone")), QStringList { "timezone=Tonga Standard Time" });
}

void TestTimeZoneFrame::wes7Mapping_data()
{
    QTest::addColumn<int>("platform");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("toId");
    QTest::addColumn<QString>("mapped");

    const auto wes7 = int(Platform::Wes7);
    QTest::newRow("to id") << wes7 << "(UTC-11:00) Samoa" << true << "Samoa Standard Time";
    QTest::newRow("to name") << wes7 << "Samoa Standard Time" << false << "(UTC-11:00) Samoa";
    QTest::newRow("last row") << wes7 << "Tonga Standard Time" << false << "(UTC+13:00) Nuku'alofa";
    QTest::newRow("unknown name") << wes7 << "(UTC+14:00) Kiritimati Island" << true << "(UTC+14:00) Kiritimati Island";
    QTest::newRow("unknown id") << wes7 << "Line Islands Standard Time" << false << "Line Islands Standard Time";
    QTest::newRow("an id is no name") << wes7 << "Samoa Standard Time" << true << "Samoa Standard Time";
    QTest::newRow("other case") << wes7 << "samoa standard time" << false << "samoa standard time";
    QTest::newRow("WES") << int(Platform::Wes) << "(UTC-11:00) Samoa" << true << "(UTC-11:00) Samoa";
    QTest::newRow("CE") << int(Platform::Ce) << "Samoa Standard Time" << false << "Samoa Standard Time";
    QTest::newRow("Lunvex") << int(Platform::Lunvex) << "(UTC-11:00) Samoa" << true << "(UTC-11:00) Samoa";
}

void TestTimeZoneFrame::wes7Mapping()
{
    QFETCH(int, platform);
    QFETCH(QString, text);
    QFETCH(bool, toId);
    Platform::instance()->setTarget(Platform::Target(platform));
    const TimeZoneFrame frame;
    QTEST(frame.WES7TimeZoneMapping(text, toId), "mapped");
}

QTEST_MAIN(TestTimeZoneFrame)
#include "tst_timezoneframe.moc"
