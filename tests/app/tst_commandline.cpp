#include "commandline.h"

#include <QtTest>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void parsesOptions_data();
    void parsesOptions();
    void refusesNonsense_data();
    void refusesNonsense();
};

void TestCommandLine::parsesOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("platformIndex");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QString>("deviceRoot");
    QTest::addColumn<QString>("screenshots");
    QTest::addColumn<QString>("file");

    QTest::newRow("nothing") << QStringList() << -1 << false << QString() << QString() << QString();
    QTest::newRow("file only") << QStringList { "a.tavlocfg" } << -1 << false << QString() << QString() << "a.tavlocfg";
    QTest::newRow("lunvex") << QStringList { "--platform", "lunvex" } << 0 << false << QString() << QString()
                            << QString();
    QTest::newRow("WES in capitals") << QStringList { "--platform", "WES" } << 1 << false << QString() << QString()
                                     << QString();
    QTest::newRow("wes7 with equals") << QStringList { "--platform=wes7" } << 2 << false << QString() << QString()
                                      << QString();
    // What "--platform" becomes before the application object sees it.
    QTest::newRow("ce as target") << QStringList { "--target", "ce" } << 3 << false << QString() << QString()
                                  << QString();
    QTest::newRow("everything") << QStringList { "--standalone", "--device-root", "dev", "--screenshots",
                                                 "shots",        "--platform",    "ce",  "b.tavlocfg" }
                                << 3 << true << "dev"
                                << "shots"
                                << "b.tavlocfg";
}

void TestCommandLine::parsesOptions()
{
    QFETCH(QStringList, arguments);
    CommandLine commandLine;
    QVERIFY2(commandLine.parse(QStringList { "zelkon" } + arguments), qPrintable(commandLine.errorText()));
    QTEST(commandLine.platformIndex(), "platformIndex");
    QTEST(commandLine.standalone(), "standalone");
    QTEST(commandLine.deviceRoot(), "deviceRoot");
    QTEST(commandLine.screenshotDirectory(), "screenshots");
    QTEST(commandLine.fileName(), "file");
    QVERIFY(!commandLine.helpRequested());
}

void TestCommandLine::refusesNonsense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("errorPart");

    QTest::newRow("unknown platform") << QStringList { "--platform", "os2" } << "os2";
    QTest::newRow("platform without value") << QStringList { "--platform" } << "platform";
    QTest::newRow("unknown option") << QStringList { "--colour" } << "colour";
    QTest::newRow("two files") << QStringList { "a.tavlocfg", "b.tavlocfg" } << "2";
    QTest::newRow("empty device root") << QStringList { "--device-root=" } << "device-root";
}

void TestCommandLine::refusesNonsense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, errorPart);
    CommandLine commandLine;
    QVERIFY(!commandLine.parse(QStringList { "zelkon" } + arguments));
    QVERIFY2(commandLine.errorText().contains(errorPart), qPrintable(commandLine.errorText()));
}

QTEST_MAIN(TestCommandLine)
#include "tst_commandline.moc"
