#include "documentcontroller.h"
#include "mainwindow.h"
#include "scriptedchooser.h"

#include "devicetree.h"
#include "faketool.h"

#include "pages/zelkonperipheralpage.h"

#include "accordionitem.h"
#include "platform.h"

#include <QCheckBox>
#include <QDomDocument>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>
#include <memory>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);
const QStringList OurSections = { "power", "wireless", "sound", "usb" };

QDomDocument parse(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        qFatal("cannot read %s", qPrintable(path));
    return document;
}

// The document without the peripheral sections this test edits, as text.
QString withoutOurSections(const QDomDocument& document)
{
    // DOM nodes share their data; a deep copy keeps the caller's document whole.
    QDomElement root = document.documentElement().cloneNode(true).toElement();
    for (const QString& name : OurSections) {
        while (!root.firstChildElement(name).isNull())
            root.removeChild(root.firstChildElement(name));
    }
    QString text;
    QTextStream stream(&text);
    root.save(stream, 1);
    return text;
}
} // namespace

// A setting changed in each peripheral frame of the window reaches the saved file once and
// comes back when the file is reopened.
class TestPeripheralSettings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        // Without launchers the connection list would be empty and switch kiosk mode off.
        m_device = std::make_unique<DeviceTree>();
        m_device->addConnectionLaunchers();
        m_oldCurrent = QDir::currentPath();
        QDir::setCurrent(m_dir->path());
    }

    void cleanup()
    {
        QDir::setCurrent(m_oldCurrent);
        m_device.reset();
        m_dir.reset();
    }

    void editSaveAndReopen_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<QString>("example");
        QTest::addColumn<bool>("wireless");
        QTest::addColumn<int>("delay");
        QTest::addColumn<QString>("readOnly");

        // The Lunvex kiosk's read-only mark counts once its storage is switched on.
        QTest::newRow("lunvex") << int(Platform::Lunvex) << "lunvex-kiosk.tavlocfg" << true << 1 << "true";
        QTest::newRow("wes") << int(Platform::Wes) << "wes-office.tavlocfg" << true << 16 << "false";
        QTest::newRow("ce") << int(Platform::Ce) << "ce-terminal.tavlocfg" << false << 11 << QString();
    }

    void editSaveAndReopen()
    {
        QFETCH(int, target);
        QFETCH(QString, example);
        QFETCH(bool, wireless);
        QFETCH(int, delay);
        QFETCH(QString, readOnly);
        // The device's tools: its registry says it has wireless, and its current settings
        // (fetched before loading on Windows platforms) are left alone.
        FakeTool tregctl(QStringLiteral("tregctl"), 0);
        FakeTool settings(QStringLiteral("tavlosettings"), 0);
        Platform::instance()->setStandalone(false);
        Platform::instance()->setTarget(Platform::Target(target));
        const QString source = m_dir->filePath(example);
        QVERIFY(QFile::copy(Examples + '/' + example, source));
        const QDomDocument original = parse(source);

        MainWindow window;
        auto* chooser = new ScriptedChooser;
        window.setFileChooser(std::unique_ptr<FileChooser>(chooser));
        QVERIFY(window.openFile(source));
        window.showPage(MainWindow::PeripheralPage);
        auto* page = static_cast<ZelkonPeripheralPage*>(window.page(MainWindow::PeripheralPage));
        QCOMPARE(!page->item(ZelkonPeripheralPage::Peripheral::Wireless)->isHidden(), wireless);

        QTest::keyClick(page->findChild<QSpinBox*>(QStringLiteral("PowerScreenSaver")), Qt::Key_Up);
        if (wireless)
            QTest::keyClicks(page->findChild<QLineEdit*>(QStringLiteral("WirelessSsid")), QStringLiteral("-5G"));
        auto* sound = page->findChild<QCheckBox*>(QStringLiteral("SoundEnable"));
        const bool soundOn = !sound->isChecked();
        QTest::mouseClick(sound, Qt::LeftButton);
        auto* usb = page->findChild<QCheckBox*>(QStringLiteral("UsbEnable"));
        const bool usbOn = !usb->isChecked();
        QTest::mouseClick(usb, Qt::LeftButton);
        QVERIFY(window.isWindowModified());

        chooser->path = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
        QVERIFY(window.saveAs());
        const QDomDocument saved = parse(chooser->path);
        const QDomElement root = saved.documentElement();
        for (const QString& name : OurSections) {
            const bool expected = name != QLatin1String("wireless") || wireless;
            QCOMPARE(root.elementsByTagName(name).size(), expected ? 1 : 0);
        }
        const auto value = [&root](const char* section, const char* key) {
            const QDomElement element
                = root.firstChildElement(QLatin1String(section)).firstChildElement(QLatin1String(key));
            return element.isNull() ? QString() : element.text();
        };
        QCOMPARE(value("power", "screen_saver_delay"), QString::number(delay));
        QCOMPARE(value("sound", "enable"), QLatin1String(soundOn ? "true" : "false"));
        QCOMPARE(value("usb", "enable"), QLatin1String(usbOn ? "true" : "false"));
        QCOMPARE(value("usb", "read_only"), readOnly);
        if (wireless) {
            QVERIFY(value("wireless", "ssid").endsWith(QLatin1String("-5G")));
            QCOMPARE(value("wireless", "passphrase"),
                     original.documentElement().firstChildElement("wireless").firstChildElement("passphrase").text());
        }
        // Nothing else moved.
        QCOMPARE(withoutOurSections(saved), withoutOurSections(original));

        // Reopened into fresh pages, the frames show what was saved.
        QVERIFY(window.openFile(chooser->path));
        page = static_cast<ZelkonPeripheralPage*>(window.page(MainWindow::PeripheralPage));
        QVERIFY(!window.isWindowModified());
        QCOMPARE(page->findChild<QSpinBox*>(QStringLiteral("PowerScreenSaver"))->value(), delay);
        QCOMPARE(page->findChild<QCheckBox*>(QStringLiteral("SoundEnable"))->isChecked(), soundOn);
        QCOMPARE(page->findChild<QCheckBox*>(QStringLiteral("UsbEnable"))->isChecked(), usbOn);
        if (wireless)
            QCOMPARE(page->findChild<QLineEdit*>(QStringLiteral("WirelessSsid"))->text(), value("wireless", "ssid"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    QString m_oldCurrent;
};

QTEST_MAIN(TestPeripheralSettings)
#include "tst_peripheralsettings.moc"
