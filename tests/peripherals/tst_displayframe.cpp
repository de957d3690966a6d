#include "devicetree.h"

#include "config/configfile.h"
#include "peripherals/displayframe.h"
#include "peripherals/displaypreferences.h"

#include "platform.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

namespace {
const QByteArray TwoResolutions = "# two modes\nResolution=1024x768,60\nResolution=2560x1440\n"
                                  "Resolution=1920x1080,primary\nDepth=16,16 Bpp\nRefresh=0\nRefresh= 60 \n";

const QStringList Defaults { "800x600",  "1024x768",  "1152x864",  "1280x800",  "1280x1024", "1366x768",
                             "1440x900", "1600x1200", "1680x1050", "1920x1080", "1920x1200" };
const QStringList AllModes { "Disable",
                             "Same as primary",
                             "Extend above primary",
                             "Extend to the right of primary",
                             "Extend to the left of primary",
                             "Extend below primary" };

QStringList texts(const QComboBox* combo)
{
    QStringList list;
    for (int i = 0; i < combo->count(); ++i)
        list.append(combo->itemText(i));
    return list;
}

QStringList data(const QComboBox* combo)
{
    QStringList list;
    for (int i = 0; i < combo->count(); ++i)
        list.append(combo->itemData(i).toString());
    return list;
}

// The display section of config as "key=value" in document order; "-" when there is none.
QStringList section(ConfigFile& config)
{
    const QDomElement display = config.documentElement().firstChildElement(QStringLiteral("display"));
    if (display.isNull())
        return { QStringLiteral("-") };
    QStringList values;
    for (QDomElement value = display.firstChildElement(); !value.isNull(); value = value.nextSiblingElement())
        values.append(value.tagName() + '=' + value.text());
    return values;
}

std::unique_ptr<ConfigFile> document(const QString& displaySection)
{
    auto config = std::make_unique<ConfigFile>();
    const QString xml = "<zelkon version=\"1.0\">" + displaySection + "</zelkon>";
    if (!config->setContent(xml))
        qFatal("bad test document");
    config->setCurrentNodeAsRoot();
    return config;
}
} // namespace

class TestDisplayFrame : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void platformLists_data();
    void platformLists();
    void platformChangeKeepsIndexesByPosition();
    void loadAndSave_data();
    void loadAndSave();
    void absentSectionKeepsDefaultsAndWritesNothing();
    void onlyTheUserMarksDirty();
    void singleMonitorDriverHidesMultiMonitorSettings();
    void helpText_data();
    void helpText();

private:
    DisplayFrame* makeFrame();
    QComboBox* combo(const char* name) const
    {
        return m_frame->findChild<QComboBox*>(QLatin1String("Display") + QLatin1String(name));
    }

    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<DisplayFrame> m_frame;
};

void TestDisplayFrame::init()
{
    Platform::instance()->setStandalone(false);
    Platform::instance()->setTarget(Platform::Lunvex);
    m_device = std::make_unique<DeviceTree>();
}

void TestDisplayFrame::cleanup()
{
    m_frame.reset();
    m_device.reset();
}

DisplayFrame* TestDisplayFrame::makeFrame()
{
    m_frame = std::make_unique<DisplayFrame>();
    return m_frame.get();
}

void TestDisplayFrame::platformLists_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QByteArray>("preferences");
    QTest::addColumn<QStringList>("resolutions");
    QTest::addColumn<QStringList>("depths");
    QTest::addColumn<QStringList>("rates");
    QTest::addColumn<QStringList>("modes");
    QTest::addColumn<bool>("primaryShown");

    const QStringList autoFirst = QStringList("Auto") + Defaults;
    QTest::newRow("lunvex, no preferences")
        << int(Platform::Lunvex) << QByteArray() << autoFirst << QStringList { "8 Bpp", "16 Bpp", "24 Bpp" }
        << QStringList { "Auto", "75", "72", "60" } << AllModes << true;
    // Resolutions beyond the defaults (2560x1440) are not offered.
    QTest::newRow("lunvex, preferences") << int(Platform::Lunvex) << TwoResolutions
                                         << QStringList { "Auto", "1024x768", "1920x1080" } << QStringList { "16 Bpp" }
                                         << QStringList { "Auto", "60" } << AllModes << true;
    QTest::newRow("lunvex, preferences without usable lines")
        << int(Platform::Lunvex) << QByteArray("Resolution=0x0\nDepth=8\nRefresh=\n") << autoFirst
        << QStringList { "8 Bpp", "16 Bpp", "24 Bpp" } << QStringList { "Auto", "75", "72", "60" } << AllModes << true;
    QTest::newRow("wes") << int(Platform::Wes) << QByteArray() << Defaults << QStringList { "16 Bpp", "32 Bpp" }
                         << QStringList { "60", "72", "75" }
                         << QStringList { "Disable", "Extend above primary", "Extend to the right of primary",
                                          "Extend to the left of primary", "Extend below primary" }
                         << false;
    // The machine's resolutions narrow every platform's list; depths and rates only Lunvex's.
    QTest::newRow("wes7, preferences") << int(Platform::Wes7) << TwoResolutions
                                       << QStringList { "1024x768", "1920x1080" } << QStringList { "16 Bpp", "32 Bpp" }
                                       << QStringList { "60", "72", "75" } << AllModes << false;
    QTest::newRow("ce") << int(Platform::Ce) << QByteArray() << Defaults << QStringList { "16 Bpp", "32 Bpp" }
                        << QStringList { "60", "75" }
                        << QStringList { "Same as primary", "Extend to the right of primary" } << false;
}

void TestDisplayFrame::platformLists()
{
    QFETCH(int, target);
    QFETCH(QByteArray, preferences);
    if (!preferences.isNull())
        m_device->addFile(DisplayPreferences::machinePath(), preferences);
    Platform::instance()->setTarget(static_cast<Platform::Target>(target));
    makeFrame();

    QTEST(texts(combo("Resolution")), "resolutions");
    QTEST(texts(combo("ColorDepth")), "depths");
    QTEST(texts(combo("RefreshRate")), "rates");
    // Untranslated, the texts are the stored values.
    QTEST(data(combo("MultiMonitorMode")), "modes");
    QTEST(texts(combo("MultiMonitorMode")), "modes");
    QCOMPARE(texts(combo("PrimaryMonitor")), QStringList({ "1", "2", "3", "4" }));
    QVERIFY(!combo("MultiMonitorMode")->isHidden());
    QTEST(!combo("PrimaryMonitor")->isHidden(), "primaryShown");
    QVERIFY(!m_frame->isDirty());
    QVERIFY(!m_frame->icon().isNull());
    QCOMPARE(m_frame->title(), QStringLiteral("Display"));
}

void TestDisplayFrame::platformChangeKeepsIndexesByPosition()
{
    makeFrame();
    QSignalSpy dirty(m_frame.get(), &ConfigFrame::dirty);
    combo("Resolution")->setCurrentIndex(2);
    QCOMPARE(combo("Resolution")->currentText(), QStringLiteral("1024x768"));
    dirty.clear();
    combo("MultiMonitorMode")->setCurrentIndex(5);
    combo("RefreshRate")->setCurrentIndex(3);

    Platform::instance()->setTarget(Platform::Ce);
    QCOMPARE(combo("Resolution")->currentText(), QStringLiteral("1152x864"));
    // Past the end of the shorter lists nothing stays selected.
    QCOMPARE(combo("MultiMonitorMode")->currentIndex(), -1);
    QCOMPARE(combo("RefreshRate")->currentIndex(), -1);
    QCOMPARE(dirty.count(), 0);
    QVERIFY(m_frame->notifies());

    // Saved as shown: nothing selected is an empty value; CE has no primary monitor.
    m_frame->setDirty();
    ConfigFile config;
    m_frame->saveConfig(&config);
    QCOMPARE(section(config),
             QStringList({ "resolution=1152x864", "color_depth=16 Bpp", "refresh_rate=", "multi_monitor_mode=" }));
}

void TestDisplayFrame::loadAndSave_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<QStringList>("saved");

    QTest::newRow("lunvex") << int(Platform::Lunvex)
                            << "<display><resolution>1920x1080</resolution><color_depth>16 Bpp</color_depth>"
                               "<refresh_rate>Auto</refresh_rate><multi_monitor_mode>Extend below primary"
                               "</multi_monitor_mode><primary_monitor>3</primary_monitor></display>"
                            << QStringList { "resolution=1920x1080", "color_depth=16 Bpp", "refresh_rate=Auto",
                                             "multi_monitor_mode=Extend below primary", "primary_monitor=3" };
    // Stored values match whatever their case; what is written is the item's.
    QTest::newRow("wes, case ignored, primary written though hidden")
        << int(Platform::Wes)
        << "<display><resolution>1680X1050</resolution><color_depth>32 bpp</color_depth>"
           "<refresh_rate>75</refresh_rate><multi_monitor_mode>extend to the RIGHT of primary</multi_monitor_mode>"
           "<primary_monitor>2</primary_monitor></display>"
        << QStringList { "resolution=1680x1050", "color_depth=32 Bpp", "refresh_rate=75",
                         "multi_monitor_mode=Extend to the right of primary", "primary_monitor=2" };
    // WES has no "Same as primary", nor any of these: the defaults stay and are written.
    QTest::newRow("wes, unknown values keep the selection")
        << int(Platform::Wes)
        << "<display><resolution>1024x769</resolution><color_depth>24 Bpp</color_depth>"
           "<refresh_rate>85</refresh_rate><multi_monitor_mode>Same as primary</multi_monitor_mode>"
           "<primary_monitor>5</primary_monitor></display>"
        << QStringList { "resolution=800x600", "color_depth=16 Bpp", "refresh_rate=60", "multi_monitor_mode=Disable",
                         "primary_monitor=1" };
    QTest::newRow("ce ignores the primary monitor")
        << int(Platform::Ce)
        << "<display><resolution>1280x1024</resolution><color_depth>16 Bpp</color_depth>"
           "<refresh_rate>75</refresh_rate><multi_monitor_mode>Extend to the right of primary</multi_monitor_mode>"
           "<primary_monitor>4</primary_monitor></display>"
        << QStringList { "resolution=1280x1024", "color_depth=16 Bpp", "refresh_rate=75",
                         "multi_monitor_mode=Extend to the right of primary" };
    QTest::newRow("partial section") << int(Platform::Wes7) << "<display><refresh_rate>72</refresh_rate></display>"
                                     << QStringList { "resolution=800x600", "color_depth=16 Bpp", "refresh_rate=72",
                                                      "multi_monitor_mode=Disable", "primary_monitor=1" };
}

void TestDisplayFrame::loadAndSave()
{
    QFETCH(int, target);
    QFETCH(QString, loaded);
    Platform::instance()->setTarget(static_cast<Platform::Target>(target));
    makeFrame();
    QSignalSpy dirty(m_frame.get(), &ConfigFrame::dirty);

    std::unique_ptr<ConfigFile> config = document(loaded);
    m_frame->loadConfig(config.get());
    QVERIFY(m_frame->isDirty());
    QVERIFY(!dirty.isEmpty());

    ConfigFile fresh;
    m_frame->saveConfig(&fresh);
    QTEST(section(fresh), "saved");
    QCOMPARE(fresh.currentNodePath(), QStringLiteral("zelkon"));

    // Saving into the loaded document rewrites the section in place, each key once.
    config->setCurrentNodeAsRoot();
    m_frame->saveConfig(config.get());
    QCOMPARE(config->documentElement().elementsByTagName(QStringLiteral("display")).count(), 1);
    const QStringList inPlace = section(*config);
    QFETCH(QStringList, saved);
    for (const QString& value : qAsConst(saved)) {
        const QString key = value.section('=', 0, 0) + '=';
        QCOMPARE(inPlace.filter(QRegularExpression('^' + key)), QStringList(value));
    }
}

void TestDisplayFrame::absentSectionKeepsDefaultsAndWritesNothing()
{
    makeFrame();
    std::unique_ptr<ConfigFile> config
        = document(QStringLiteral("<power><screen_saver_delay>5</screen_saver_delay></power>"));
    m_frame->loadConfig(config.get());
    QVERIFY(!m_frame->isDirty());
    QCOMPARE(combo("Resolution")->currentText(), QStringLiteral("Auto"));
    m_frame->saveConfig(config.get());
    QCOMPARE(section(*config), QStringList("-"));
}

void TestDisplayFrame::onlyTheUserMarksDirty()
{
    makeFrame();
    QSignalSpy dirty(m_frame.get(), &ConfigFrame::dirty);
    for (const char* name : { "ColorDepth", "RefreshRate", "MultiMonitorMode", "PrimaryMonitor" }) {
        combo(name)->setCurrentIndex(1);
        QVERIFY2(dirty.isEmpty(), name);
    }
    // Repopulating (here: a language change) moves no index and marks nothing.
    QEvent languageChange(QEvent::LanguageChange);
    QApplication::sendEvent(m_frame.get(), &languageChange);
    QCOMPARE(combo("MultiMonitorMode")->currentIndex(), 1);
    QVERIFY(dirty.isEmpty());

    for (const char* name : { "ColorDepth", "RefreshRate", "MultiMonitorMode", "PrimaryMonitor" }) {
        dirty.clear();
        QTest::keyClick(combo(name), Qt::Key_Down);
        QCOMPARE(combo(name)->currentIndex(), 2);
        QVERIFY2(dirty.count() == 1, name);
    }
    QVERIFY(m_frame->isDirty());
}

void TestDisplayFrame::singleMonitorDriverHidesMultiMonitorSettings()
{
    m_device->addFile(QStringLiteral("/etc/tavlotc-display-prefs/prefs.xgi"), TwoResolutions);
    QVERIFY(QFile::link(QStringLiteral("prefs.xgi"), m_device->root() + DisplayPreferences::machinePath()));
    makeFrame();
    QVERIFY(!m_frame->multiMonitorSupported());
    QVERIFY(combo("MultiMonitorMode")->isHidden());
    QVERIFY(combo("PrimaryMonitor")->isHidden());
    QCOMPARE(texts(combo("Resolution")), QStringList({ "Auto", "1024x768", "1920x1080" }));
    QVERIFY(!m_frame->helpText().contains(QStringLiteral("Multi-monitor")));

    // Decided once: the rows stay hidden on a platform that would show them.
    Platform::instance()->setTarget(Platform::Wes7);
    QVERIFY(combo("MultiMonitorMode")->isHidden());

    std::unique_ptr<ConfigFile> config = document(QStringLiteral(
        "<display><resolution>1024x768</resolution><multi_monitor_mode>Extend above primary</multi_monitor_mode>"
        "<primary_monitor>2</primary_monitor></display>"));
    m_frame->loadConfig(config.get());
    QCOMPARE(combo("MultiMonitorMode")->currentIndex(), 0);
    QCOMPARE(combo("PrimaryMonitor")->currentIndex(), 0);
    ConfigFile saved;
    m_frame->saveConfig(&saved);
    QCOMPARE(section(saved), QStringList({ "resolution=1024x768", "color_depth=16 Bpp", "refresh_rate=60" }));
}

void TestDisplayFrame::helpText_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("ending");
    QTest::newRow("lunvex") << int(Platform::Lunvex) << "<p>Primary monitor - selects the primary monitor.</p>";
    QTest::newRow("wes") << int(Platform::Wes) << "<p>Primary monitor - selects the primary monitor.</p>";
    QTest::newRow("ce") << int(Platform::Ce) << "<p>On CE, DVI-I/VGA will be the primary monitor.</p>";
}

void TestDisplayFrame::helpText()
{
    QFETCH(int, target);
    QFETCH(QString, ending);
    makeFrame();
    Platform::instance()->setTarget(static_cast<Platform::Target>(target));
    QCOMPARE(m_frame->helpText(),
             "<b>Display</b> <br> This configures the display. <br>Please note some of the options given may not "
             "apply to this Thin Client.<p>Resolution - the screen resolution.</p><p>Color depth - the color depth of "
             "the screen.</p><p>Refresh rate - the display's refresh rate.</p><p>Multi-monitor mode -  how the screen "
             "will be arranged on multiple monitors.</p>"
                 + ending);
}

QTEST_MAIN(TestDisplayFrame)
#include "tst_displayframe.moc"
