#include "documentcontroller.h"
#include "filechooser.h"
#include "mainwindow.h"
#include "sectionframe.h"

#include "devicetree.h"
#include "faketool.h"
#include "modalanswer.h"

#include "config/configfile.h"
#include "pages/configpage.h"
#include "pages/zelkonsummarypage.h"
#include "pages/zelkontitlepage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextDocument>
#include <QtTest>
#include <memory>

namespace {
const QString Kiosk = QStringLiteral(ZELKON_EXAMPLES_DIR "/lunvex-kiosk.tavlocfg");

// Answers the file dialogs with paths the test chose.
class ScriptedChooser : public FileChooser
{
public:
    QString openFileName(QWidget*, const QString&) override
    {
        ++asked;
        return openPath;
    }
    QString saveFileName(QWidget*, const QString&) override
    {
        ++asked;
        return savePath;
    }

    QString openPath;
    QString savePath;
    int asked = 0;
};

QString plain(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText();
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString keyboardLayoutIn(const QString& path)
{
    QDomDocument document;
    document.setContent(readAll(path));
    return document.documentElement().firstChildElement("keyboard").firstChildElement("layout").text();
}
} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void navigatesThePagesWithTheirHelp();
    void editSaveAndReopen();
    void unsavedChangesAreAskedAbout_data();
    void unsavedChangesAreAskedAbout();
    void badFileIsRefusedWithAMessage();
    void failedSaveSaysSo();
    void applyRunsTheSettingsTool();
    void platformAndStandaloneSwitches();

private:
    void createWindow();
    SectionFrame* keyboardFrame() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
    QString m_oldCurrent;
};

void TestMainWindow::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_device = std::make_unique<DeviceTree>();
    m_oldCurrent = QDir::currentPath();
    QDir::setCurrent(m_dir->path());
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
    createWindow();
}

void TestMainWindow::cleanup()
{
    if (m_window)
        m_window->setWindowModified(false);
    m_window.reset();
    QDir::setCurrent(m_oldCurrent);
    m_device.reset();
    m_dir.reset();
}

// Until the real frames exist, the regional page gets a keyboard frame of the tests' own,
// every time the window builds its pages.
void TestMainWindow::createWindow()
{
    m_window = std::make_unique<MainWindow>();
    auto chooser = std::make_unique<ScriptedChooser>();
    m_chooser = chooser.get();
    m_window->setFileChooser(std::move(chooser));
    auto addFrame = [this] {
        ConfigPage* regional = m_window->containerPages().constFirst();
        auto* frame = new SectionFrame(QStringLiteral("keyboard"), QStringLiteral("layout"));
        connect(frame, &ConfigFrame::dirty, regional, &WizardPage::modified);
        regional->accordion()->addItem(new AccordionItem(frame));
    };
    connect(m_window.get(), &MainWindow::containerPagesBuilt, this, addFrame);
    addFrame();
}

SectionFrame* TestMainWindow::keyboardFrame() const
{
    ConfigPage* regional = m_window->containerPages().constFirst();
    return static_cast<SectionFrame*>(regional->accordion()->items().constFirst()->content());
}

void TestMainWindow::navigatesThePagesWithTheirHelp()
{
    QCOMPARE(m_window->currentPage(), int(MainWindow::TitlePage));
    QVERIFY(!m_window->backButton()->isEnabled());
    QStringList titles;
    for (int index = 0; index < MainWindow::PageCount; ++index) {
        if (index > 0)
            QTest::mouseClick(m_window->nextButton(), Qt::LeftButton);
        QCOMPARE(m_window->currentPage(), index);
        QCOMPARE(m_window->helpView()->toPlainText(), plain(m_window->page(index)->helpText()));
        QCOMPARE(m_window->pageList()->currentRow(), index);
        titles.append(m_window->page(index)->title());
    }
    QCOMPARE(titles, QStringList({ "Zelkon", "Regional", "Management", "Peripherals", "Connections", "Summary" }));
    QVERIFY(!m_window->nextButton()->isEnabled());
    QVERIFY(!m_window->summaryPage()->saveButton()->isHidden());

    m_window->pageList()->setCurrentRow(MainWindow::RegionalPage);
    QCOMPARE(m_window->currentPage(), int(MainWindow::RegionalPage));
    QVERIFY(m_window->summaryPage()->saveButton()->isHidden());
    QVERIFY(m_window->emptyPageHint()->isHidden());

    // Opening a frame shows the page's help followed by the frame's.
    auto* regional = static_cast<ConfigPage*>(m_window->page(MainWindow::RegionalPage));
    regional->accordion()->selectItem(regional->accordion()->items().constFirst());
    QVERIFY(m_window->helpView()->toPlainText().endsWith(QStringLiteral("Help of keyboard")));
    QCOMPARE(m_window->helpView()->toPlainText(), plain(regional->helpText()));

    // A page without frames says so rather than showing nothing.
    m_window->showPage(MainWindow::ManagementPage);
    QVERIFY(!m_window->emptyPageHint()->isHidden());
}

void TestMainWindow::editSaveAndReopen()
{
    const QString kiosk = m_dir->filePath(QStringLiteral("kiosk.tavlocfg"));
    QVERIFY(QFile::copy(Kiosk, kiosk));
    QVERIFY(m_window->openFile(kiosk));
    QCOMPARE(keyboardFrame()->text(), QStringLiteral("Germany"));
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("kiosk.tavlocfg")));

    for (int index = 1; index < MainWindow::PageCount; ++index)
        m_window->next();
    keyboardFrame()->setText(QStringLiteral("Norway"));
    QVERIFY(m_window->isWindowModified());
    m_window->showPage(MainWindow::SummaryPage);
    QVERIFY(m_window->summaryPage()->summaryView()->toPlainText().contains(QStringLiteral("Norway")));

    const QString saved = m_dir->filePath(QStringLiteral("edited.tavlocfg"));
    m_chooser->savePath = saved;
    QVERIFY(m_window->saveAs());
    QCOMPARE(m_chooser->asked, 1);
    QVERIFY(!m_window->isWindowModified());
    QCOMPARE(m_window->document()->filePath(), saved);
    QCOMPARE(keyboardLayoutIn(saved), QStringLiteral("Norway"));
    QCOMPARE(keyboardLayoutIn(kiosk), QStringLiteral("Germany"));

    // Reopening, from the title page, gives fresh pages filled from the file.
    ConfigPage* before = m_window->containerPages().constFirst();
    m_chooser->openPath = saved;
    QTest::mouseClick(m_window->findChild<QPushButton*>(QStringLiteral("TitleOpenButton")), Qt::LeftButton);
    QCOMPARE(m_chooser->asked, 2);
    QCOMPARE(m_window->document()->filePath(), saved);
    QVERIFY(m_window->containerPages().constFirst() != before);
    QCOMPARE(keyboardFrame()->text(), QStringLiteral("Norway"));
    QVERIFY(!m_window->isWindowModified());

    // Saving again needs no dialog and keeps what was not edited.
    keyboardFrame()->setText(QStringLiteral("Sweden"));
    m_window->showPage(MainWindow::SummaryPage);
    QTest::mouseClick(m_window->summaryPage()->saveButton(), Qt::LeftButton);
    QCOMPARE(m_chooser->asked, 2);
    QCOMPARE(keyboardLayoutIn(saved), QStringLiteral("Sweden"));
    QVERIFY(readAll(saved).contains("<server_address>ftp://updates.lager.example.com/tavlo</server_address>"));
}

void TestMainWindow::unsavedChangesAreAskedAbout_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("proceeds");
    QTest::addColumn<QString>("savedLayout");

    QTest::newRow("new, save") << "new" << int(QMessageBox::Save) << true << "Norway";
    QTest::newRow("new, discard") << "new" << int(QMessageBox::Discard) << true << "Germany";
    QTest::newRow("new, cancel") << "new" << int(QMessageBox::Cancel) << false << "Germany";
    QTest::newRow("open, cancel") << "open" << int(QMessageBox::Cancel) << false << "Germany";
    QTest::newRow("open, discard") << "open" << int(QMessageBox::Discard) << true << "Germany";
    QTest::newRow("close, save") << "close" << int(QMessageBox::Save) << true << "Norway";
    QTest::newRow("close, cancel") << "close" << int(QMessageBox::Cancel) << false << "Germany";
}

void TestMainWindow::unsavedChangesAreAskedAbout()
{
    QFETCH(QString, action);
    QFETCH(int, answer);
    QFETCH(bool, proceeds);

    const QString path = m_dir->filePath(QStringLiteral("kiosk.tavlocfg"));
    QVERIFY(QFile::copy(Kiosk, path));
    QVERIFY(m_window->openFile(path));
    keyboardFrame()->setText(QStringLiteral("Norway"));
    m_chooser->openPath = Kiosk;

    ModalAnswer box(static_cast<QMessageBox::StandardButton>(answer));
    box.arm();
    bool done = false;
    if (action == QLatin1String("new"))
        done = m_window->newDocument();
    else if (action == QLatin1String("open"))
        done = m_window->open();
    else
        done = m_window->close();

    QVERIFY(box.answered());
    QCOMPARE(box.title(), QStringLiteral("Zelkon"));
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QVERIFY2(box.text().contains(QStringLiteral("kiosk.tavlocfg")), qPrintable(box.text()));
    QCOMPARE(box.buttons(), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    QCOMPARE(done, proceeds);
    QTEST(keyboardLayoutIn(path), "savedLayout");
    QCOMPARE(m_chooser->asked, action == QLatin1String("open") && proceeds ? 1 : 0);
    if (proceeds) {
        QVERIFY(!m_window->isWindowModified());
        if (action == QLatin1String("new")) {
            QVERIFY(m_window->document()->filePath().isEmpty());
            QCOMPARE(keyboardFrame()->text(), QString());
            QVERIFY(!keyboardFrame()->isDirty());
        }
    } else {
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->document()->filePath(), path);
        QCOMPARE(keyboardFrame()->text(), QStringLiteral("Norway"));
    }
}

void TestMainWindow::badFileIsRefusedWithAMessage()
{
    QVERIFY(m_window->openFile(Kiosk));
    keyboardFrame()->setText(QStringLiteral("Norway"));
    const QString path = m_dir->filePath(QStringLiteral("bad.tavlocfg"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Display]\nResolution=1024x768\n");
    file.close();

    ModalAnswer box;
    box.arm();
    QVERIFY(!m_window->openFile(path));
    QVERIFY(box.answered());
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QVERIFY2(box.text().contains(QDir::toNativeSeparators(path)), qPrintable(box.text()));
    QVERIFY2(box.text().contains(QStringLiteral("not an XML document")), qPrintable(box.text()));
    // The configuration being edited is untouched.
    QCOMPARE(m_window->document()->filePath(), Kiosk);
    QCOMPARE(keyboardFrame()->text(), QStringLiteral("Norway"));
    QVERIFY(m_window->isWindowModified());
}

void TestMainWindow::failedSaveSaysSo()
{
    const QString path = m_dir->filePath(QStringLiteral("kiosk.tavlocfg"));
    QVERIFY(QFile::copy(Kiosk, path));
    QVERIFY(m_window->openFile(path));
    keyboardFrame()->setText(QStringLiteral("Norway"));

    m_chooser->savePath = path + QStringLiteral("/inside-a-file.tavlocfg");
    ModalAnswer box;
    box.arm();
    QVERIFY(!m_window->saveAs());
    QVERIFY(box.answered());
    QCOMPARE(box.icon(), QMessageBox::Critical);
    QVERIFY2(box.text().contains(QDir::toNativeSeparators(m_chooser->savePath)), qPrintable(box.text()));
    QVERIFY(m_window->isWindowModified());
    QCOMPARE(m_window->document()->filePath(), path);
    QCOMPARE(readAll(path), readAll(Kiosk));
}

void TestMainWindow::applyRunsTheSettingsTool()
{
    FakeTool settings(QStringLiteral("tavlosettings"));
    QVERIFY(m_window->openFile(Kiosk));
    const QByteArray example = readAll(Kiosk);
    keyboardFrame()->setText(QStringLiteral("Norway"));
    m_window->showPage(MainWindow::SummaryPage);
    QPushButton* apply = m_window->summaryPage()->applyButton();
    QVERIFY(!apply->isHidden());
    QVERIFY(apply->isEnabled());

    QTest::mouseClick(apply, Qt::LeftButton);
    QCOMPARE(settings.runs().size(), 1);
    QCOMPARE(settings.runs().constFirst().arguments, QStringList({ "-settings", "default.tavlocfg", "-set", "all" }));
    QCOMPARE(QDir(settings.runs().constFirst().workingDirectory).canonicalPath(), QDir(m_dir->path()).canonicalPath());
    QCOMPARE(keyboardLayoutIn(m_dir->filePath(QStringLiteral("default.tavlocfg"))), QStringLiteral("Norway"));
    // Applying is not saving the file being edited.
    QVERIFY(m_window->isWindowModified());
    QCOMPARE(m_window->document()->filePath(), Kiosk);
    QCOMPARE(readAll(Kiosk), example);

    // A standalone wizard configures no device.
    m_window->standaloneCheck()->setChecked(true);
    QVERIFY(apply->isHidden());
    QVERIFY(!m_window->applyToDevice());
    QCOMPARE(settings.runs().size(), 1);
}

void TestMainWindow::platformAndStandaloneSwitches()
{
    QComboBox* combo = m_window->titlePage()->platformCombo();
    QCOMPARE(combo->window(), m_window.get());
    QVERIFY(!combo->isHidden());
    combo->setCurrentIndex(Platform::Wes7);
    QVERIFY(Platform::isWes7());
    combo->setCurrentIndex(Platform::Ce);
    QVERIFY(Platform::isCe());

    m_window->showPage(MainWindow::SummaryPage);
    const QString applySentence = QStringLiteral("will apply the customizations");
    QVERIFY(m_window->helpView()->toPlainText().contains(applySentence));
    m_window->standaloneCheck()->setChecked(true);
    QVERIFY(Platform::isStandalone());
    QVERIFY(!m_window->helpView()->toPlainText().contains(applySentence));

    // A window built later shows the platform as it stands.
    m_window.reset();
    createWindow();
    QCOMPARE(m_window->titlePage()->platformCombo()->currentIndex(), int(Platform::Ce));
    QVERIFY(m_window->standaloneCheck()->isChecked());
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
