#include "displaycheck.h"

#include <QProcess>
#include <QtTest>

namespace {
const QString Binary = QStringLiteral(ZELKON_BINARY);
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);
} // namespace

// How the wizard starts, or refuses to, before any window exists.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void displayCheck_data();
    void displayCheck();
    void withoutDisplay_data();
    void withoutDisplay();
};

void TestStartup::displayCheck_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("wayland");
    QTest::addColumn<bool>("available");

    QTest::newRow("nothing") << ""
                             << ""
                             << "" << false;
    QTest::newRow("X display") << ""
                               << ":0"
                               << "" << true;
    QTest::newRow("Wayland session") << ""
                                     << ""
                                     << "wayland-0" << true;
    QTest::newRow("xcb without X") << "xcb"
                                   << ""
                                   << "wayland-0" << false;
    QTest::newRow("xcb with options") << "xcb:nograb"
                                      << ":1"
                                      << "" << true;
    QTest::newRow("wayland without it") << "wayland"
                                        << ":0"
                                        << "" << false;
    QTest::newRow("wayland-egl") << "wayland-egl"
                                 << ""
                                 << "wayland-0" << true;
    QTest::newRow("fallback to xcb") << "wayland;xcb"
                                     << ":0"
                                     << "" << true;
    QTest::newRow("no fallback works") << "wayland;xcb"
                                       << ""
                                       << "" << false;
    QTest::newRow("offscreen") << "offscreen"
                               << ""
                               << "" << true;
    QTest::newRow("framebuffer") << "linuxfb:fb=/dev/fb0"
                                 << ""
                                 << "" << true;
}

void TestStartup::displayCheck()
{
    QFETCH(QString, platform);
    QFETCH(QString, display);
    QFETCH(QString, wayland);
    QTEST(DisplayCheck::available(platform, display, wayland), "available");
}

void TestStartup::withoutDisplay_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("qpaPlatform");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");

    const QString needsDisplay = DisplayCheck::missingText();
    const QString example = Examples + QStringLiteral("/lunvex-kiosk.tavlocfg");
    QTest::newRow("plain") << QStringList() << QString() << 1 << needsDisplay;
    QTest::newRow("with a file") << QStringList { "--device-root", Examples + "/device", example } << QString() << 1
                                 << needsDisplay;
    QTest::newRow("X asked for") << QStringList() << "xcb" << 1 << needsDisplay;
    // A mistake on the command line is the first thing to fix.
    QTest::newRow("unknown platform") << QStringList { "--platform", "amiga" } << QString() << 2
                                      << "Unknown platform \"amiga\"; choose one of lunvex, wes, wes7, ce.";
    QTest::newRow("two files") << QStringList { example, example } << QString() << 2
                               << "Only one configuration file can be opened, not 2.";
    QTest::newRow("version") << QStringList { "--version" } << QString() << 0 << "Zelkon ";
    QTest::newRow("offscreen") << QStringList { "--version" } << "offscreen" << 0 << "Zelkon ";
}

// Qt itself would abort with a core dump and advice to reinstall.
void TestStartup::withoutDisplay()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, qpaPlatform);
    QFETCH(int, exitCode);
    QFETCH(QString, output);

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "LANGUAGE" })
        environment.remove(QLatin1String(name));
    // The messages compared are the English ones, whatever the machine's language.
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    if (!qpaPlatform.isEmpty())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), qpaPlatform);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(Binary, arguments);
    QVERIFY2(process.waitForFinished(20000), qPrintable(process.errorString()));
    const QString written = QString::fromLocal8Bit(process.readAllStandardOutput() + process.readAllStandardError());

    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), exitCode);
    QVERIFY2(written.startsWith(output), qPrintable(written));
    if (output == DisplayCheck::missingText()) {
        QCOMPARE(written, output + '\n');
        QVERIFY(output.contains(QLatin1String("--screenshots DIR")));
        QVERIFY(output.contains(QLatin1String("ZELKON_USE_XVFB=1")));
    }
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
