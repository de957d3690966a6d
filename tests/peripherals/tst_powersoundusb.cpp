#include "sectiontext.h"

#include "peripherals/powerframe.h"
#include "peripherals/soundframe.h"
#include "peripherals/usbframe.h"
#include "peripherals/wirelessframe.h"

#include "platform.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>
#include <memory>

namespace {
std::unique_ptr<ConfigFrame> createFrame(const QString& section)
{
    if (section == QLatin1String("power"))
        return std::make_unique<PowerFrame>();
    if (section == QLatin1String("sound"))
        return std::make_unique<SoundFrame>();
    return std::make_unique<UsbFrame>();
}

template <typename T> T* child(const QObject& frame, const char* name)
{
    T* found = frame.findChild<T*>(QLatin1String(name));
    if (!found)
        qFatal("no widget %s", name);
    return found;
}
} // namespace

class TestPowerSoundUsb : public QObject
{
    Q_OBJECT

private slots:
    void init() { Platform::instance()->setTarget(Platform::Lunvex); }

    void namesAndIcons()
    {
        const std::unique_ptr<ConfigFrame> frames[]
            = { std::make_unique<PowerFrame>(), std::make_unique<WirelessFrame>(), std::make_unique<SoundFrame>(),
                std::make_unique<UsbFrame>() };
        QStringList titles;
        for (const auto& frame : frames) {
            titles.append(frame->title());
            QVERIFY2(!frame->icon().isNull(), qPrintable(frame->title()));
            QVERIFY(frame->helpText().startsWith(QLatin1String("<b>")));
        }
        QCOMPARE(titles, QStringList({ "Power Management", "Wireless Networking", "Sound", "USB Mass Storage" }));
    }

    // Each frame loads a section, marks itself dirty so it is written back, and writes
    // what it read, less what the platform does not have.
    void loadThenSave_data()
    {
        QTest::addColumn<QString>("section");
        QTest::addColumn<int>("target");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("saved");

        const int lunvex = Platform::Lunvex;
        QTest::newRow("power") << "power" << lunvex << "<screen_saver_delay>15</screen_saver_delay>"
                               << "screen_saver_delay=15";
        QTest::newRow("power above the spin box") << "power" << lunvex << "<screen_saver_delay>150</screen_saver_delay>"
                                                  << "screen_saver_delay=99";
        QTest::newRow("power negative") << "power" << lunvex << "<screen_saver_delay>-5</screen_saver_delay>"
                                        << "screen_saver_delay=0";
        QTest::newRow("power not a number") << "power" << lunvex << "<screen_saver_delay>ten</screen_saver_delay>"
                                            << "screen_saver_delay=0";
        QTest::newRow("power ignores the others")
            << "power" << int(Platform::Ce) << "<screen_saver_delay>5</screen_saver_delay><monitor_off>9</monitor_off>"
            << "screen_saver_delay=5";
        QTest::newRow("sound on lunvex") << "sound" << lunvex
                                         << "<enable>false</enable><hide_control>true</hide_control>"
                                         << "enable=false;hide_control=true";
        QTest::newRow("sound on wes") << "sound" << int(Platform::Wes)
                                      << "<enable>false</enable><hide_control>true</hide_control>"
                                      << "enable=false";
        QTest::newRow("usb read-only") << "usb" << lunvex << "<enable>true</enable><read_only>true</read_only>"
                                       << "enable=true;read_only=true";
        QTest::newRow("usb read-only without storage")
            << "usb" << int(Platform::Wes7) << "<enable>false</enable><read_only>true</read_only>"
            << "enable=false;read_only=false";
        QTest::newRow("usb on ce") << "usb" << int(Platform::Ce) << "<enable>true</enable><read_only>true</read_only>"
                                   << "enable=true";
        for (const char* section : { "power", "sound", "usb" })
            QTest::newRow(qPrintable(QStringLiteral("%1 absent").arg(QLatin1String(section))))
                << section << lunvex << QString() << "absent";
    }

    void loadThenSave()
    {
        QFETCH(QString, section);
        QFETCH(int, target);
        QFETCH(QString, values);
        Platform::instance()->setTarget(Platform::Target(target));
        const std::unique_ptr<ConfigFrame> frame = createFrame(section);
        QSignalSpy dirty(frame.get(), &ConfigFrame::dirty);
        ConfigFile loaded;
        fillDocument(loaded, values.isNull() ? QString() : QStringLiteral("<%1>%2</%1>").arg(section, values));

        frame->loadConfig(&loaded);
        QCOMPARE(frame->isDirty(), !values.isNull());
        QCOMPARE(dirty.isEmpty(), values.isNull());
        ConfigFile saved;
        frame->saveConfig(&saved);
        QTEST(sectionText(saved, section), "saved");
        QCOMPARE(saved.currentNodePath(), ConfigFile().currentNodePath());
    }

    void platformDecidesWhatIsShown_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("hideControlShown");
        QTest::addColumn<bool>("readOnlyShown");
        QTest::addColumn<QString>("enableText");
        QTest::addColumn<QString>("readOnlyText");
        QTest::addColumn<QString>("usbHelp");

        QTest::newRow("lunvex") << int(Platform::Lunvex) << true << true << "Enable Automounts"
                                << "Read-Only Automounts"
                                << "<b>USB</b> <br> This enables or disables USB mass storage automounts and "
                                   "potentially restricts them to read only.";
        QTest::newRow("wes") << int(Platform::Wes) << false << true << "Enable"
                             << "Read only storage"
                             << "<b>USB</b> <br> This enables or disables USB mass storage and restricts USB "
                                "storage devices to read only.";
        QTest::newRow("wes7") << int(Platform::Wes7) << false << true << "Enable"
                              << "Read only storage"
                              << "<b>USB</b> <br> This enables or disables USB mass storage.";
        QTest::newRow("ce") << int(Platform::Ce) << false << false << "Enable"
                            << "Read only storage"
                            << "<b>USB</b> <br> This enables or disables USB mass storage.";
    }

    // Built on another platform first, so that only the platform change can get it right.
    void platformDecidesWhatIsShown()
    {
        QFETCH(int, target);
        Platform::instance()->setTarget(target == Platform::Lunvex ? Platform::Ce : Platform::Lunvex);
        SoundFrame sound;
        UsbFrame usb;
        Platform::instance()->setTarget(Platform::Target(target));

        QTEST(!child<QCheckBox>(sound, "SoundHideControl")->isHidden(), "hideControlShown");
        QVERIFY(!child<QCheckBox>(sound, "SoundEnable")->isHidden());
        auto* readOnly = child<QCheckBox>(usb, "UsbReadOnly");
        QTEST(!readOnly->isHidden(), "readOnlyShown");
        QTEST(child<QCheckBox>(usb, "UsbEnable")->text(), "enableText");
        QTEST(readOnly->text(), "readOnlyText");
        QTEST(usb.helpText(), "usbHelp");
        QVERIFY(!sound.isDirty());
        QVERIFY(!usb.isDirty());
    }

    void usbReadOnlyOnlyUnderEnabledStorage()
    {
        UsbFrame frame;
        auto* enable = child<QCheckBox>(frame, "UsbEnable");
        auto* readOnly = child<QCheckBox>(frame, "UsbReadOnly");
        QVERIFY(enable->isChecked());
        QVERIFY(readOnly->isEnabled());
        QVERIFY(!readOnly->isChecked());
        QVERIFY(!frame.isDirty());
        QSignalSpy dirty(&frame, &ConfigFrame::dirty);

        QTest::mouseClick(readOnly, Qt::LeftButton);
        QTest::mouseClick(enable, Qt::LeftButton);
        QVERIFY(!readOnly->isEnabled());
        QCOMPARE(dirty.size(), 2);
        ConfigFile config;
        frame.saveConfig(&config);
        QCOMPARE(sectionText(config, QStringLiteral("usb")), QStringLiteral("enable=false;read_only=false"));

        QTest::mouseClick(enable, Qt::LeftButton);
        QVERIFY(readOnly->isEnabled());
        frame.saveConfig(&config);
        QCOMPARE(sectionText(config, QStringLiteral("usb")), QStringLiteral("enable=true;read_only=true"));
    }

    void soundDefaultsAndChanges()
    {
        SoundFrame frame;
        auto* enable = child<QCheckBox>(frame, "SoundEnable");
        QVERIFY(enable->isChecked());
        QVERIFY(!child<QCheckBox>(frame, "SoundHideControl")->isChecked());
        QVERIFY(!frame.isDirty());
        QTest::mouseClick(enable, Qt::LeftButton);
        QVERIFY(frame.isDirty());
        ConfigFile config;
        frame.saveConfig(&config);
        QCOMPARE(sectionText(config, QStringLiteral("sound")), QStringLiteral("enable=false;hide_control=false"));
    }

    // Monitor-off and sleep are built and report changes but are not shown or stored.
    void powerSavesOnlyTheScreenSaver()
    {
        PowerFrame frame;
        const QList<QSpinBox*> boxes
            = { child<QSpinBox>(frame, "PowerScreenSaver"), child<QSpinBox>(frame, "PowerMonitorOff"),
                child<QSpinBox>(frame, "PowerSleep") };
        for (QSpinBox* box : boxes) {
            QCOMPARE(box->parent(), &frame);
            QCOMPARE(box->minimum(), 0);
            QCOMPARE(box->maximum(), 99);
        }
        QVERIFY(!boxes.at(0)->isHidden());
        QVERIFY(boxes.at(1)->isHidden());
        QVERIFY(boxes.at(2)->isHidden());
        QStringList hiddenLabels;
        for (const QLabel* label : frame.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (label->isHidden())
                hiddenLabels.append(label->text());
        }
        QCOMPARE(hiddenLabels, QStringList({ "Monitor off:", "Thin Client sleep:" }));

        QSignalSpy dirty(&frame, &ConfigFrame::dirty);
        boxes.at(1)->setValue(30);
        boxes.at(2)->setValue(60);
        QCOMPARE(dirty.size(), 2);
        QTest::keyClick(boxes.at(0), Qt::Key_Up);
        QCOMPARE(dirty.size(), 3);
        ConfigFile config;
        frame.saveConfig(&config);
        QCOMPARE(sectionText(config, QStringLiteral("power")), QStringLiteral("screen_saver_delay=1"));
    }
};

QTEST_MAIN(TestPowerSoundUsb)
#include "tst_powersoundusb.moc"
