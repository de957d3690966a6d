#include "launcher.h"
#include "pagescreenshotter.h"

#include "device/machineroot.h"

#include "platform.h"

#include <QImage>
#include <QtTest>

class TestLauncher : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void screenshotsRenderEveryPage();
    void optionsReachThePlatform();
    void refusesBadArguments_data();
    void refusesBadArguments();
    void keepsPlatformOptionFromQt();
};

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);
}

void TestLauncher::init()
{
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
}

void TestLauncher::cleanup()
{
    MachineRoot::setRoot(QString());
}

void TestLauncher::screenshotsRenderEveryPage()
{
    QTemporaryDir dir;
    const QString shots = dir.filePath(QStringLiteral("shots"));
    QCOMPARE(Launcher::run({ "zelkon", "--device-root", Examples + "/device", "--screenshots", shots,
                             Examples + "/lunvex-kiosk.tavlocfg" }),
             0);
    QCOMPARE(MachineRoot::root(), QDir(Examples + "/device").absolutePath());

    const QStringList written = QDir(shots).entryList(QDir::Files, QDir::Name);
    QCOMPARE(written, PageScreenshotter::fileNames());
    QCOMPARE(written.size(), 6);
    QImage previous;
    for (const QString& name : written) {
        const QImage image(QDir(shots).filePath(name));
        QCOMPARE(image.size(), QSize(1000, 700));
        // Each file shows its own page.
        QVERIFY2(image != previous, qPrintable(name));
        previous = image;
    }
}

void TestLauncher::optionsReachThePlatform()
{
    QTemporaryDir dir;
    QCOMPARE(Launcher::run({ "zelkon", "--platform", "wes7", "--standalone", "--screenshots", dir.path() }), 0);
    QVERIFY(Platform::isWes7());
    QVERIFY(Platform::isStandalone());
}

void TestLauncher::refusesBadArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("unknown platform") << QStringList { "--platform", "amiga" } << 2;
    QTest::newRow("missing device root") << QStringList { "--device-root", "/nonexistent/zelkon" } << 2;
    QTest::newRow("screenshots of a bad file")
        << QStringList { "--screenshots", QDir::tempPath() + "/zelkon-never", "/nonexistent/x.tavlocfg" } << 1;
}

void TestLauncher::refusesBadArguments()
{
    QFETCH(QStringList, arguments);
    QTEST(Launcher::run(QStringList { "zelkon" } + arguments), "exitCode");
    QVERIFY(!QFileInfo::exists(QDir::tempPath() + "/zelkon-never"));
}

void TestLauncher::keepsPlatformOptionFromQt()
{
    QByteArray program("zelkon"), option("--platform"), value("ce"), joined("--platform=wes"), qtStyle("-platform");
    char* argv[] = { program.data(), option.data(), value.data(), joined.data(), qtStyle.data() };
    Launcher::prepareArguments(5, argv);
    QCOMPARE(QByteArray(argv[1]), QByteArray("--target"));
    QCOMPARE(QByteArray(argv[2]), QByteArray("ce"));
    QCOMPARE(QByteArray(argv[3]), QByteArray("--target=wes"));
    // Qt's own single-dash option is left to Qt.
    QCOMPARE(QByteArray(argv[4]), QByteArray("-platform"));
}

QTEST_MAIN(TestLauncher)
#include "tst_launcher.moc"
