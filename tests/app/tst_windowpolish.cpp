#include "documentcontroller.h"
#include "filecontents.h"
#include "languagemanager.h"
#include "mainwindow.h"
#include "scriptedchooser.h"

#include "faketool.h"
#include "modalanswer.h"

#include "device/machineroot.h"
#include "pages/configpage.h"
#include "pages/zelkonsummarypage.h"
#include "pages/zelkontitlepage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "controlframe.h"

#include "platform.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTextBrowser>
#include <QtTest>
#include <memory>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);

Platform::Target targetOf(const QString& exampleName)
{
    return exampleName.startsWith("wes") ? Platform::Wes
        : exampleName.startsWith("ce")   ? Platform::Ce
                                         : Platform::Lunvex;
}

// Why widget is not shown whole inside window, or "" when it is.
QString cutOff(QWidget* widget, QWidget* window)
{
    const QRect inWindow(widget->mapTo(window, QPoint(0, 0)), widget->size());
    if (!window->rect().contains(inWindow))
        return QStringLiteral("%1 at %2,%3 %4x%5 is outside the window")
            .arg(widget->objectName())
            .arg(inWindow.x())
            .arg(inWindow.y())
            .arg(inWindow.width())
            .arg(inWindow.height());
    auto* label = qobject_cast<QLabel*>(widget);
    if (label && !label->wordWrap() && label->width() < label->sizeHint().width())
        return QStringLiteral("\"%1\" is %2 wide but needs %3")
            .arg(label->text())
            .arg(label->width())
            .arg(label->sizeHint().width());
    auto* button = qobject_cast<QPushButton*>(widget);
    if (button && button->width() < button->sizeHint().width())
        return QStringLiteral("\"%1\" is %2 wide but needs %3")
            .arg(button->text())
            .arg(button->width())
            .arg(button->sizeHint().width());
    return QString();
}

// A help word too wide for the pane, which would be broken in the middle, or "" when
// every word fits. Web addresses are allowed to break, and so are words after a hyphen,
// soft hyphens included (German compounds carry them).
QString helpWordTooWide(QTextBrowser* help)
{
    QFont bold = help->font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int width = help->viewport()->width() - 2 * int(help->document()->documentMargin());
    const QStringList words
        = help->toPlainText().split(QRegularExpression(QStringLiteral("\\s+|(?<=[-\\x{00ad}])")), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        const bool address = word.contains('/') || word.contains(QRegularExpression(QStringLiteral("\\.\\w")));
        if (!address && metrics.horizontalAdvance(word) > width)
            return QStringLiteral("\"%1\" is wider than the help pane's %2 pixels").arg(word).arg(width);
    }
    return QString();
}
} // namespace

// The window as an administrator meets it: small screens, waiting, file commands, empty views.
class TestWindowPolish : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyPageFitsSmallScreens_data();
    void everyPageFitsSmallScreens();
    void helpKeepsWordsWholeAt640x480();
    void busyWhileTheDeviceIsAsked_data();
    void busyWhileTheDeviceIsAsked();
    void saveAsStartsFromTheCurrentFile();
    void windowHasItsIcon();
    void pageTitlesStandOut();
    void emptySummaryExplainsItself();
    void emptyPageHintOnlyWhereFramesAreHidden();
    void applyFailureNamesTheFile();
    void examplesAreInTheSavedForm_data();
    void examplesAreInTheSavedForm();

private:
    QString copyOfExample(const QString& name);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
    QString m_oldCurrent;
};

void TestWindowPolish::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_oldCurrent = QDir::currentPath();
    QDir::setCurrent(m_dir->path());
    MachineRoot::setRoot(Examples + QStringLiteral("/device"));
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(true);
    m_window = std::make_unique<MainWindow>();
    m_window->setFileChooser(std::unique_ptr<FileChooser>(m_chooser = new ScriptedChooser));
}

void TestWindowPolish::cleanup()
{
    LanguageManager::instance()->setLanguage(LanguageManager::SourceLanguage);
    m_window.reset();
    MachineRoot::setRoot(QString());
    QDir::setCurrent(m_oldCurrent);
    m_dir.reset();
}

QString TestWindowPolish::copyOfExample(const QString& name)
{
    const QString path = m_dir->filePath(name);
    QFile::remove(path);
    if (!QFile::copy(Examples + '/' + name, path))
        qFatal("cannot copy %s", qPrintable(name));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    return path;
}

void TestWindowPolish::everyPageFitsSmallScreens_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    // German texts run about a third longer than the English ones.
    for (const QString& language : { QStringLiteral("en"), QStringLiteral("de") }) {
        for (const QString& name : QDir(Examples).entryList({ QStringLiteral("*.tavlocfg") }))
            QTest::newRow(qPrintable(name + ", 800x600, " + language)) << name << QSize(800, 600) << language;
    }
    QTest::newRow("lunvex-kiosk, 1000x700, en")
        << QStringLiteral("lunvex-kiosk.tavlocfg") << QSize(1000, 700) << QStringLiteral("en");
}

// The smallest screen of many thin clients: nothing cut, nothing to scroll sideways.
void TestWindowPolish::everyPageFitsSmallScreens()
{
    QFETCH(QString, example);
    QFETCH(QSize, size);
    QFETCH(QString, language);
    QVERIFY(LanguageManager::instance()->setLanguage(language));
    Platform::instance()->setTarget(targetOf(example));
    QVERIFY(m_window->openFile(copyOfExample(example)));
    m_window->resize(size);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCOMPARE(m_window->size(), size);

    auto* stack = m_window->findChild<QStackedWidget*>(QStringLiteral("PageStack"));
    QVERIFY(stack);
    for (int index = 0; index < MainWindow::PageCount; ++index) {
        m_window->showPage(index);
        QApplication::processEvents();
        const QImage shot = m_window->grab().toImage();
        QCOMPARE(shot.size(), size * shot.devicePixelRatio());

        auto* area = qobject_cast<QScrollArea*>(stack->currentWidget());
        QVERIFY(area);
        QVERIFY2(!area->horizontalScrollBar()->isVisible(),
                 qPrintable(QStringLiteral("page %1 scrolls sideways by %2")
                                .arg(index)
                                .arg(area->horizontalScrollBar()->maximum())));
        QVERIFY2(helpWordTooWide(m_window->helpView()).isEmpty(), qPrintable(helpWordTooWide(m_window->helpView())));
        // Each frame, opened, fits the width as well.
        if (auto* page = qobject_cast<ConfigPage*>(m_window->page(index))) {
            for (AccordionItem* item : page->accordion()->items()) {
                if (item->isHidden())
                    continue;
                page->accordion()->selectItem(item);
                QApplication::processEvents();
                QVERIFY2(!area->horizontalScrollBar()->isVisible(),
                         qPrintable(QStringLiteral("page %1 scrolls sideways by %2 with \"%3\" open")
                                        .arg(index)
                                        .arg(area->horizontalScrollBar()->maximum())
                                        .arg(QLatin1String(item->content()->metaObject()->className()))));
                QVERIFY2(helpWordTooWide(m_window->helpView()).isEmpty(),
                         qPrintable(helpWordTooWide(m_window->helpView())));
            }
        }
        // What is meant to be seen without scrolling: the page's own buttons and texts,
        // and the window's.
        QList<QWidget*> shown = { m_window->nextButton(), m_window->backButton(), m_window->helpView() };
        const QList<QWidget*> candidates = area->widget()->findChildren<QWidget*>();
        for (QWidget* widget : candidates) {
            const bool visible = widget->isVisibleTo(m_window.get()) && widget->width() > 0;
            const bool top = qobject_cast<QLabel*>(widget) || qobject_cast<QPushButton*>(widget);
            // Frames below the fold are scrolled to; only the top of the page must fit at once.
            const QPoint inArea = widget->mapTo(area->viewport(), QPoint(0, 0));
            if (visible && top && inArea.y() + widget->height() <= area->viewport()->height())
                shown.append(widget);
        }
        for (QWidget* widget : qAsConst(shown)) {
            const QString problem = widget->isVisible() ? cutOff(widget, m_window.get()) : QString();
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("page %1: %2").arg(index).arg(problem)));
        }
    }
    // The title page's own buttons are in view at once.
    m_window->showPage(MainWindow::TitlePage);
    for (const char* name : { "TitleOpenButton", "TitleSaveButton" }) {
        auto* button = m_window->findChild<QPushButton*>(QLatin1String(name));
        QVERIFY(button && button->isVisible());
        QVERIFY2(cutOff(button, m_window.get()).isEmpty(), qPrintable(cutOff(button, m_window.get())));
    }
}

// Smaller still, the page may scroll, but the help pane keeps a readable width.
void TestWindowPolish::helpKeepsWordsWholeAt640x480()
{
    QVERIFY(m_window->openFile(copyOfExample(QStringLiteral("lunvex-kiosk.tavlocfg"))));
    m_window->resize(640, 480);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    for (int index = 0; index < MainWindow::PageCount; ++index) {
        m_window->showPage(index);
        QApplication::processEvents();
        QVERIFY2(helpWordTooWide(m_window->helpView()).isEmpty(), qPrintable(helpWordTooWide(m_window->helpView())));
    }
}

void TestWindowPolish::busyWhileTheDeviceIsAsked_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("toolRuns");
    QTest::newRow("WES device") << int(Platform::Wes) << false
                                << "Reading the Thin Client's current settings; this may take up to 30 seconds..." << 1;
    QTest::newRow("CE device") << int(Platform::Ce) << false
                               << "Reading the Thin Client's current settings; this may take up to 30 seconds..." << 1;
    QTest::newRow("standalone") << int(Platform::Wes) << true << "Opening wes-office.tavlocfg..." << 0;
}

// Each status message is recorded with the cursor of that moment and the tool runs so far.
void TestWindowPolish::busyWhileTheDeviceIsAsked()
{
    QFETCH(int, target);
    QFETCH(bool, standalone);
    QFETCH(QString, message);
    QFETCH(int, toolRuns);
    FakeTool settings(QStringLiteral("tavlosettings"));
    settings.setDelayMs(300);
    Platform::instance()->setTarget(Platform::Target(target));
    Platform::instance()->setStandalone(standalone);
    const QString path = copyOfExample(QStringLiteral("wes-office.tavlocfg"));

    struct Moment
    {
        QString message;
        bool waitCursor;
        int runs;
    };
    QList<Moment> moments;
    connect(m_window->statusBar(), &QStatusBar::messageChanged, this, [&](const QString& text) {
        const QCursor* cursor = QApplication::overrideCursor();
        moments.append({ text, cursor && cursor->shape() == Qt::WaitCursor, settings.runs().size() });
    });
    QVERIFY(m_window->openFile(path));

    QVERIFY(moments.size() >= 3);
    // Up before the tool starts, and still up when it has ended.
    QCOMPARE(moments.at(0).message, message);
    QVERIFY(moments.at(0).waitCursor);
    QCOMPARE(moments.at(0).runs, 0);
    QCOMPARE(moments.at(1).message, QString());
    QVERIFY(moments.at(1).waitCursor);
    QCOMPARE(moments.at(1).runs, toolRuns);
    QCOMPARE(moments.at(2).message, QStringLiteral("Opened wes-office.tavlocfg"));
    QVERIFY(!QApplication::overrideCursor());

    // A file that cannot be opened gives the cursor back as well.
    ModalAnswer box;
    box.arm();
    QVERIFY(!m_window->openFile(m_dir->filePath(QStringLiteral("missing.tavlocfg"))));
    QVERIFY(box.answered());
    QVERIFY(!QApplication::overrideCursor());
}

void TestWindowPolish::saveAsStartsFromTheCurrentFile()
{
    QAction* saveAs = nullptr;
    for (QAction* action : m_window->findChildren<QAction*>()) {
        if (action->shortcut() == QKeySequence(QStringLiteral("Ctrl+Shift+S")))
            saveAs = action;
    }
    QVERIFY(saveAs);

    // Unsaved: the dialog starts in the working directory.
    saveAs->trigger();
    QCOMPARE(m_chooser->startPath, QDir::currentPath());

    const QString path = copyOfExample(QStringLiteral("lunvex-kiosk.tavlocfg"));
    QVERIFY(m_window->openFile(path));
    m_chooser->path = m_dir->filePath(QStringLiteral("copy.tavlocfg"));
    saveAs->trigger();
    QCOMPARE(m_chooser->startPath, path);
    QCOMPARE(m_window->document()->filePath(), m_chooser->path);
    QVERIFY(QFileInfo::exists(m_chooser->path));

    // The real dialog shows that name, ready to be edited.
    std::unique_ptr<QFileDialog> dialog(FileChooser::createSaveDialog(nullptr, path));
    QCOMPARE(dialog->selectedFiles(), QStringList { path });
}

void TestWindowPolish::windowHasItsIcon()
{
    QVERIFY(!m_window->windowIcon().isNull());
    QVERIFY(!m_window->windowIcon().pixmap(48, 48).isNull());
    QVERIFY(!QIcon(QStringLiteral(":/zelkon/zelkon.svg")).pixmap(16, 16).isNull());
}

// The title and summary pages name themselves in 22 point bold, over the library's own
// size, and no other page's labels are touched.
void TestWindowPolish::pageTitlesStandOut()
{
    for (QWidget* page :
         { static_cast<QWidget*>(m_window->titlePage()), static_cast<QWidget*>(m_window->summaryPage()) }) {
        const QFont font = page->findChild<QLabel*>(QStringLiteral("Title"))->font();
        QCOMPARE(font.pointSize(), 22);
        QVERIFY(font.bold());
    }
    const QLabel* body = m_window->titlePage()->findChild<QLabel*>(QStringLiteral("Body"));
    QVERIFY(body->font().pointSizeF() < 22);
    QVERIFY(!body->font().bold());
}

void TestWindowPolish::emptySummaryExplainsItself()
{
    QVERIFY(m_window->newDocument());
    m_window->showPage(MainWindow::SummaryPage);
    QTextBrowser* view = m_window->summaryPage()->summaryView();
    QVERIFY(view->toPlainText().isEmpty());
    QVERIFY(view->placeholderText().startsWith(QLatin1String("Nothing has been set yet")));
    QVERIFY(!m_window->summaryPage()->saveButton()->isEnabled());

    // Once there is something to show, it is shown instead.
    QVERIFY(m_window->openFile(copyOfExample(QStringLiteral("lunvex-kiosk.tavlocfg"))));
    m_window->showPage(MainWindow::SummaryPage);
    QVERIFY(!view->toPlainText().isEmpty());
    QVERIFY(m_window->summaryPage()->saveButton()->isEnabled());
}

// On the example device every management agent is installed; without their packages the
// page has nothing to offer.
void TestWindowPolish::emptyPageHintOnlyWhereFramesAreHidden()
{
    QLabel* hint = m_window->emptyPageHint();
    for (int index = 0; index < MainWindow::PageCount; ++index) {
        m_window->showPage(index);
        QVERIFY2(hint->isHidden(), qPrintable(QString::number(index)));
    }

    QTemporaryDir bare;
    MachineRoot::setRoot(bare.path());
    Platform::instance()->setTarget(Platform::Wes7);
    m_window->showPage(MainWindow::ManagementPage);
    QVERIFY(!hint->isHidden());
    QCOMPARE(hint->text(),
             QStringLiteral("None of this page's settings apply to WES7 with the software installed here."));
    m_window->showPage(MainWindow::RegionalPage);
    QVERIFY(hint->isHidden());
}

void TestWindowPolish::applyFailureNamesTheFile()
{
    FakeTool settings(QStringLiteral("tavlosettings"));
    Platform::instance()->setStandalone(false);
    QVERIFY(m_window->openFile(copyOfExample(QStringLiteral("lunvex-kiosk.tavlocfg"))));
    QVERIFY(QDir(m_dir->path()).mkdir(DocumentController::applyFileName()));

    ModalAnswer box;
    box.arm();
    QVERIFY(!m_window->applyToDevice());
    QVERIFY(box.answered());
    QCOMPARE(box.icon(), QMessageBox::Critical);
    const QString path = QDir::toNativeSeparators(m_dir->filePath(DocumentController::applyFileName()));
    QVERIFY2(box.text().contains('"' + path + '"'), qPrintable(box.text()));
    QCOMPARE(settings.runs().size(), 0);
    QVERIFY(!QApplication::overrideCursor());
}

void TestWindowPolish::examplesAreInTheSavedForm_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<bool>("standalone");
    for (const QString& name : QDir(Examples).entryList({ QStringLiteral("*.tavlocfg") })) {
        QTest::newRow(qPrintable(name + ", standalone")) << name << true;
        QTest::newRow(qPrintable(name + ", on a device")) << name << false;
    }
}

// Opening an example and saving it unchanged gives back the same bytes.
void TestWindowPolish::examplesAreInTheSavedForm()
{
    QFETCH(QString, example);
    QFETCH(bool, standalone);
    FakeTool settings(QStringLiteral("tavlosettings"));
    Platform::instance()->setTarget(targetOf(example));
    Platform::instance()->setStandalone(standalone);
    QVERIFY(m_window->openFile(copyOfExample(example)));
    const QString saved = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    QVERIFY(m_window->saveTo(saved));
    QCOMPARE(QString::fromUtf8(fileContents(saved)), QString::fromUtf8(fileContents(Examples + '/' + example)));
}

QTEST_MAIN(TestWindowPolish)
#include "tst_windowpolish.moc"
