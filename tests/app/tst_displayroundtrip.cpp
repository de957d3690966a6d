#include "mainwindow.h"
#include "scriptedchooser.h"

#include "device/machineroot.h"
#include "pages/configpage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "controlframe.h"
#include "platform.h"

#include <QComboBox>
#include <QDomDocument>
#include <QTextBrowser>
#include <QtTest>
#include <memory>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);
const char* const Combos[] = { "DisplayResolution", "DisplayColorDepth", "DisplayRefreshRate",
                               "DisplayMultiMonitorMode", "DisplayPrimaryMonitor" };

// The display section of the file at path, "key=value" in order, once per section found.
QStringList displaySections(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return { QStringLiteral("unreadable") };
    QStringList values;
    const QDomNodeList sections = document.documentElement().elementsByTagName(QStringLiteral("display"));
    for (int i = 0; i < sections.count(); ++i) {
        values.append(QStringLiteral("[display]"));
        for (QDomElement value = sections.at(i).firstChildElement(); !value.isNull();
             value = value.nextSiblingElement())
            values.append(value.tagName() + '=' + value.text());
    }
    return values;
}
} // namespace

// A display setting changed in the wizard on the example device reaches the saved file
// once and is shown again when that file is reopened.
class TestDisplayRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void changeSaveAndReopen_data();
    void changeSaveAndReopen();

private:
    QStringList shown() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
};

void TestDisplayRoundTrip::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    MachineRoot::setRoot(Examples + QStringLiteral("/device"));
    Platform::instance()->setStandalone(true);
    m_window = std::make_unique<MainWindow>();
    m_window->setFileChooser(std::unique_ptr<FileChooser>(m_chooser = new ScriptedChooser));
}

void TestDisplayRoundTrip::cleanup()
{
    m_window.reset();
    MachineRoot::setRoot(QString());
    m_dir.reset();
}

QStringList TestDisplayRoundTrip::shown() const
{
    QStringList texts;
    const WizardPage* page = m_window->page(MainWindow::PeripheralPage);
    for (const char* name : Combos) {
        const auto* combo = page->findChild<QComboBox*>(QLatin1String(name));
        texts.append(combo->isHidden() ? QStringLiteral("hidden") : combo->currentText());
    }
    return texts;
}

void TestDisplayRoundTrip::changeSaveAndReopen_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("example");
    QTest::addColumn<QStringList>("loaded");
    QTest::addColumn<QString>("changed");
    QTest::addColumn<QStringList>("saved");

    QTest::newRow("lunvex refresh rate") << int(Platform::Lunvex) << "lunvex-kiosk.tavlocfg"
                                         << QStringList { "1920x1080", "24 Bpp", "60", "Disable", "1" }
                                         << "DisplayRefreshRate"
                                         << QStringList {
                                                "[display]",       "resolution=1920x1080",       "color_depth=24 Bpp",
                                                "refresh_rate=75", "multi_monitor_mode=Disable", "primary_monitor=1"
                                            };
    // The example device offers only four of the default resolutions.
    QTest::newRow("wes resolution") << int(Platform::Wes) << "wes-office.tavlocfg"
                                    << QStringList { "1680x1050", "32 Bpp", "60", "Extend to the right of primary",
                                                     "hidden" }
                                    << "DisplayResolution"
                                    << QStringList { "[display]",
                                                     "resolution=1920x1080",
                                                     "color_depth=32 Bpp",
                                                     "refresh_rate=60",
                                                     "multi_monitor_mode=Extend to the right of primary",
                                                     "primary_monitor=1" };
    QTest::newRow("ce multi-monitor mode")
        << int(Platform::Ce) << "ce-terminal.tavlocfg"
        << QStringList { "1280x1024", "16 Bpp", "75", "Same as primary", "hidden" } << "DisplayMultiMonitorMode"
        << QStringList { "[display]", "resolution=1280x1024", "color_depth=16 Bpp", "refresh_rate=75",
                         "multi_monitor_mode=Extend to the right of primary" };
}

void TestDisplayRoundTrip::changeSaveAndReopen()
{
    QFETCH(int, target);
    QFETCH(QString, example);
    QFETCH(QString, changed);
    Platform::instance()->setTarget(static_cast<Platform::Target>(target));
    const QString path = m_dir->filePath(example);
    QVERIFY(QFile::copy(Examples + '/' + example, path));
    QVERIFY(m_window->openFile(path));

    m_window->showPage(MainWindow::PeripheralPage);
    auto* page = static_cast<ConfigPage*>(m_window->page(MainWindow::PeripheralPage));
    AccordionItem* display = page->accordion()->items().constFirst();
    QCOMPARE(display->content()->title(), QStringLiteral("Display"));
    page->accordion()->selectItem(display);
    QVERIFY(m_window->helpView()->toPlainText().contains(QStringLiteral("This configures the display.")));
    QTEST(shown(), "loaded");
    QVERIFY(!m_window->isWindowModified());

    QTest::keyClick(page->findChild<QComboBox*>(changed), Qt::Key_Down);
    QVERIFY(m_window->isWindowModified());
    const QString savedPath = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    m_chooser->path = savedPath;
    QVERIFY(m_window->saveAs());
    QTEST(displaySections(savedPath), "saved");

    QVERIFY(m_window->openFile(savedPath));
    // The same rows shown, now with the saved values.
    QFETCH(QStringList, loaded);
    QFETCH(QStringList, saved);
    QStringList expected;
    const QStringList keys { "resolution", "color_depth", "refresh_rate", "multi_monitor_mode", "primary_monitor" };
    for (int i = 0; i < keys.size(); ++i) {
        const QStringList value = saved.filter(QRegularExpression('^' + keys.at(i) + '='));
        expected.append(loaded.at(i) == QLatin1String("hidden") ? loaded.at(i) : value.constFirst().section('=', 1));
    }
    QCOMPARE(shown(), expected);
}

QTEST_MAIN(TestDisplayRoundTrip)
#include "tst_displayroundtrip.moc"
