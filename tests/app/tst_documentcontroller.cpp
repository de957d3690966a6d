#include "documentcontroller.h"
#include "filecontents.h"
#include "launcher.h"
#include "sectionframe.h"

#include "faketool.h"

#include "config/configfile.h"
#include "pages/configpage.h"

#include "platform.h"

#include <QDomDocument>
#include <QtTest>
#include <memory>
#include <sys/resource.h>

namespace {
// Writes a new section of its name on every save, as the connection model does with the
// desktop settings, instead of changing the one that is there.
class AppendingFrame : public ConfigFrame
{
public:
    explicit AppendingFrame(const QString& section)
        : m_section(section)
    {
    }
    QString title() const override { return m_section; }
    QString helpText() const override { return QString(); }
    void loadConfig(ConfigFile*) override { }
    void saveConfig(ConfigFile* config) override
    {
        if (!isDirty())
            return;
        config->addNode(m_section);
        config->setValue(QStringLiteral("value"), value);
        config->leaveNode();
    }
    void change(const QString& text)
    {
        value = text;
        setDirty();
    }
    QString value;

private:
    QString m_section;
};

class StubPage : public ConfigPage
{
public:
    explicit StubPage(const QList<ConfigFrame*>& frames)
    {
        createAccordion();
        for (ConfigFrame* frame : frames)
            addFrame(frame);
    }
    QString title() const override { return QStringLiteral("Stub"); }
    QString description() const override { return QString(); }
    QString baseHelpText() const override { return QString(); }
    void retranslateUi() override { }
};

// The names of the sections below the root, in order, with their first value each:
// "keyboard=Germany,desktop=on".
QString outline(const QDomElement& root)
{
    QStringList sections;
    for (QDomElement section = root.firstChildElement(); !section.isNull(); section = section.nextSiblingElement())
        sections.append(section.tagName() + '=' + section.firstChildElement().text());
    return sections.join(',');
}

QString outline(const QByteArray& bytes)
{
    QDomDocument document;
    document.setContent(bytes);
    return outline(document.documentElement());
}
} // namespace

class TestDocumentController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void sectionsAfterGenerating_data();
    void sectionsAfterGenerating();
    void generatingTwiceGivesTheSame();
    void generatedDocumentIsValidated();
    void loadRefusesWhatIsNoConfiguration_data();
    void loadRefusesWhatIsNoConfiguration();
    void saveFailureReasons_data();
    void saveFailureReasons();
    void applyNeedsItsFileWritten();
    void applyReportsTheTool_data();
    void applyReportsTheTool();

private:
    QString write(const QString& name, const QByteArray& contents);
    // Loads contents into the controller and its pages.
    void open(const QByteArray& contents);

    std::unique_ptr<QTemporaryDir> m_dir;
    SectionFrame* m_keyboard = nullptr;
    AppendingFrame* m_desktop = nullptr;
    SectionFrame* m_locale = nullptr;
    std::unique_ptr<StubPage> m_first;
    std::unique_ptr<StubPage> m_second;
    std::unique_ptr<DocumentController> m_controller;
    QString m_oldCurrent;
};

void TestDocumentController::initTestCase()
{
    // As in the application: a write past the file-size limit fails instead of killing us.
    Launcher::prepareProcess();
}

void TestDocumentController::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_oldCurrent = QDir::currentPath();
    QDir::setCurrent(m_dir->path());
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
    m_keyboard = new SectionFrame(QStringLiteral("keyboard"), QStringLiteral("layout"));
    m_desktop = new AppendingFrame(QStringLiteral("desktop"));
    m_locale = new SectionFrame(QStringLiteral("locale"), QStringLiteral("name"));
    // Two pages, so that sections are written in an order of pages as well as of frames.
    m_first = std::make_unique<StubPage>(QList<ConfigFrame*> { m_keyboard, m_desktop });
    m_second = std::make_unique<StubPage>(QList<ConfigFrame*> { m_locale });
    m_controller = std::make_unique<DocumentController>();
    m_controller->setPages({ m_first.get(), m_second.get() });
}

void TestDocumentController::cleanup()
{
    m_controller.reset();
    m_first.reset();
    m_second.reset();
    QDir::setCurrent(m_oldCurrent);
    m_dir.reset();
}

QString TestDocumentController::write(const QString& name, const QByteArray& contents)
{
    const QString path = m_dir->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

void TestDocumentController::open(const QByteArray& contents)
{
    QString reason;
    QVERIFY2(m_controller->load(write(QStringLiteral("open.tavlocfg"), contents), &reason), qPrintable(reason));
    m_controller->loadPages();
}

void TestDocumentController::sectionsAfterGenerating_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("edits");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing changed") << QByteArray(
        "<zelkon><usb><a>1</a></usb><keyboard><layout>Germany</layout></keyboard></zelkon>")
                                     << ""
                                     << "usb=1,keyboard=Germany";
    // The appended copy is the current one; the file's stale one goes.
    QTest::newRow("appended section replaces the file's")
        << QByteArray("<zelkon><desktop><value>old</value></desktop><usb><a>1</a></usb></zelkon>") << "desktop"
        << "desktop=new,usb=1";
    QTest::newRow("repeated sections from the file stay")
        << QByteArray("<zelkon><usb><a>2</a></usb><extra><a>1</a></extra><extra><a>3</a></extra></zelkon>")
        << "keyboard"
        << "usb=2,extra=1,extra=3,keyboard=Norway";
    // A frame edits the first of two sections of its name; both are kept, in place.
    QTest::newRow("edited repeated section")
        << QByteArray("<zelkon><usb><a>1</a></usb><keyboard><layout>A</layout></keyboard>"
                      "<keyboard><layout>B</layout></keyboard></zelkon>")
        << "keyboard"
        << "usb=1,keyboard=Norway,keyboard=B";
    // The file's order holds; new sections follow in the order the pages wrote them.
    QTest::newRow("new sections after the file's")
        << QByteArray("<zelkon><usb><a>1</a></usb><keyboard><layout>A</layout></keyboard></zelkon>")
        << "locale,desktop,keyboard"
        << "usb=1,keyboard=Norway,desktop=new,locale=Polski";
    QTest::newRow("empty file, every frame") << QByteArray("<zelkon/>") << "locale,keyboard,desktop"
                                             << "keyboard=Norway,desktop=new,locale=Polski";
}

void TestDocumentController::sectionsAfterGenerating()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, edits);
    QFETCH(QString, expected);
    open(file);
    for (const QString& edit : edits.split(',', Qt::SkipEmptyParts)) {
        if (edit == "keyboard")
            m_keyboard->setText(QStringLiteral("Norway"));
        else if (edit == "desktop")
            m_desktop->change(QStringLiteral("new"));
        else
            m_locale->setText(QStringLiteral("Polski"));
    }
    const QString saved = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    QVERIFY(m_controller->save(saved, nullptr));
    QCOMPARE(outline(fileContents(saved)), expected);
    // What was loaded is never edited.
    QCOMPARE(outline(m_controller->loadedDocument()->documentElement()), outline(file));
}

// The summary generates each time it is shown, and saving once more.
void TestDocumentController::generatingTwiceGivesTheSame()
{
    open("<zelkon><desktop><value>old</value></desktop><keyboard><layout>A</layout></keyboard></zelkon>");
    m_desktop->change(QStringLiteral("new"));
    m_locale->setText(QStringLiteral("Polski"));
    m_controller->generate();
    const QString first = m_controller->generatedDocument()->toString();
    QCOMPARE(outline(m_controller->generatedDocument()->documentElement()), "desktop=new,keyboard=A,locale=Polski");
    m_controller->generate();
    QCOMPARE(m_controller->generatedDocument()->toString(), first);
    // A second edit replaces the first rather than adding to it.
    m_desktop->change(QStringLiteral("newer"));
    m_controller->generate();
    QCOMPARE(outline(m_controller->generatedDocument()->documentElement()), "desktop=newer,keyboard=A,locale=Polski");
    // Nothing of the previous configuration is carried into the next one.
    StubPage fresh({});
    m_controller->setPages({ &fresh });
    QVERIFY(
        m_controller->load(write(QStringLiteral("next.tavlocfg"), "<zelkon><usb><a>1</a></usb></zelkon>"), nullptr));
    m_controller->generate();
    QCOMPARE(outline(m_controller->generatedDocument()->documentElement()), "usb=1");
}

void TestDocumentController::generatedDocumentIsValidated()
{
    // The shipped schema is compiled with the first generation, not with the controller;
    // without a schema validate() reports false.
    open("<zelkon><keyboard><layout>Germany</layout></keyboard></zelkon>");
    m_controller->generate();
    QVERIFY(m_controller->generatedDocument()->validate());
    QVERIFY(m_controller->generatedDocument()->isValid());

    m_controller->generatedDocument()->setCurrentNodeAsRoot();
    m_controller->generatedDocument()->setValue(QStringLiteral("no_such_section"), QStringLiteral("1"));
    QVERIFY(!m_controller->generatedDocument()->validate());
}

void TestDocumentController::loadRefusesWhatIsNoConfiguration_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing") << QByteArray("") << "The file is empty.";
    QTest::newRow("only blanks") << QByteArray(" \n\t\r\n  \n") << "The file is empty.";
    QTest::newRow("blanks around text") << QByteArray("  \n plain text \n") << "It is not an XML document";
    QTest::newRow("another root") << QByteArray("<settings/>") << "<settings>";
}

void TestDocumentController::loadRefusesWhatIsNoConfiguration()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, reason);
    open("<zelkon><keyboard><layout>A</layout></keyboard></zelkon>");
    const QString before = m_controller->loadedDocument()->toString();
    const QString path = m_controller->filePath();

    QString given;
    QVERIFY(!m_controller->load(write(QStringLiteral("bad.tavlocfg"), contents), &given));
    QVERIFY2(given.contains(reason), qPrintable(given));
    QCOMPARE(m_controller->loadedDocument()->toString(), before);
    QCOMPARE(m_controller->filePath(), path);
}

void TestDocumentController::saveFailureReasons_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("value");
    QTest::addColumn<qint64>("sizeLimit");
    QTest::addColumn<QString>("reason");

    QTest::newRow("control character")
        << "saved.tavlocfg" << QStringLiteral("Nor\x01way") << qint64(0)
        << "The value of \"zelkon/keyboard/layout\" holds a character that a configuration file cannot "
           "hold, such as a control character; remove it and save again.";
    QTest::newRow("missing folder") << "missing/saved.tavlocfg"
                                    << "Norway" << qint64(0) << "The folder \"%1\" does not exist.";
    QTest::newRow("file as folder") << "plain/saved.tavlocfg"
                                    << "Norway" << qint64(0) << "\"%1\" is not a folder.";
    QTest::newRow("folder in the way") << "folder"
                                       << "Norway" << qint64(0) << "A folder of that name is in the way.";
    QTest::newRow("file size limit") << "saved.tavlocfg"
                                     << "Norway" << qint64(20)
                                     << "It would be larger than the 20 bytes this session may write to a file.";
}

void TestDocumentController::saveFailureReasons()
{
    QFETCH(QString, target);
    QFETCH(QString, value);
    QFETCH(qint64, sizeLimit);
    QFETCH(QString, reason);
    write(QStringLiteral("plain"), "x");
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
    open("<zelkon><keyboard><layout>A</layout></keyboard></zelkon>");
    m_keyboard->setText(value);
    const QString path = m_dir->filePath(target);

    rlimit old {};
    QVERIFY(getrlimit(RLIMIT_FSIZE, &old) == 0);
    if (sizeLimit > 0) {
        rlimit lowered = old;
        lowered.rlim_cur = rlim_t(sizeLimit);
        QVERIFY(setrlimit(RLIMIT_FSIZE, &lowered) == 0);
    }
    QString given;
    const bool saved = m_controller->save(path, &given);
    setrlimit(RLIMIT_FSIZE, &old);

    QVERIFY(!saved);
    const QString folder = QDir::toNativeSeparators(QFileInfo(path).absolutePath());
    QCOMPARE(given, reason.contains(QLatin1String("%1")) ? reason.arg(folder) : reason);
    // Nothing was left behind, and the document remembers no file it could not write.
    QVERIFY(!QFileInfo(path).isFile());
    QCOMPARE(m_controller->filePath(), m_dir->filePath(QStringLiteral("open.tavlocfg")));
}

void TestDocumentController::applyNeedsItsFileWritten()
{
    FakeTool settings(QStringLiteral("tavlosettings"));
    open("<zelkon><keyboard><layout>A</layout></keyboard></zelkon>");
    m_keyboard->setText(QStringLiteral("Norway"));
    QVERIFY(QDir(m_dir->path()).mkdir(DocumentController::applyFileName()));

    QString given;
    QVERIFY(!m_controller->apply(&given));
    // The tool would have applied whatever an old file held.
    QCOMPARE(settings.runs().size(), 0);
    const QString path = QDir::toNativeSeparators(m_dir->filePath(DocumentController::applyFileName()));
    QCOMPARE(given,
             QStringLiteral("The settings tool reads the configuration from \"%1\", which could not be "
                            "written. A folder of that name is in the way.")
                 .arg(path));
}

void TestDocumentController::applyReportsTheTool_data()
{
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("reason");
    QTest::newRow("success") << 0 << QString();
    QTest::newRow("failure") << 3
                             << "The settings tool \"tavlosettings\" reported a failure (exit code 3); the "
                                "configuration may have been applied only in part.";
}

void TestDocumentController::applyReportsTheTool()
{
    QFETCH(int, exitCode);
    QFETCH(QString, reason);
    FakeTool settings(QStringLiteral("tavlosettings"), exitCode);
    open("<zelkon><usb><a>1</a></usb><keyboard><layout>A</layout></keyboard></zelkon>");
    m_keyboard->setText(QStringLiteral("Norway"));

    QString given;
    QCOMPARE(m_controller->apply(&given), reason.isEmpty());
    QCOMPARE(given, reason);
    QCOMPARE(settings.runs().size(), 1);
    QCOMPARE(outline(fileContents(DocumentController::applyFileName())), "usb=1,keyboard=Norway");
}

QTEST_MAIN(TestDocumentController)
#include "tst_documentcontroller.moc"
