#include "documentcontroller.h"
#include "filecontents.h"
#include "launcher.h"
#include "mainwindow.h"
#include "scriptedchooser.h"
#include "sectionframe.h"

#include "devicetree.h"
#include "faketool.h"
#include "modalanswer.h"

#include "config/configfile.h"
#include "config/parseguard.h"
#include "pages/configpage.h"
#include "pages/zelkonsummarypage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QPushButton>
#include <QtTest>
#include <memory>
#include <sys/resource.h>

namespace {
const QByteArray Kiosk = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                         "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\">\n"
                         " <keyboard>\n  <layout>Germany</layout>\n </keyboard>\n</zelkon>\n";

QByteArray nested(int depth)
{
    return "<zelkon>" + QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth) + "</zelkon>";
}

QByteArray entityFile(int length, int uses)
{
    return "<!DOCTYPE zelkon [<!ENTITY e \"" + QByteArray(length, 'x') + "\">]><zelkon><a>"
        + QByteArray("&e;").repeated(uses) + "</a></zelkon>";
}
} // namespace

// Hostile files, failing tools and failing saves, seen from the window: each gets a message
// that says what happened, and neither the configuration being edited nor its file suffers.
class TestHostileFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Launcher::prepareProcess(); }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_oldCurrent = QDir::currentPath();
        QDir::setCurrent(m_dir->path());
        m_device = std::make_unique<DeviceTree>();
        Platform::instance()->setTarget(Platform::Lunvex);
        Platform::instance()->setStandalone(false);

        m_window = std::make_unique<MainWindow>();
        m_window->setFileChooser(std::unique_ptr<FileChooser>(m_chooser = new ScriptedChooser));
        auto addFrame = [this] {
            ConfigPage* regional = m_window->containerPages().constFirst();
            auto* keyboard = new SectionFrame(QStringLiteral("keyboard"), QStringLiteral("layout"));
            connect(keyboard, &ConfigFrame::dirty, regional, &WizardPage::modified);
            regional->accordion()->addItem(new AccordionItem(keyboard));
        };
        connect(m_window.get(), &MainWindow::containerPagesBuilt, this, addFrame);
        addFrame();

        m_current = write(QStringLiteral("kiosk.tavlocfg"), Kiosk);
        QVERIFY(m_window->openFile(m_current));
        keyboard()->setText(QStringLiteral("Norway"));
    }

    void cleanup()
    {
        m_window.reset();
        QDir::setCurrent(m_oldCurrent);
        m_device.reset();
        m_dir.reset();
    }

    void hostileFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("reason");
        QTest::newRow("deep nesting") << nested(30000) << "nested more than 128 levels deep (line 1)";
        QTest::newRow("large entity used often") << entityFile(50000, 50000) << "not an XML document";
        QTest::newRow("entities expanding to much text")
            << entityFile(ParseGuard::MaxEntityExpansion,
                          int(ParseGuard::MaxTextCharacters / ParseGuard::MaxEntityExpansion) + 2)
            << QStringLiteral("expand to more than %1 million characters").arg(ParseGuard::MaxTextCharacters / 1000000);
        QTest::newRow("too large") << QByteArray(
            "<zelkon>" + QByteArray(int(ParseGuard::MaxFileBytes) + 1024 * 1024, ' ') + "</zelkon>")
                                   << QStringLiteral("larger than %1 MB").arg(ParseGuard::MaxFileBytes / (1024 * 1024));
        QTest::newRow("invalid UTF-8") << QByteArray("<zelkon><keyboard><layout>\xff</layout></keyboard></zelkon>")
                                       << "not an XML document";
    }

    void hostileFilesAreRefused()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, reason);
        const QString before = m_window->document()->loadedDocument()->toString();
        const QString hostile = write(QStringLiteral("hostile.tavlocfg"), contents);

        ModalAnswer box;
        box.arm();
        QVERIFY(!m_window->openFile(hostile));
        QVERIFY(box.answered());
        QCOMPARE(box.title(), QStringLiteral("Zelkon"));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QVERIFY2(box.text().contains(QDir::toNativeSeparators(hostile)), qPrintable(box.text()));
        QVERIFY2(box.text().contains(reason), qPrintable(box.text()));
        QCOMPARE(m_window->document()->loadedDocument()->toString(), before);
        QCOMPARE(m_window->document()->filePath(), m_current);
        QCOMPARE(keyboard()->text(), QStringLiteral("Norway"));
        QVERIFY(m_window->isWindowModified());
    }

    void applyTellsWhatTheToolDid_data()
    {
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << -1 << "The settings tool \"tavlosettings\" could not be started";
        QTest::newRow("failing") << 3 << "reported a failure (exit code 3)";
        QTest::newRow("succeeding") << 0 << QString();
    }

    void applyTellsWhatTheToolDid()
    {
        QFETCH(int, exitCode);
        QFETCH(QString, reason);
        std::unique_ptr<FakeTool> tool;
        const QByteArray oldPath = qgetenv("PATH");
        if (exitCode < 0)
            qputenv("PATH", QFile::encodeName(m_dir->path()));
        else
            tool = std::make_unique<FakeTool>(QStringLiteral("tavlosettings"), exitCode);

        m_window->showPage(MainWindow::SummaryPage);
        ModalAnswer box;
        box.arm();
        QTest::mouseClick(m_window->summaryPage()->applyButton(), Qt::LeftButton);
        qputenv("PATH", oldPath);
        QCOMPARE(box.answered(), !reason.isEmpty());
        if (!reason.isEmpty()) {
            QCOMPARE(box.icon(), QMessageBox::Critical);
            QVERIFY2(box.text().contains(reason), qPrintable(box.text()));
        }
        // The tool was handed the configuration either way.
        QVERIFY(fileContents(QStringLiteral("default.tavlocfg")).contains("<layout>Norway</layout>"));
        if (tool)
            QCOMPARE(tool->runs().size(), 1);
    }

    void toolFailureReasons_data()
    {
        using Outcome = ExternalTool::Result::Outcome;
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("reason");
        QTest::newRow("time-out") << int(Outcome::TimedOut)
                                  << "did not finish within 30 seconds. It has been left running";
        QTest::newRow("crash") << int(Outcome::Crashed) << "stopped before it had finished: it broke";
        QTest::newRow("missing") << int(Outcome::NotStarted) << "could not be started: it broke";
    }

    void toolFailureReasons()
    {
        QFETCH(int, outcome);
        ExternalTool::Result result;
        result.outcome = ExternalTool::Result::Outcome(outcome);
        result.errorText = QStringLiteral("it broke");
        QFETCH(QString, reason);
        QVERIFY2(DocumentController::toolFailureReason(result).contains(reason),
                 qPrintable(DocumentController::toolFailureReason(result)));
    }

    void failedSavesKeepTheFile_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<qint64>("sizeLimit");
        QTest::addColumn<QString>("reason");
        QTest::newRow("NUL") << QStringLiteral("Nor") + QChar(0) + QStringLiteral("way") << qint64(-1)
                             << "The value of \"zelkon/keyboard/layout\" holds a character";
        QTest::newRow("escape character") << QStringLiteral("\x1b[31m") << qint64(-1) << "zelkon/keyboard/layout";
        // The process died of SIGXFSZ here once.
        QTest::newRow("file-size limit") << QStringLiteral("Norway") << qint64(64)
                                         << "larger than the 64 bytes this session may write";
    }

    void failedSavesKeepTheFile()
    {
        QFETCH(QString, layout);
        QFETCH(qint64, sizeLimit);
        QFETCH(QString, reason);
        keyboard()->setText(layout);

        rlimit old {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
        if (sizeLimit >= 0) {
            rlimit limited = old;
            limited.rlim_cur = rlim_t(sizeLimit);
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &limited), 0);
        }
        ModalAnswer box;
        box.arm();
        const bool saved = m_window->save();
        setrlimit(RLIMIT_FSIZE, &old);

        QVERIFY(!saved);
        QVERIFY(box.answered());
        QCOMPARE(box.icon(), QMessageBox::Critical);
        QVERIFY2(box.text().contains(reason), qPrintable(box.text()));
        QCOMPARE(fileContents(m_current), Kiosk);
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList { QStringLiteral("kiosk.tavlocfg") });
    }

private:
    QString write(const QString& name, const QByteArray& contents)
    {
        const QString path = m_dir->filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    SectionFrame* keyboard() const
    {
        const ConfigPage* regional = m_window->containerPages().constFirst();
        return dynamic_cast<SectionFrame*>(regional->accordion()->items().constLast()->content());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
    QString m_current;
    QString m_oldCurrent;
};

QTEST_MAIN(TestHostileFiles)
#include "tst_hostilefiles.moc"
