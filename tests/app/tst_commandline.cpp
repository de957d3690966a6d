#include "commandline.h"
#include "launcher.h"
#include "pagescreenshotter.h"

#include "device/machineroot.h"

#include "platform.h"

#include <QImage>
#include <QtTest>
#include <vector>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);

// What the command line asks for, read as main() reads it, or why it is refused.
QString understood(const QStringList& arguments)
{
    QList<QByteArray> bytes { "zelkon" };
    for (const QString& argument : arguments)
        bytes.append(argument.toLocal8Bit());
    std::vector<char*> argv;
    for (QByteArray& argument : bytes)
        argv.push_back(argument.data());
    int argc = int(argv.size());
    const QStringList prepared = Launcher::prepareArguments(argc, argv.data());
    // Qt would take "--platform" for its window-system plugin.
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]) == "--")
            break;
        if (QByteArray(argv[i]).startsWith("--platform"))
            return QStringLiteral("left to Qt: ") + QString::fromLocal8Bit(argv[i]);
    }

    CommandLine commandLine;
    if (!commandLine.parse(prepared))
        return QStringLiteral("refused: ") + commandLine.errorText();
    QStringList fields { QStringLiteral("platform %1").arg(commandLine.platformIndex()) };
    if (commandLine.standalone())
        fields << QStringLiteral("standalone");
    if (!commandLine.deviceRoot().isEmpty())
        fields << QStringLiteral("root ") + commandLine.deviceRoot();
    if (!commandLine.fileName().isEmpty())
        fields << QStringLiteral("file ") + commandLine.fileName();
    return fields.join(QStringLiteral(", "));
}
} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void parses_data();
    void parses();
    void screenshotsRenderEveryPage();
};

void TestCommandLine::parses_data()
{
    QTest::addColumn<QStringList>("arguments");
    // For a refusal, the start of the reason.
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << QStringList() << "platform -1";
    QTest::newRow("file") << QStringList { "a.tavlocfg" } << "platform -1, file a.tavlocfg";
    QTest::newRow("platform") << QStringList { "--platform", "lunvex" } << "platform 0";
    QTest::newRow("platform= in capitals") << QStringList { "--platform=WES" } << "platform 1";
    QTest::newRow("everything") << QStringList { "--standalone", "--device-root", "dev", "--platform", "ce", "b.cfg" }
                                << "platform 3, standalone, root dev, file b.cfg";
    QTest::newRow("file after --") << QStringList { "--", "--platform" } << "platform -1, file --platform";
    QTest::newRow("unknown platform") << QStringList { "--platform", "os2" } << "refused: Unknown platform \"os2\"";
    QTest::newRow("platform without value")
        << QStringList { "--platform" } << "refused: Missing value after '--platform'";
    QTest::newRow("unknown option") << QStringList { "--colour" } << "refused: Unknown option 'colour'";
    QTest::newRow("two files") << QStringList { "a.cfg", "b.cfg" } << "refused: Only one configuration file";
    QTest::newRow("empty device root") << QStringList { "--device-root=" } << "refused: --device-root needs";
}

void TestCommandLine::parses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    const QString outcome = understood(arguments);
    if (expected.startsWith(QStringLiteral("refused: ")))
        QVERIFY2(outcome.startsWith(expected), qPrintable(outcome));
    else
        QCOMPARE(outcome, expected);
}

void TestCommandLine::screenshotsRenderEveryPage()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("kiosk.tavlocfg"));
    QVERIFY(QFile::copy(Examples + "/lunvex-kiosk.tavlocfg", file));
    const QString shots = dir.filePath(QStringLiteral("shots"));
    // Unattended, what cannot be done is an exit code, not a message box, and writes nothing.
    QCOMPARE(Launcher::run({ "zelkon", "--device-root", "/nonexistent/zelkon", "--screenshots", shots }), 2);
    QCOMPARE(Launcher::run({ "zelkon", "--screenshots", shots, file + ".missing" }), 1);
    QVERIFY(!QFileInfo::exists(shots));

    QCOMPARE(Launcher::run({ "zelkon", "--platform", "wes7", "--standalone", "--device-root", Examples + "/device",
                             "--screenshots", shots, file }),
             0);
    // The wizard starts on Lunvex, not standalone.
    QVERIFY(Platform::isWes7());
    QVERIFY(Platform::isStandalone());
    QCOMPARE(MachineRoot::root(), QDir(Examples + "/device").absolutePath());
    const QStringList written = QDir(shots).entryList(QDir::Files, QDir::Name);
    QCOMPARE(written.size(), 6);
    QCOMPARE(written, PageScreenshotter::fileNames());
    QImage previous;
    for (const QString& name : written) {
        const QImage image(QDir(shots).filePath(name));
        QCOMPARE(image.size(), QSize(1000, 700));
        // Each file shows its own page.
        QVERIFY2(image != previous, qPrintable(name));
        previous = image;
    }
}

QTEST_MAIN(TestCommandLine)
#include "tst_commandline.moc"
