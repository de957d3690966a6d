#include "config/configfile.h"
#include "config/parseguard.h"
#include "filecontents.h"
#include "platform.h"

#include <QElapsedTimer>
#include <QThread>
#include <QtTest>

namespace {
void writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
}

QByteArray nested(int depth)
{
    QByteArray bytes = "<zelkon>";
    for (int i = 1; i < depth; ++i)
        bytes += "<a>";
    for (int i = 1; i < depth; ++i)
        bytes += "</a>";
    return bytes + "</zelkon>";
}

// One entity of length characters, referenced uses times.
QByteArray entityFile(int length, int uses)
{
    QByteArray bytes = "<!DOCTYPE zelkon [<!ENTITY e \"" + QByteArray(length, 'x') + "\">]><zelkon><a>";
    for (int i = 0; i < uses; ++i)
        bytes += "&e;";
    return bytes + "</a></zelkon>";
}

QByteArray billionLaughs()
{
    QByteArray bytes = "<!DOCTYPE zelkon [<!ENTITY l0 \"ha\">";
    for (int i = 1; i <= 9; ++i) {
        bytes += "<!ENTITY l" + QByteArray::number(i) + " \"";
        for (int j = 0; j < 10; ++j)
            bytes += "&l" + QByteArray::number(i - 1) + ';';
        bytes += "\">";
    }
    return bytes + "]><zelkon><a>&l9;</a></zelkon>";
}

// A real-looking configuration of about size bytes: many connection records. Built by
// plain appends, which grow geometrically (under AddressSanitizer anything else is slow).
QByteArray largeConfiguration(int size)
{
    QByteArray bytes = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<zelkon version=\"1.0\">\n <keyboard>\n"
                       "  <layout>Norway</layout>\n </keyboard>\n <rdp>\n";
    const QByteArray end = " </rdp>\n</zelkon>\n";
    for (int i = 0; bytes.size() + end.size() < size - 200; ++i) {
        bytes.append("  <session>\n   <name>Host ");
        bytes.append(QByteArray::number(i));
        bytes.append("</name>\n   <address>10.0.0.");
        bytes.append(QByteArray::number(i % 250));
        bytes.append("</address>\n   <password>secret</password>\n  </session>\n");
    }
    bytes.append(end);
    return bytes;
}
} // namespace

// Files a user might be sent, and values a frame might be given: none may crash the wizard,
// exhaust the machine or cost the user the file they had.
class HostileDocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid() && QDir::setCurrent(m_dir->path()));
        Platform::instance()->setTarget(Platform::Lunvex);
        Platform::instance()->setStandalone(true);
    }

    void cleanup() { QDir::setCurrent(QDir::tempPath()); }

    void refusedFilesLeaveTheDocument_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("verdict");
        // The DOM parser overflowed the stack from about 25,000 levels on.
        QTest::newRow("deep nesting") << nested(30000) << int(ParseGuard::Verdict::TooDeep);
        QTest::newRow("one level too deep") << nested(ParseGuard::MaxDepth + 1) << int(ParseGuard::Verdict::TooDeep);
        // 2.5 thousand million characters once took 8 s and 2 GB before running out of memory.
        QTest::newRow("large entity used often") << entityFile(50000, 50000) << int(ParseGuard::Verdict::NotWellFormed);
        QTest::newRow("entity at the limit used often") << entityFile(
            ParseGuard::MaxEntityExpansion, int(ParseGuard::MaxTextCharacters / ParseGuard::MaxEntityExpansion) + 2)
                                                        << int(ParseGuard::Verdict::TooMuchText);
        QTest::newRow("billion laughs") << billionLaughs() << int(ParseGuard::Verdict::NotWellFormed);
        QTest::newRow("too large") << largeConfiguration(ParseGuard::MaxFileBytes + 1000)
                                   << int(ParseGuard::Verdict::TooLarge);
        QTest::newRow("invalid UTF-8") << QByteArray("<zelkon><a>caf\xc3</a></zelkon>")
                                       << int(ParseGuard::Verdict::NotWellFormed);
    }

    void refusedFilesLeaveTheDocument()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, verdict);
        QCOMPARE(int(ParseGuard::check(bytes).verdict), verdict);

        writeFile(QStringLiteral("hostile.tavlocfg"), bytes);
        ConfigFile config;
        config.setValue(QStringLiteral("layout"), QStringLiteral("Norway"));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!config.load(QStringLiteral("hostile.tavlocfg")));
        QVERIFY2(timer.elapsed() < 10000, "refusing took too long");
        if (verdict != int(ParseGuard::Verdict::NotWellFormed)) {
            // Refused before parsing: the document is as it was.
            config.setCurrentNodeAsRoot();
            QCOMPARE(config.value(QStringLiteral("layout")), QStringLiteral("Norway"));
        }
    }

    void filesWithinTheLimitsLoad()
    {
        writeFile(QStringLiteral("deep.tavlocfg"), nested(ParseGuard::MaxDepth));
        ConfigFile config;
        QVERIFY(config.load(QStringLiteral("deep.tavlocfg")));
        QCOMPARE(config.namedNodeCount(QStringLiteral("a")), ParseGuard::MaxDepth - 1);
        // Every walk of our own copes with the deepest document accepted.
        QCOMPARE(config.toString().count(QLatin1String("<a")), ParseGuard::MaxDepth - 1);
        QVERIFY(config.save(QStringLiteral("deep-out.tavlocfg")));

        // A large but ordinary configuration loads in bounded time.
        writeFile(QStringLiteral("large.tavlocfg"), largeConfiguration(ParseGuard::MaxFileBytes));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(config.load(QStringLiteral("large.tavlocfg")));
        QVERIFY(config.namedNodeCount(QStringLiteral("session")) > 5000);
        QVERIFY(!config.toFormattedString().isEmpty());
        QVERIFY2(timer.elapsed() < 30000, "a large configuration took too long");

        writeFile(QStringLiteral("entities.tavlocfg"), entityFile(100, 10));
        QVERIFY(config.load(QStringLiteral("entities.tavlocfg")));
        QCOMPARE(config.value(QStringLiteral("a")), QString(1000, QLatin1Char('x')));
    }

    void deepDocumentsBuiltInMemoryAreWritten()
    {
        // The writer once recursed per level; a document need not come from a file to be
        // deep. On a small stack any recursion shows at a depth that is quick to write.
        ConfigFile config;
        const int depth = 4000;
        for (int i = 0; i < depth; ++i)
            config.addNode(QStringLiteral("a"));
        config.setCurrentNodeAsRoot();
        QString text;
        bool saved = false;
        QString unwritable = QStringLiteral("not run");
        std::unique_ptr<QThread> writer(QThread::create([&] {
            text = config.toString();
            saved = config.save(QStringLiteral("deep.tavlocfg"));
            unwritable = config.unwritablePath();
        }));
        writer->setStackSize(256 * 1024);
        writer->start();
        QVERIFY(writer->wait(60000));
        QCOMPARE(text.count(QLatin1String("<a")), depth);
        QVERIFY(saved);
        QCOMPARE(unwritable, QString());
    }

    void unwritableValuesFailTheSave_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("NUL") << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
        QTest::newRow("control character") << QStringLiteral("bell\a");
        QTest::newRow("form feed") << QStringLiteral("\f");
        QTest::newRow("lone high surrogate") << QString(QChar(0xD83D));
        QTest::newRow("lone low surrogate") << QStringLiteral("x") + QChar(0xDE00);
        QTest::newRow("U+FFFE") << QString(QChar(0xFFFE));
    }

    void unwritableValuesFailTheSave()
    {
        QFETCH(QString, value);
        const QByteArray old = "<zelkon><rdp><session><name>old</name></session></rdp></zelkon>";
        writeFile(QStringLiteral("config.tavlocfg"), old);
        ConfigFile config;
        QVERIFY(config.load(QStringLiteral("config.tavlocfg")));
        QVERIFY(config.findNode(QStringLiteral("session"), 0));
        config.setValue(QStringLiteral("name"), value);
        QVERIFY(!config.save(QStringLiteral("config.tavlocfg")));
        QCOMPARE(fileContents(QStringLiteral("config.tavlocfg")), old);
        QCOMPARE(config.unwritablePath(), QStringLiteral("zelkon/rdp/session/name"));

        // In an attribute too.
        ConfigFile attributes;
        attributes.setAttributeValue(QStringLiteral("note"), value);
        QVERIFY(!attributes.save(QStringLiteral("attribute.tavlocfg")));
        QCOMPARE(attributes.unwritablePath(), QStringLiteral("zelkon"));
        QVERIFY(!QFile::exists(QStringLiteral("attribute.tavlocfg")));
    }

    void unusualButWritableValuesRoundTrip()
    {
        const QString value = QStringLiteral("tab\tline\ncr\r emoji \U0001F600 \u00e5 end \uFFFD");
        ConfigFile config;
        config.setValue(QStringLiteral("name"), value);
        QVERIFY(config.unwritablePath().isEmpty());
        QVERIFY(config.save(QStringLiteral("ok.tavlocfg")));
        ConfigFile again;
        QVERIFY(again.load(QStringLiteral("ok.tavlocfg")));
        QCOMPARE(again.value(QStringLiteral("name")), value);
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(HostileDocumentsTest)
#include "tst_hostiledocuments.moc"
