#include "devicetree.h"
#include "faketool.h"
#include "filecontents.h"
#include "languagemanager.h"
#include "languagemenu.h"
#include "mainwindow.h"
#include "markingtranslator.h"
#include "showntexts.h"

#include "connections/editing/connectioneditor.h"
#include "connections/editing/connectionsframe.h"
#include "connections/model/connectionmodel.h"
#include "pages/configpage.h"
#include "pages/zelkonsummarypage.h"

#include "platform.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTextBrowser>
#include <QtTest>
#include <memory>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);

// Each language is named in itself in the Language menu, whatever the language shown.
bool isData(const QWidget* widget, const QString& text)
{
    return ShownTexts::isData(widget, text) || qobject_cast<const LanguageMenu*>(widget);
}

struct Selection
{
    int index;
    QVariant data;
    bool operator==(const Selection& other) const { return index == other.index && data == other.data; }
};

QMap<const QComboBox*, Selection> selections(QWidget* root)
{
    QMap<const QComboBox*, Selection> result;
    for (const QComboBox* combo : root->findChildren<QComboBox*>())
        result.insert(combo, { combo->currentIndex(), combo->currentData() });
    return result;
}

// A window with every page built and every editor of the connections frame created.
std::unique_ptr<MainWindow> openWindow(const QString& example)
{
    auto window = std::make_unique<MainWindow>();
    if (!example.isEmpty() && !window->openFile(Examples + QLatin1Char('/') + example))
        return nullptr;
    for (int page = 0; page < MainWindow::PageCount; ++page)
        window->showPage(page);
    if (auto* frame = window->findChild<ConnectionsFrame*>()) {
        for (const QString& type : ConnectionModel::sSupportedConnectionTypes())
            frame->editor()->pageIndex(type);
    }
    return window;
}

// Every setting away from its default: boxes toggled, the first or the last choice taken,
// the largest number, text added.
void changeEverySetting(MainWindow& window, bool firstChoice)
{
    for (ConfigPage* page : window.containerPages()) {
        for (QCheckBox* box : page->findChildren<QCheckBox*>())
            box->click();
        for (QComboBox* combo : page->findChildren<QComboBox*>())
            combo->setCurrentIndex(firstChoice ? 0 : combo->count() - 1);
        for (QSpinBox* spin : page->findChildren<QSpinBox*>())
            spin->setValue(spin->maximum());
        for (QLineEdit* edit : page->findChildren<QLineEdit*>()) {
            if (edit->isEnabled() && !edit->isReadOnly())
                QTest::keyClicks(edit, QStringLiteral("7"));
        }
    }
}
} // namespace

/*
 * Switching the language at run time: every text of every page, frame, editor and of the
 * window follows, no selection moves, and the document saved is the same in every
 * language.
 */
class TestLanguageSwitch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyTextFollowsTheLanguage_data();
    void everyTextFollowsTheLanguage();
    void samplesOfEveryPageInGerman();
    void savedDocumentIsTheSameInEveryLanguage_data();
    void savedDocumentIsTheSameInEveryLanguage();
    void languageMenuFollowsTheLanguage();

    void commandLineChoosesTheLanguage_data();
    void commandLineChoosesTheLanguage();
    void screenshotsInTheChosenLanguage();
    void matchesLanguageCodes_data();
    void matchesLanguageCodes();
    void followsTheSystemLanguages_data();
    void followsTheSystemLanguages();

private:
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<FakeTool> m_settingsTool;
    std::unique_ptr<MarkingTranslator> m_marking;
};

void TestLanguageSwitch::init()
{
    m_settingsTool = std::make_unique<FakeTool>(QStringLiteral("tavlosettings"));
    m_device = std::make_unique<DeviceTree>();
    m_device->addConnectionLaunchers();
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
    LanguageManager::instance()->setLanguage(LanguageManager::SourceLanguage);
    ShownTexts::deliverLanguageChange();
}

void TestLanguageSwitch::cleanup()
{
    if (m_marking) {
        QCoreApplication::removeTranslator(m_marking.get());
        m_marking.reset();
    }
    LanguageManager::instance()->setLanguage(LanguageManager::SourceLanguage);
    ShownTexts::deliverLanguageChange();
    m_device.reset();
    m_settingsTool.reset();
}

void TestLanguageSwitch::everyTextFollowsTheLanguage_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("standalone");
    QTest::newRow("Lunvex") << int(Platform::Lunvex) << false;
    QTest::newRow("WES") << int(Platform::Wes) << false;
    QTest::newRow("WES7 standalone") << int(Platform::Wes7) << true;
    QTest::newRow("CE") << int(Platform::Ce) << false;
}

void TestLanguageSwitch::everyTextFollowsTheLanguage()
{
    QFETCH(int, target);
    QFETCH(bool, standalone);
    Platform::instance()->setTarget(Platform::Target(target));
    Platform::instance()->setStandalone(standalone);
    const auto window = openWindow(QStringLiteral("lunvex-kiosk.tavlocfg"));
    QVERIFY(window);
    window->showPage(MainWindow::PeripheralPage);
    const ShownTexts::Texts english = ShownTexts::collect(window.get());
    const QMap<const QComboBox*, Selection> selected = selections(window.get());
    QVERIFY(english.size() > 200);

    m_marking = std::make_unique<MarkingTranslator>();
    QCoreApplication::installTranslator(m_marking.get());
    ShownTexts::deliverLanguageChange();

    const QStringList untranslated = ShownTexts::unmarked(english, window.get(), isData);
    QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join(QLatin1Char('\n'))));
    QVERIFY(MarkingTranslator::isMarked(window->helpView()->toPlainText()));
    QVERIFY(selections(window.get()) == selected);
    // The summary labels the sections in the language shown; the values stay as stored.
    window->showPage(MainWindow::SummaryPage);
    const QString summary = window->summaryPage()->summaryView()->toPlainText();
    QVERIFY2(summary.contains(MarkingTranslator::mark(QStringLiteral("Time Zone"))), qPrintable(summary));
    QVERIFY2(summary.contains(QLatin1String("Europe")), qPrintable(summary));

    // And back: nothing of the other language is left.
    QCoreApplication::removeTranslator(m_marking.get());
    ShownTexts::deliverLanguageChange();
    const ShownTexts::Texts again = ShownTexts::collect(window.get());
    for (auto it = again.cbegin(); it != again.cend(); ++it)
        QVERIFY2(!MarkingTranslator::isMarked(it->text),
                 qPrintable(ShownTexts::describe(it->widget) + ": " + it->text));
    QVERIFY(selections(window.get()) == selected);
    // The summary shown while the language changed follows at once.
    QVERIFY(window->summaryPage()->summaryView()->toPlainText().contains(QLatin1String("Time Zone")));
    QVERIFY(!MarkingTranslator::isMarked(window->summaryPage()->summaryView()->toPlainText()));
}

void TestLanguageSwitch::samplesOfEveryPageInGerman()
{
    const auto window = openWindow(QStringLiteral("lunvex-kiosk.tavlocfg"));
    QVERIFY(window);
    window->showPage(MainWindow::TitlePage);
    QVERIFY(LanguageManager::instance()->setLanguage(QStringLiteral("de")));
    ShownTexts::deliverLanguageChange();

    auto text = [&window](const char* name) -> QString {
        QObject* found = window->findChild<QObject*>(QLatin1String(name));
        if (auto* label = qobject_cast<QLabel*>(found))
            return label->text();
        if (auto* button = qobject_cast<QAbstractButton*>(found))
            return button->text();
        return QStringLiteral("<no %1>").arg(QLatin1String(name));
    };
    // The window and each page: a title, a label, a choice, a button.
    QCOMPARE(window->nextButton()->text(), QStringLiteral("&Weiter >"));
    QCOMPARE(text("TitleOpenButton"), QStringLiteral("Konfiguration öffnen..."));
    QCOMPARE(window->pageList()->item(MainWindow::ConnectionsPage)->text(), QStringLiteral("5.  Verbindungen"));

    window->showPage(MainWindow::RegionalPage);
    const auto* layouts = window->findChild<QComboBox*>(QStringLiteral("KeyboardLayoutCombo"));
    QVERIFY(layouts);
    QCOMPARE(layouts->itemText(layouts->findData(QStringLiteral("Germany"))), QStringLiteral("Deutschland"));

    window->showPage(MainWindow::ManagementPage);
    QCOMPARE(text("PageTitle"), QStringLiteral("Verwaltung"));
    QCOMPARE(window->page(MainWindow::ManagementPage)->findChild<QCheckBox*>(QStringLiteral("EnableCheck"))->text(),
             QStringLiteral("Aktivieren"));

    window->showPage(MainWindow::PeripheralPage);
    QCOMPARE(text("PageTitle"), QStringLiteral("Peripherie"));
    const auto* multiMonitor = window->findChild<QComboBox*>(QStringLiteral("DisplayMultiMonitorMode"));
    QVERIFY(multiMonitor);
    QCOMPARE(multiMonitor->itemText(multiMonitor->findData(QStringLiteral("Same as primary"))),
             QStringLiteral("Wie Hauptbildschirm"));

    window->showPage(MainWindow::ConnectionsPage);
    QCOMPARE(text("NewConnectionButton"), QStringLiteral("Neue Remoteverbindung"));
    QCOMPARE(text("KioskCheck"), QStringLiteral("Kioskmodus aktivieren"));

    window->showPage(MainWindow::SummaryPage);
    QCOMPARE(window->summaryPage()->saveButton()->text(), QStringLiteral("Konfiguration speichern"));

    QVERIFY(LanguageManager::instance()->setLanguage(LanguageManager::SourceLanguage));
    ShownTexts::deliverLanguageChange();
    QCOMPARE(window->nextButton()->text(), QStringLiteral("&Next >"));
    QCOMPARE(window->summaryPage()->saveButton()->text(), QStringLiteral("Save Configuration"));
}

void TestLanguageSwitch::savedDocumentIsTheSameInEveryLanguage_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("example");
    QTest::addColumn<bool>("marking");
    QTest::addColumn<bool>("firstChoice");
    const QStringList examples = QDir(Examples).entryList({ QStringLiteral("*.tavlocfg") });
    for (int target : { Platform::Lunvex, Platform::Wes, Platform::Wes7, Platform::Ce }) {
        for (const QString& example : examples) {
            const QString row = Platform::list().at(target) + QLatin1Char(' ') + example;
            QTest::newRow(qPrintable(row + " German")) << target << example << false << false;
            QTest::newRow(qPrintable(row + " marked")) << target << example << true << false;
            QTest::newRow(qPrintable(row + " marked first choices")) << target << example << true << true;
        }
    }
}

void TestLanguageSwitch::savedDocumentIsTheSameInEveryLanguage()
{
    QFETCH(int, target);
    QFETCH(QString, example);
    QFETCH(bool, marking);
    QFETCH(bool, firstChoice);
    QTemporaryDir dir;
    Platform::instance()->setTarget(Platform::Target(target));
    const auto window = openWindow(example);
    QVERIFY(window);
    changeEverySetting(*window, firstChoice);

    if (marking) {
        m_marking = std::make_unique<MarkingTranslator>();
        QCoreApplication::installTranslator(m_marking.get());
    } else {
        QVERIFY(LanguageManager::instance()->setLanguage(QStringLiteral("de")));
    }
    ShownTexts::deliverLanguageChange();
    const QString translated = dir.filePath(QStringLiteral("translated.tavlocfg"));
    QVERIFY(window->saveTo(translated));

    if (marking)
        QCoreApplication::removeTranslator(m_marking.get());
    else
        QVERIFY(LanguageManager::instance()->setLanguage(LanguageManager::SourceLanguage));
    ShownTexts::deliverLanguageChange();
    const QString english = dir.filePath(QStringLiteral("english.tavlocfg"));
    QVERIFY(window->saveTo(english));

    const QByteArray englishBytes = fileContents(english);
    QVERIFY(englishBytes.contains("<zelkon"));
    QCOMPARE(fileContents(translated), englishBytes);
    // The display's choices without item data are stored as shown, so they are shown
    // untranslated; the multi-monitor mode is stored as its English item data.
    if (target == Platform::Lunvex && firstChoice) {
        QVERIFY(englishBytes.contains("<resolution>Auto</resolution>"));
        QVERIFY(englishBytes.contains("<refresh_rate>Auto</refresh_rate>"));
        QVERIFY(englishBytes.contains("<multi_monitor_mode>Disable</multi_monitor_mode>"));
    }
}

void TestLanguageSwitch::languageMenuFollowsTheLanguage()
{
    MainWindow window;
    LanguageMenu* menu = window.languageMenu();
    QVERIFY(menu);
    QCOMPARE(window.menuBar()->actions().count(menu->menuAction()), 1);
    const QList<QAction*> actions = menu->actionGroup()->actions();
    QStringList names;
    for (const QAction* action : actions)
        names.append(action->text());
    QCOMPARE(names, QStringList({ QStringLiteral("English"), QStringLiteral("Deutsch") }));
    QVERIFY(menu->actionGroup()->isExclusive());
    QCOMPARE(menu->actionGroup()->checkedAction()->data().toString(), QStringLiteral("en"));
    QCOMPARE(menu->title(), QStringLiteral("&Language"));

    // Chosen from the menu: the manager switches and the window speaks German.
    actions.at(1)->trigger();
    ShownTexts::deliverLanguageChange();
    QCOMPARE(LanguageManager::instance()->currentLanguage(), QStringLiteral("de"));
    QCOMPARE(menu->actionGroup()->checkedAction(), actions.at(1));
    QCOMPARE(menu->title(), QStringLiteral("&Sprache"));
    QCOMPARE(window.backButton()->text(), QStringLiteral("< &Zurück"));

    // Set elsewhere (the command line): the check follows.
    QVERIFY(LanguageManager::instance()->setLanguage(QStringLiteral("en")));
    ShownTexts::deliverLanguageChange();
    QCOMPARE(menu->actionGroup()->checkedAction(), actions.at(0));
    QCOMPARE(window.backButton()->text(), QStringLiteral("< &Back"));
    QVERIFY(!LanguageManager::instance()->setLanguage(QStringLiteral("fr")));
    QCOMPARE(menu->actionGroup()->checkedAction(), actions.at(0));
}

void TestLanguageSwitch::commandLineChoosesTheLanguage_data()
{
    QTest::addColumn<QString>("systemLanguage");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    const QString englishHelp = QStringLiteral("Show this help and exit.");
    const QString germanHelp = QStringLiteral("Diese Hilfe anzeigen und beenden.");
    QTest::newRow("system English") << "C" << QStringList { "--help" } << 0 << englishHelp;
    QTest::newRow("system German") << "de_DE.UTF-8" << QStringList { "--help" } << 0 << germanHelp;
    QTest::newRow("system French") << "fr_FR.UTF-8" << QStringList { "--help" } << 0 << englishHelp;
    QTest::newRow("German asked for") << "C" << QStringList { "--language", "de", "--help" } << 0 << germanHelp;
    QTest::newRow("English asked for") << "de_DE.UTF-8" << QStringList { "--language=en", "--help" } << 0
                                       << englishHelp;
    QTest::newRow("unknown language") << "C" << QStringList { "--language", "xx", "--version" } << 2
                                      << "Unknown language \"xx\"; choose one of en, de.\nTry --help.\n";
    QTest::newRow("language missing") << "C" << QStringList { "--language" } << 2
                                      << "Missing value after '--language'.\nTry --help.\n";
}

// The real program, as started from a shell with LC_ALL set.
void TestLanguageSwitch::commandLineChoosesTheLanguage()
{
    QFETCH(QString, systemLanguage);
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.insert(QStringLiteral("LC_ALL"), systemLanguage);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ZELKON_BINARY), arguments);
    QVERIFY2(process.waitForFinished(20000), qPrintable(process.errorString()));
    const QString out = QString::fromUtf8(process.readAllStandardOutput());
    const QString err = QString::fromUtf8(process.readAllStandardError());
    QCOMPARE(process.exitCode(), exitCode);
    if (exitCode == 0) {
        QVERIFY2(out.contains(output), qPrintable(out));
        QVERIFY(out.contains(QLatin1String("--language <")));
    } else {
        QCOMPARE(err, output);
        QVERIFY(out.isEmpty());
    }
}

// Rendering runs unattended but speaks the language asked for, pages and report alike.
void TestLanguageSwitch::screenshotsInTheChosenLanguage()
{
    QTemporaryDir dir;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ZELKON_BINARY),
                  { QStringLiteral("--language"), QStringLiteral("de"), QStringLiteral("--device-root"),
                    Examples + QStringLiteral("/device"), QStringLiteral("--screenshots"), dir.path(),
                    Examples + QStringLiteral("/lunvex-kiosk.tavlocfg") });
    QVERIFY2(process.waitForFinished(60000), qPrintable(process.errorString()));
    QCOMPARE(process.exitCode(), 0);
    const QString out = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(out.startsWith(QLatin1String("6 Seiten nach ")), qPrintable(out));
    QVERIFY(QFileInfo(dir.filePath(QStringLiteral("06-summary.png"))).size() > 0);
}

void TestLanguageSwitch::matchesLanguageCodes_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("language");
    QTest::newRow("de") << "de"
                        << "de";
    QTest::newRow("upper case") << "DE"
                                << "de";
    QTest::newRow("with country") << "de_AT"
                                  << "de";
    QTest::newRow("BCP 47") << "de-CH"
                            << "de";
    QTest::newRow("English") << "en_GB"
                             << "en";
    QTest::newRow("no catalogue") << "fr"
                                  << "";
    QTest::newRow("prefix only") << "d"
                                 << "";
    QTest::newRow("empty") << ""
                           << "";
}

void TestLanguageSwitch::matchesLanguageCodes()
{
    QFETCH(QString, code);
    QFETCH(QString, language);
    QCOMPARE(LanguageManager::matchLanguage(code), language);
}

void TestLanguageSwitch::followsTheSystemLanguages_data()
{
    QTest::addColumn<QStringList>("preferred");
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << QStringList { "de-DE" } << "de";
    QTest::newRow("first available") << QStringList { "fr-FR", "de-AT", "en-US" } << "de";
    QTest::newRow("English first") << QStringList { "en-GB", "de-DE" } << "en";
    QTest::newRow("none available") << QStringList { "fr-FR", "it" } << "en";
    QTest::newRow("nothing asked for") << QStringList {} << "en";
}

void TestLanguageSwitch::followsTheSystemLanguages()
{
    QFETCH(QStringList, preferred);
    QFETCH(QString, language);
    QCOMPARE(LanguageManager::languageFor(preferred), language);
}

QTEST_MAIN(TestLanguageSwitch)
#include "tst_languageswitch.moc"
