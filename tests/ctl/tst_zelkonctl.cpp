#include "config/configfile.h"
#include "configdocument.h"
#include "faketool.h"
#include "filecontents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

namespace {

const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);

struct Outcome
{
    int exitCode = -1;
    QString out;
    QString err;
};

// The tool as a shell runs it on a server: no display, no platform plugin chosen.
Outcome zelkonctl(const QStringList& arguments, const QString& workingDirectory = QString())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        environment.remove(QLatin1String(name));
    process.setProcessEnvironment(environment);
    if (!workingDirectory.isEmpty())
        process.setWorkingDirectory(workingDirectory);
    process.start(QStringLiteral(ZELKONCTL), arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

} // namespace

class TestZelkonCtl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void linksNoWidgets();
    void usage_data();
    void usage();
    void check_data();
    void check();
    void checkManyFiles();
    void showFormats();
    void diff();
    void getAndSet();
    void setRefusesAnInvalidResult();
    void sortKeepsEverythingElse();
    void merge_data();
    void merge();
    void apply();

private:
    QString write(const QString& name, const QByteArray& contents);

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestZelkonCtl::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

QString TestZelkonCtl::write(const QString& name, const QByteArray& contents)
{
    const QString path = m_dir->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

// It runs where there is no display because nothing in it can make a widget.
void TestZelkonCtl::linksNoWidgets()
{
    QProcess ldd;
    ldd.start(QStringLiteral("ldd"), { QStringLiteral(ZELKONCTL) });
    if (!ldd.waitForFinished(30000))
        QSKIP("ldd is not available");
    const QString libraries = QString::fromLocal8Bit(ldd.readAllStandardOutput());
    QVERIFY2(libraries.contains("libtavlozelkon_core"), qPrintable(libraries));
    QVERIFY2(!libraries.contains("Widgets") && !libraries.contains("libtavlozelkon_lib"), qPrintable(libraries));
}

void TestZelkonCtl::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::newRow("help") << QStringList { "--help" } << 0 << "merge BASE OVERLAY... [-o OUT]";
    QTest::newRow("version") << QStringList { "--version" } << 0 << "zelkonctl 2.0.0\n";
    QTest::newRow("command help") << QStringList { "diff", "--help" } << 0 << "Usage: zelkonctl diff A B";
    QTest::newRow("no command") << QStringList() << 2 << "no command given";
    QTest::newRow("unknown command") << QStringList { "lint" } << 2 << "unknown command \"lint\"";
    QTest::newRow("no file") << QStringList { "check" } << 2 << "no file to check";
    QTest::newRow("unknown option") << QStringList { "show", "--colour", "x" } << 2 << "Unknown option 'colour'";
    QTest::newRow("unknown format") << QStringList { "show", "--format", "xml", "x" } << 2 << "unknown format";
    QTest::newRow("bad assignment") << QStringList { "set", "x", "usb" } << 2 << "no SECTION/KEY=VALUE";
}

void TestZelkonCtl::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    const Outcome outcome = zelkonctl(arguments);
    QCOMPARE(outcome.exitCode, exitCode);
    // Data on standard output, complaints on standard error.
    const QString& stream = exitCode == 0 ? outcome.out : outcome.err;
    QVERIFY2(stream.contains(output), qPrintable(outcome.out + outcome.err));
}

void TestZelkonCtl::check_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("errors");
    const QStringList examples { Examples + "/ce-terminal.tavlocfg", Examples + "/lunvex-kiosk.tavlocfg",
                                 Examples + "/wes-office.tavlocfg" };
    QTest::newRow("examples") << examples << 0 << QString();
    QTest::newRow("one bad among good") << (QStringList(examples) << "bad.tavlocfg") << 1 << "bad.tavlocfg:4:";
    QTest::newRow("missing") << QStringList { "none.tavlocfg" } << 1 << "none.tavlocfg:1:1: cannot be read";
    QTest::newRow("not xml") << QStringList { "text.tavlocfg" } << 1 << "text.tavlocfg:1:";
}

void TestZelkonCtl::check()
{
    QFETCH(QStringList, files);
    QFETCH(int, exitCode);
    QFETCH(QString, errors);
    write("bad.tavlocfg", configDocument(" <power>\n  <screen_saver_delay>150</screen_saver_delay>\n </power>\n"));
    write("text.tavlocfg", "screen_saver_delay=5\n");
    const Outcome outcome = zelkonctl(QStringList { "check" } + files, m_dir->path());
    QCOMPARE(outcome.exitCode, exitCode);
    QCOMPARE(outcome.out, QString());
    if (errors.isEmpty()) {
        QCOMPARE(outcome.err, QString());
    } else {
        // One line per problem, each starting with where it is.
        QCOMPARE(outcome.err.count('\n'), 1);
        QVERIFY2(outcome.err.startsWith(errors), qPrintable(outcome.err));
    }
}

// Enough files to be checked in parallel; the report keeps the order of the arguments.
void TestZelkonCtl::checkManyFiles()
{
    const QByteArray good = fileContents(Examples + "/wes-office.tavlocfg");
    QStringList files;
    for (int i = 0; i < 300; ++i) {
        const bool bad = i == 7 || i == 250;
        files.append(write(QStringLiteral("f%1.tavlocfg").arg(i),
                           bad ? configDocument(" <usb><enable>maybe</enable></usb>\n") : good));
    }
    const Outcome outcome = zelkonctl(QStringList { "check" } + files);
    QCOMPARE(outcome.exitCode, 1);
    const QStringList lines = outcome.err.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).startsWith(files.at(7) + ":3:"), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).startsWith(files.at(250) + ":3:"), qPrintable(lines.at(1)));
}

void TestZelkonCtl::showFormats()
{
    const QString kiosk = Examples + "/lunvex-kiosk.tavlocfg";
    ConfigFile config;
    QVERIFY(config.load(kiosk));
    QCOMPARE(zelkonctl({ "show", "--format", "html", kiosk }).out, config.toFormattedString() + '\n');

    const Outcome text = zelkonctl({ "show", kiosk });
    QCOMPARE(text.exitCode, 0);
    QVERIFY2(text.out.contains("Remote_assistance\n  Enable: true\n  Password: ********\n"), qPrintable(text.out));
    QVERIFY(text.out.contains("RDP\n  - Name: Warehouse terminal server\n    Autostart: true\n"));
    QVERIFY(text.out.contains("Display\n  Resolution: 1920x1080\n  Color Depth: 24 Bpp\n"));
    QVERIFY(zelkonctl({ "show", "--reveal", kiosk }).out.contains("  Password: h3lpd3sk\n"));

    const QJsonObject json
        = QJsonDocument::fromJson(zelkonctl({ "show", "--format", "json", kiosk }).out.toUtf8()).object();
    QCOMPARE(json.value("usb").toObject(), (QJsonObject { { "enable", "false" }, { "read_only", "true" } }));
    QCOMPARE(json.value("remote_assistance").toObject().value("password").toString(), QStringLiteral("********"));
    const QJsonArray sessions = json.value("rdp").toObject().value("session").toArray();
    QCOMPARE(sessions.size(), 1);
    QCOMPARE(sessions.at(0).toObject().value("id").toString(),
             QStringLiteral("{3f1c9a52-7d4e-4b8a-9c21-5e6f0a7b8c9d}"));

    QCOMPARE(zelkonctl({ "show", m_dir->filePath("none") }).exitCode, 1);
}

void TestZelkonCtl::diff()
{
    const QString kiosk = Examples + "/lunvex-kiosk.tavlocfg";
    const Outcome same = zelkonctl({ "diff", kiosk, kiosk });
    QCOMPARE(same.exitCode, 0);
    QCOMPARE(same.out, QString());

    QByteArray edited = fileContents(kiosk);
    edited.replace("<layout>Germany</layout>", "<layout>Norway</layout>");
    edited.replace("h3lpd3sk", "n3w-s3cr3t");
    const QString other = write("other.tavlocfg", edited);
    const Outcome text = zelkonctl({ "diff", kiosk, other });
    QCOMPARE(text.exitCode, 1);
    QCOMPARE(text.out,
             QStringLiteral("keyboard\n  ~ layout: Germany -> Norway\nremote_assistance\n"
                            "  ~ password: ******** -> ********\n"));
    const QJsonArray json
        = QJsonDocument::fromJson(zelkonctl({ "diff", "--format", "json", kiosk, other }).out.toUtf8()).array();
    QCOMPARE(json.size(), 2);
    QCOMPARE(json.at(0).toObject().value("after").toString(), QStringLiteral("Norway"));

    // Trouble is 2, since 1 means "different".
    QCOMPARE(zelkonctl({ "diff", kiosk, m_dir->filePath("none") }).exitCode, 2);
}

void TestZelkonCtl::getAndSet()
{
    const QByteArray original = fileContents(Examples + "/lunvex-kiosk.tavlocfg");
    const QString path = write("kiosk.tavlocfg", original);
    QCOMPARE(zelkonctl({ "get", path, "keyboard/layout" }).out, QStringLiteral("Germany\n"));
    QCOMPARE(zelkonctl({ "get", path, "keyboard/colour" }).exitCode, 1);
    // A section is no value.
    QCOMPARE(zelkonctl({ "get", path, "rdp/session" }).exitCode, 1);

    const Outcome set = zelkonctl({ "set", path, "keyboard/layout=Norway", "wireless/ssid=LAGER", "usb/enable=true" });
    QCOMPARE(set.exitCode, 0);
    QCOMPARE(set.err, QString());
    QByteArray expected = original;
    expected.replace("<layout>Germany</layout>", "<layout>Norway</layout>");
    expected.replace("<enable>false</enable>\n  <read_only>", "<enable>true</enable>\n  <read_only>");
    expected.replace("</zelkon>", " <wireless>\n  <ssid>LAGER</ssid>\n </wireless>\n</zelkon>");
    QCOMPARE(fileContents(path), expected);
}

void TestZelkonCtl::setRefusesAnInvalidResult()
{
    const QByteArray original = fileContents(Examples + "/lunvex-kiosk.tavlocfg");
    const QString path = write("kiosk.tavlocfg", original);
    const Outcome outcome = zelkonctl({ "set", path, "keyboard/layout=Norway", "power/screen_saver_delay=150" });
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.err.startsWith(path + ':'), qPrintable(outcome.err));
    QVERIFY(outcome.err.contains("150"));
    QCOMPARE(fileContents(path), original);
}

void TestZelkonCtl::sortKeepsEverythingElse()
{
    const QString path
        = write("s.tavlocfg",
                configDocument(" <usb>\n  <read_only>true</read_only>\n  <enable>true</enable>\n </usb>\n"
                               " <desktop>\n  <kiosk_mode>true</kiosk_mode>\n </desktop>\n"
                               " <rdp>\n  <session id=\"{b}\">\n   <name>B</name>\n  </session>\n"
                               "  <session id=\"{a}\">\n   <name>A</name>\n  </session>\n </rdp>\n"));
    QCOMPARE(zelkonctl({ "sort", path }).exitCode, 0);
    QCOMPARE(fileContents(path),
             configDocument(" <desktop>\n  <kiosk_mode>true</kiosk_mode>\n </desktop>\n"
                            " <rdp>\n  <session id=\"{b}\">\n   <name>B</name>\n  </session>\n"
                            "  <session id=\"{a}\">\n   <name>A</name>\n  </session>\n </rdp>\n"
                            " <usb>\n  <read_only>true</read_only>\n  <enable>true</enable>\n </usb>\n"));
}

void TestZelkonCtl::merge_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("site");
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QByteArray>("merged");

    QTest::newRow("later wins key by key, base keys stay")
        << QByteArray("<usb><enable>true</enable><read_only>true</read_only></usb>")
        << QByteArray("<usb><enable>false</enable></usb>") << QByteArray("<usb><enable>true</enable></usb>")
        << QByteArray("<usb><enable>true</enable><read_only>true</read_only></usb>");
    QTest::newRow("sections added, document order")
        << QByteArray("<usb><enable>true</enable></usb>") << QByteArray("<keyboard><layout>Germany</layout></keyboard>")
        << QByteArray("<desktop><kiosk_mode>true</kiosk_mode></desktop>")
        << QByteArray("<desktop><kiosk_mode>true</kiosk_mode></desktop><keyboard><layout>Germany</layout></keyboard>"
                      "<usb><enable>true</enable></usb>");
    QTest::newRow("sessions by id, replaced whole, new ones added")
        << QByteArray("<rdp><session id=\"{1}\"><name>A</name><address>a</address></session></rdp>")
        << QByteArray("<rdp><session id=\"{1}\"><name>A2</name></session></rdp>")
        << QByteArray("<rdp><session id=\"{2}\"><name>B</name></session></rdp>")
        << QByteArray("<rdp><session id=\"{1}\"><name>A2</name></session><session id=\"{2}\"><name>B</name>"
                      "</session></rdp>");
    QTest::newRow("printers by name")
        << QByteArray("<network_printer><printer id=\"1\"><name>Laser</name><port>9100</port></printer>"
                      "<printer id=\"2\"><name>Ink</name></printer></network_printer>")
        << QByteArray("<network_printer><printer id=\"9\"><name>Laser</name><port>515</port></printer>"
                      "</network_printer>")
        << QByteArray()
        << QByteArray("<network_printer><printer id=\"9\"><name>Laser</name><port>515</port></printer>"
                      "<printer id=\"2\"><name>Ink</name></printer></network_printer>");
    QTest::newRow("groups key by key")
        << QByteArray("<browser><general_settings><proxy><enable>true</enable><address>p</address></proxy>"
                      "</general_settings></browser>")
        << QByteArray("<browser><general_settings><proxy><port>8080</port></proxy></general_settings></browser>")
        << QByteArray()
        << QByteArray("<browser><general_settings><proxy><enable>true</enable><address>p</address><port>8080</port>"
                      "</proxy></general_settings></browser>");
    QTest::newRow("an empty section keeps the base's records")
        << QByteArray("<rdp><session id=\"{1}\"><name>A</name></session></rdp>") << QByteArray("<rdp/>") << QByteArray()
        << QByteArray("<rdp><session id=\"{1}\"><name>A</name></session></rdp>");
}

void TestZelkonCtl::merge()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, site);
    QFETCH(QByteArray, device);
    QFETCH(QByteArray, merged);
    const QString out = m_dir->filePath("merged.tavlocfg");
    const Outcome outcome
        = zelkonctl({ "merge", write("base", configDocument(base)), write("site", configDocument(site)),
                      write("device", configDocument(device)), "-o", out });
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.exitCode, 0);
    QDomDocument expected;
    QVERIFY(expected.setContent(configDocument(merged)));
    QDomDocument actual;
    QVERIFY(actual.setContent(fileContents(out)));
    QCOMPARE(actual.toString(-1), expected.toString(-1));
}

void TestZelkonCtl::apply()
{
    FakeTool tool(QStringLiteral("tavlosettings"));
    const QString kiosk = Examples + "/lunvex-kiosk.tavlocfg";
    const Outcome applied = zelkonctl({ "apply", kiosk }, m_dir->path());
    QCOMPARE(applied.exitCode, 0);
    QCOMPARE(tool.runs().size(), 1);
    QCOMPARE(tool.runs().at(0).arguments, (QStringList { "-settings", "default.tavlocfg", "-set", "all" }));
    QCOMPARE(fileContents(m_dir->filePath("default.tavlocfg")), fileContents(kiosk));

    tool.setExitCode(3);
    const Outcome failed = zelkonctl({ "apply", kiosk }, m_dir->path());
    QCOMPARE(failed.exitCode, 1);
    QVERIFY2(failed.err.contains("exit code 3"), qPrintable(failed.err));

    // An invalid file never reaches the device.
    const QString bad = write("bad.tavlocfg", configDocument("<usb><enable>maybe</enable></usb>"));
    QCOMPARE(zelkonctl({ "apply", bad }, m_dir->path()).exitCode, 1);
    QCOMPARE(tool.runs().size(), 2);
}

QTEST_GUILESS_MAIN(TestZelkonCtl)
#include "tst_zelkonctl.moc"
