#include "config/configfile.h"
#include "faketool.h"
#include "modalanswer.h"
#include "platform.h"

#include <QtTest>

/*
 * The document on disk and towards the device: loading (with the device's settings
 * fetched first on CE and WES), saving without ever losing the previous file, applying
 * through the settings tool, and validation against a schema.
 */
class ConfigFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void freshDocumentSaves();
    void saveAndLoadRoundTrip();
    void emptyValueReadsBackWithoutText();
    void loadOfMissingFileChangesNothing();
    void loadOfUnparsableFileLeavesNullCursor();
    void failedSaveKeepsOldFile();
    void fileName();
    void loadFetchesDeviceSettings_data();
    void loadFetchesDeviceSettings();
    void applySavesAndAppliesDeviceFile();
    void applyWithoutTool();
    void validateWithoutSchema();
    void validateValidDocument();
    void validateInvalidDocument();

private:
    QString readFile(const QString& path) const;
    void writeFile(const QString& path, const QByteArray& contents) const;

    std::unique_ptr<QTemporaryDir> m_tempDir;
    QDir m_dir;
    QString m_oldCurrent;
};

namespace {
const QByteArray FreshDocument = "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\n"
                                 "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\"/>\n";

const QByteArray TestSchema = R"(<?xml version="1.0"?>
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
 <xs:element name="zelkon">
  <xs:complexType>
   <xs:sequence>
    <xs:element name="sound" minOccurs="0">
     <xs:complexType>
      <xs:sequence>
       <xs:element name="volume" type="xs:int"/>
      </xs:sequence>
     </xs:complexType>
    </xs:element>
   </xs:sequence>
   <xs:attribute name="version" type="xs:string"/>
   <xs:attribute name="creator" type="xs:string"/>
   <xs:attribute name="creator_version" type="xs:string"/>
  </xs:complexType>
 </xs:element>
</xs:schema>
)";

// Whether call() opened a modal dialog; one that opens is closed at once.
template <typename Call> bool opensModalDialog(Call call)
{
    bool opened = false;
    QTimer watch;
    watch.setSingleShot(true);
    QObject::connect(&watch, &QTimer::timeout, [&opened] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            opened = true;
            dialog->close();
        }
    });
    watch.start(0);
    call();
    watch.stop();
    return opened;
}
} // namespace

void ConfigFilesTest::init()
{
    // The settings tool works in the current directory: a fresh one for every test.
    m_tempDir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_tempDir->isValid());
    m_dir = QDir(m_tempDir->path());
    m_oldCurrent = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_dir.path()));
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
}

void ConfigFilesTest::cleanup()
{
    QDir::setCurrent(m_oldCurrent);
    m_tempDir.reset();
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
}

QString ConfigFilesTest::readFile(const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll());
}

void ConfigFilesTest::writeFile(const QString& path, const QByteArray& contents) const
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(contents);
}

void ConfigFilesTest::freshDocumentSaves()
{
    ConfigFile config;
    const QString path = m_dir.filePath(QStringLiteral("fresh.tavlocfg"));
    QVERIFY(config.save(path));
    QCOMPARE(readFile(path), QString::fromUtf8(FreshDocument));
    QCOMPARE(config.toString(), QString::fromUtf8(FreshDocument));
    QCOMPARE(config.getfilename(), path);
}

void ConfigFilesTest::saveAndLoadRoundTrip()
{
    ConfigFile config;
    config.addNode(QStringLiteral("sound"));
    config.setIntValue(QStringLiteral("volume"), 7);
    config.setValue(QStringLiteral("device"), QStringLiteral("a & b <c>"));
    config.leaveNode();
    config.addNode(QStringLiteral("rdp"));
    config.addNode(QStringLiteral("session"));
    config.setValue(QStringLiteral("name"), QStringLiteral("one"));
    const QString path = m_dir.filePath(QStringLiteral("round.tavlocfg"));
    QVERIFY(config.save(path));
    QCOMPARE(readFile(path),
             QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\" ?>\n"
                            "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\">\n"
                            " <sound>\n"
                            "  <volume>7</volume>\n"
                            "  <device>a &amp; b &lt;c></device>\n"
                            " </sound>\n"
                            " <rdp>\n"
                            "  <session>\n"
                            "   <name>one</name>\n"
                            "  </session>\n"
                            " </rdp>\n"
                            "</zelkon>\n"));

    ConfigFile loaded;
    loaded.addNode(QStringLiteral("stale"));
    QVERIFY(loaded.load(path));
    QCOMPARE(loaded.currentNodePath(), QStringLiteral("zelkon"));
    QCOMPARE(loaded.namedNodeCount(QStringLiteral("stale")), 0);
    QVERIFY(loaded.findNode(QStringLiteral("sound"), 0));
    QCOMPARE(loaded.intValue(QStringLiteral("volume")), 7);
    QCOMPARE(loaded.value(QStringLiteral("device")), QStringLiteral("a & b <c>"));
    // Loading neither names nor validates the document.
    QVERIFY(loaded.getfilename().isEmpty());
    QVERIFY(!loaded.isValid());
}

void ConfigFilesTest::emptyValueReadsBackWithoutText()
{
    ConfigFile config;
    config.addNode(QStringLiteral("wireless"));
    config.setValue(QStringLiteral("ssid"), QString());
    const QString path = m_dir.filePath(QStringLiteral("empty.tavlocfg"));
    QVERIFY(config.save(path));
    QVERIFY(readFile(path).contains(QLatin1String("<ssid></ssid>")));

    ConfigFile loaded;
    QVERIFY(loaded.load(path));
    loaded.findNode(QStringLiteral("wireless"), 0);
    loaded.setValue(QStringLiteral("ssid"), QStringLiteral("office"));
    QCOMPARE(loaded.value(QStringLiteral("ssid")), QString());
    QVERIFY(loaded.save(path));
    QVERIFY(readFile(path).contains(QLatin1String("<ssid/>")));
}

void ConfigFilesTest::loadOfMissingFileChangesNothing()
{
    ConfigFile config;
    config.addNode(QStringLiteral("sound"));
    const QString before = config.toString();
    QVERIFY(!config.load(m_dir.filePath(QStringLiteral("missing.tavlocfg"))));
    QCOMPARE(config.toString(), before);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/sound"));
}

void ConfigFilesTest::loadOfUnparsableFileLeavesNullCursor()
{
    const QString path = m_dir.filePath(QStringLiteral("broken.tavlocfg"));
    writeFile(path, "<zelkon><sound></zelkon>");
    ConfigFile config;
    QVERIFY(config.load(path));
    QVERIFY(config.currentNode().isNull());
    QVERIFY(config.documentElement().isNull());
    QVERIFY(config.toString().isEmpty());
    QCOMPARE(config.addNode(QStringLiteral("sound")), -1);
    QVERIFY(config.toFormattedString().isEmpty());
}

void ConfigFilesTest::failedSaveKeepsOldFile()
{
    const QString path = m_dir.filePath(QStringLiteral("keep.tavlocfg"));
    writeFile(path, "old contents");
    ConfigFile config;

    // A path below a regular file cannot be created, even by root.
    QVERIFY(!config.save(path + QStringLiteral("/inside.tavlocfg")));
    QCOMPARE(readFile(path), QStringLiteral("old contents"));

    // The document's own file name follows the attempt, as the title bar would.
    QCOMPARE(config.getfilename(), path + QStringLiteral("/inside.tavlocfg"));

    // A directory standing where the file should go is not replaced either.
    const QString dirPath = m_dir.filePath(QStringLiteral("adir"));
    QVERIFY(QDir().mkpath(dirPath + QStringLiteral("/child")));
    QVERIFY(!config.save(dirPath));
    QVERIFY(QFileInfo(dirPath + QStringLiteral("/child")).isDir());

    QVERIFY(config.save(path));
    QCOMPARE(readFile(path).toUtf8(), FreshDocument);
}

void ConfigFilesTest::fileName()
{
    ConfigFile config;
    config.setfilename(QStringLiteral(" a "));
    QCOMPARE(config.getfilename(), QStringLiteral(" a "));
    config.setfilename(QStringLiteral("   "));
    QCOMPARE(config.getfilename(), QStringLiteral(" a "));
    config.setfilename(QString());
    QCOMPARE(config.getfilename(), QStringLiteral(" a "));
}

void ConfigFilesTest::loadFetchesDeviceSettings_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<bool>("fetches");
    QTest::newRow("Lunvex") << int(Platform::Lunvex) << false << false;
    QTest::newRow("Lunvex standalone") << int(Platform::Lunvex) << true << false;
    QTest::newRow("WES") << int(Platform::Wes) << false << true;
    QTest::newRow("WES standalone") << int(Platform::Wes) << true << false;
    QTest::newRow("WES7") << int(Platform::Wes7) << false << false;
    QTest::newRow("CE") << int(Platform::Ce) << false << true;
    QTest::newRow("CE standalone") << int(Platform::Ce) << true << false;
}

void ConfigFilesTest::loadFetchesDeviceSettings()
{
    QFETCH(int, target);
    QFETCH(bool, standalone);
    QFETCH(bool, fetches);

    FakeTool tool(QStringLiteral("tavlosettings"), 3);
    // The device's settings land in the current directory; here they are what is loaded.
    tool.setWritesFile(QStringLiteral("default.tavlocfg"),
                       "<zelkon version=\"1.0\"><sound><volume>4</volume></sound></zelkon>");
    Platform::instance()->setTarget(static_cast<Platform::Target>(target));
    Platform::instance()->setStandalone(standalone);

    ConfigFile config;
    const bool loaded = config.load(QStringLiteral("default.tavlocfg"));

    const QList<FakeTool::Run> runs = tool.runs();
    if (!fetches) {
        QVERIFY(runs.isEmpty());
        QVERIFY(!loaded);
        return;
    }
    QCOMPARE(runs.size(), 1);
    QCOMPARE(runs.first().arguments, (QStringList { "-settings", "default.tavlocfg", "-get", "all" }));
    QCOMPARE(QFileInfo(runs.first().workingDirectory).canonicalFilePath(), QFileInfo(m_dir.path()).canonicalFilePath());
    // The tool's exit status is not looked at.
    QVERIFY(loaded);
    QCOMPARE(config.intValue(QStringLiteral("volume")), 4);
}

void ConfigFilesTest::applySavesAndAppliesDeviceFile()
{
    FakeTool tool(QStringLiteral("tavlosettings"), 1);
    Platform::instance()->setTarget(Platform::Ce);
    ConfigFile config;
    config.addNode(QStringLiteral("sound"));

    const QString path = m_dir.filePath(QStringLiteral("elsewhere.tavlocfg"));
    config.apply(path);
    QCOMPARE(config.getfilename(), path);
    QVERIFY(readFile(path).contains(QLatin1String("<sound/>")));
    // Only the device file is ever applied; it was not written here.
    QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("default.tavlocfg"))));

    config.apply(QStringLiteral("default.tavlocfg"));
    QVERIFY(readFile(m_dir.filePath(QStringLiteral("default.tavlocfg"))).contains(QLatin1String("<sound/>")));

    const QList<FakeTool::Run> runs = tool.runs();
    QCOMPARE(runs.size(), 2);
    for (const FakeTool::Run& run : runs) {
        QCOMPARE(run.arguments, (QStringList { "-settings", "default.tavlocfg", "-set", "all" }));
        QCOMPARE(QFileInfo(run.workingDirectory).canonicalFilePath(), QFileInfo(m_dir.path()).canonicalFilePath());
    }
}

void ConfigFilesTest::applyWithoutTool()
{
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(m_dir.path()));
    ConfigFile config;
    const bool dialog = opensModalDialog([&config] { config.apply(QStringLiteral("default.tavlocfg")); });
    qputenv("PATH", oldPath);

    QVERIFY(!dialog);
    QVERIFY(QFile::exists(m_dir.filePath(QStringLiteral("default.tavlocfg"))));
}

void ConfigFilesTest::validateWithoutSchema()
{
    ConfigFile config;
    bool result = true;
    QVERIFY(!opensModalDialog([&] { result = config.validate(); }));
    QVERIFY(!result);
    QVERIFY(!config.isValid());
    QVERIFY(config.errorMessage().isEmpty());

    QVERIFY(!config.setSchema("not a schema"));
    QVERIFY(!config.validate());
}

void ConfigFilesTest::validateValidDocument()
{
    ConfigFile config;
    QVERIFY(config.setSchema(TestSchema));
    config.addNode(QStringLiteral("sound"));
    config.setIntValue(QStringLiteral("volume"), 5);

    ModalAnswer answer;
    answer.arm();
    QTest::ignoreMessage(QtDebugMsg, "The configuration file is valid.");
    QVERIFY(config.validate());
    QVERIFY(answer.answered());
    QCOMPARE(answer.title(), QStringLiteral("Validation"));
    QCOMPARE(answer.text(), QStringLiteral("The configuration file is valid."));
    QCOMPARE(answer.icon(), QMessageBox::Information);
    QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(config.isValid());
    QVERIFY(config.errorMessage().isEmpty());
}

void ConfigFilesTest::validateInvalidDocument()
{
    ConfigFile config;
    QVERIFY(config.setSchema(TestSchema));
    config.addNode(QStringLiteral("sound"));
    config.setIntValue(QStringLiteral("volume"), 5);
    ModalAnswer first;
    first.arm();
    QTest::ignoreMessage(QtDebugMsg, "The configuration file is valid.");
    QVERIFY(config.validate());
    QVERIFY(first.answered());

    config.setValue(QStringLiteral("volume"), QStringLiteral("loud"));
    ModalAnswer answer;
    answer.arm();
    QTest::ignoreMessage(
        QtDebugMsg, QRegularExpression(QStringLiteral("^The configuration file is invalid. \"Line 4 Col \\d+ .+\"$")));
    QVERIFY(!config.validate());
    QVERIFY(answer.answered());
    QVERIFY(!config.isValid());

    // The volume element is on line 4 of the serialised document.
    const QString error = config.errorMessage();
    QVERIFY2(QRegularExpression(QStringLiteral("^Line 4 Col \\d+ .*loud")).match(error).hasMatch(), qPrintable(error));
    QCOMPARE(answer.title(), QStringLiteral("Validation"));
    QCOMPARE(answer.text(), QStringLiteral("The configuration file is invalid. ") + error);
    QCOMPARE(answer.icon(), QMessageBox::Information);
    QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
}

QTEST_MAIN(ConfigFilesTest)
#include "tst_configfiles.moc"
