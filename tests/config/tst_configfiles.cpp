#include "config/configfile.h"
#include "faketool.h"
#include "filecontents.h"
#include "modalanswer.h"
#include "pages/validationbox.h"
#include "platform.h"

#include <QTextCodec>
#include <QtTest>

namespace {
const QByteArray FreshDocument = "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\n"
                                 "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\"/>\n";

const QByteArray Schema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                          "<xs:element name='zelkon'><xs:complexType>"
                          "<xs:sequence><xs:element name='volume' type='xs:int'/></xs:sequence>"
                          "<xs:anyAttribute processContents='skip'/>"
                          "</xs:complexType></xs:element></xs:schema>";

void writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
}

// Whether call() opens a modal dialog; one that opens is closed at once.
template <typename Call> bool opensDialog(Call call)
{
    bool opened = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&opened] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            opened = true;
            dialog->close();
        }
    });
    watch.start(0);
    call();
    return opened;
}
} // namespace

// The document on disk and towards the device. Every test runs in a fresh current directory,
// where the settings tool reads and writes its file.
class ConfigFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid() && QDir::setCurrent(m_dir->path()));
        Platform::instance()->setTarget(Platform::Lunvex);
        Platform::instance()->setStandalone(false);
    }

    void cleanup() { QDir::setCurrent(QDir::tempPath()); }

    void freshAndClearedDocumentsSave()
    {
        ConfigFile config;
        QVERIFY(config.save(QStringLiteral("fresh.tavlocfg")));
        QCOMPARE(fileContents(QStringLiteral("fresh.tavlocfg")), FreshDocument);

        // clear() keeps the declaration, the root and its attributes.
        config.addNode(QStringLiteral("sound"));
        config.setValue(QStringLiteral("volume"), QStringLiteral("3"));
        config.clear();
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
        QCOMPARE(config.toString().toUtf8(), FreshDocument);

        // Blank names are ignored; others are kept as given.
        config.setfilename(QStringLiteral(" a "));
        config.setfilename(QStringLiteral("  "));
        QCOMPARE(config.getfilename(), QStringLiteral(" a "));
    }

    void failedSaveKeepsOldFile()
    {
        // The longest name the file system allows leaves no room for a temporary file beside it.
        const QString path = QString(255 - 9, QLatin1Char('x')) + QStringLiteral(".tavlocfg");
        writeFile(path, "old");
        ConfigFile config;
        QVERIFY(!config.save(path));
        QCOMPARE(fileContents(path), QByteArray("old"));
    }

    void writerMatchesQt_data()
    {
        // With at most one attribute per element, Qt's own output is the reference.
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("escaping") << QByteArray(
            "<zelkon version=\"1.0\"><a v=\"&amp;&lt;&gt;&quot;'&#10;&#9;&#13;]]&gt;\">"
            "amp &amp; lt &lt; gt &gt; quot \" ]]&gt; cr&#13;\ttab</a></zelkon>");
        // Values that need a single character escaped, each alone in its value.
        QTest::newRow("one escape each") << QByteArray(
            "<zelkon><a v=\"x&amp;y\">a &amp; b</a><b v=\"q&quot;\">c &gt; d</b><c v=\"t&#9;\">e&#13;f</c>"
            "<d v=\"l&lt;\">g ]]&gt; h</d><e v=\"n&#10;\">i\nj</e><f v=\"r&#13;\">k \" l</f><g>m &lt; n</g></zelkon>");
        QTest::newRow("comments") << QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?><!-- head -->"
                                                "<zelkon><!--inner--><a>1<!--in text-->2</a><b/></zelkon><!--tail-->");
        QTest::newRow("cdata") << QByteArray(
            "<zelkon><a><![CDATA[x < y && \"z\" ]]]]><![CDATA[>]]></a><b>t<![CDATA[c]]>u</b></zelkon>");
        QTest::newRow("mixed text") << QByteArray(
            "<zelkon><p>before <b>bold</b> after<i/> tail</p><s><n>x\ny</n><e></e></s></zelkon>");
        // Namesakes with and without a prefix.
        QTest::newRow("repeated and prefixed names") << QByteArray(
            "<zelkon xmlns:t=\"urn:t\"><t:a>1</t:a><a>2</a><t:a><a>3</a></t:a><a><t:a>4</t:a></a></zelkon>");
        QTest::newRow("latin-1") << QByteArray(
            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><zelkon><a n=\"\xe9\">\xe9 &#x20AC;</a></zelkon>");
    }

    void writerMatchesQt()
    {
        QFETCH(QByteArray, file);
        writeFile(QStringLiteral("in.tavlocfg"), file);
        ConfigFile config;
        QVERIFY(config.load(QStringLiteral("in.tavlocfg")));
        QVERIFY(config.save(QStringLiteral("out.tavlocfg")));

        QBuffer expected;
        expected.open(QIODevice::WriteOnly);
        QTextStream stream(&expected);
        config.QDomDocument::save(stream, 1);
        stream.flush();
        QCOMPARE(fileContents(QStringLiteral("out.tavlocfg")), expected.data());
        QCOMPARE(config.toString(), config.QDomDocument::toString(1));
    }

    void writerMatchesQtForEveryCharacter_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("accents and symbols") << QStringLiteral("caf\u00e9 \u20ac \u010d \ufffd");
        QTest::newRow("pair of surrogates") << QStringLiteral("smile \U0001F600 end");
        QTest::newRow("lone high surrogate") << QStringLiteral("a") + QChar(0xD83D) + QStringLiteral("b");
        QTest::newRow("lone low surrogate") << QString(QChar(0xDE00));
    }

    void writerMatchesQtForEveryCharacter()
    {
        // The writer asks the encoding only about surrogates; the result must not show it.
        QFETCH(QString, value);
        for (const QByteArray& encoding : { QByteArrayLiteral("utf-8"), QByteArrayLiteral("UTF-16") }) {
            ConfigFile config;
            QVERIFY(config.setContent(
                QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?><zelkon/>").arg(QLatin1String(encoding))));
            config.setCurrentNodeAsRoot();
            config.setValue(QStringLiteral("name"), value);
            config.setAttributeValue(QStringLiteral("note"), value);
            QCOMPARE(config.toString(), config.QDomDocument::toString(1));
        }
    }

    void sameBytesInEveryProcess()
    {
        // Attributes: the root's three first, then those loaded in file order, then new ones by name.
        writeFile(QStringLiteral("in.tavlocfg"),
                  "<zelkon creator_version=\"2.0\" extra=\"x\" creator=\"zelkon\" version=\"1.0\">\n"
                  " <printer port=\"9100\" name=\"lp\" driver=\"pcl\"/>\n"
                  "</zelkon>\n");
        const QByteArray expected
            = "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\" extra=\"x\" added=\"yes\">\n"
              " <printer port=\"515\" name=\"lp\" driver=\"pcl\" alpha=\"a\" zeta=\"z\"/>\n"
              " <monitor depth=\"24\" name=\"DVI-1\" rate=\"60\"/>\n"
              "</zelkon>\n";

        // Without a fixed seed every process hashes attributes differently.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_HASH_SEED"));
        for (int run = 0; run < 5; ++run) {
            QProcess helper;
            helper.setProcessEnvironment(environment);
            helper.start(QStringLiteral(CONFIG_SAVE_HELPER),
                         { QStringLiteral("in.tavlocfg"), QStringLiteral("out.tavlocfg") });
            QVERIFY(helper.waitForFinished(30000));
            QCOMPARE(helper.exitCode(), 0);
            QCOMPARE(fileContents(QStringLiteral("out.tavlocfg")), expected);
        }
    }

    void load_data()
    {
        QTest::addColumn<Platform::Target>("target");
        QTest::addColumn<bool>("standalone");
        QTest::addColumn<bool>("fetches");
        QTest::newRow("Lunvex") << Platform::Lunvex << false << false;
        QTest::newRow("WES") << Platform::Wes << false << true;
        QTest::newRow("WES standalone") << Platform::Wes << true << false;
        QTest::newRow("WES7") << Platform::Wes7 << false << false;
        QTest::newRow("CE") << Platform::Ce << false << true;
        QTest::newRow("CE standalone") << Platform::Ce << true << false;
    }

    void load()
    {
        QFETCH(Platform::Target, target);
        QFETCH(bool, standalone);
        QFETCH(bool, fetches);
        Platform::instance()->setTarget(target);
        Platform::instance()->setStandalone(standalone);
        // The tool writes the device's settings into its working directory; its exit code is ignored.
        FakeTool tool(QStringLiteral("tavlosettings"), 3);
        tool.setWritesFile(QStringLiteral("default.tavlocfg"), "<zelkon><sound><volume>4</volume></sound></zelkon>");

        ConfigFile config;
        config.addNode(QStringLiteral("display"));
        const QString before = config.toString();
        // A missing file changes nothing; a loaded one replaces the document.
        QCOMPARE(config.load(QStringLiteral("default.tavlocfg")), fetches);
        QCOMPARE(config.currentNodePath(), fetches ? QStringLiteral("zelkon") : QStringLiteral("zelkon/display"));
        QCOMPARE(config.toString() == before, !fetches);
        QCOMPARE(config.intValue(QStringLiteral("volume")), fetches ? 4 : 0);
        QCOMPARE(tool.runs().size(), fetches ? 1 : 0);
        if (fetches)
            QCOMPARE(tool.runs().first().arguments, (QStringList { "-settings", "default.tavlocfg", "-get", "all" }));
    }

    // Whatever encoding a conforming XML reader accepts loads whole, and survives a save.
    void encodingsLoadWhole_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        // "č" is U+010D: in UTF-16 one of its bytes is 0x0D, a carriage return's.
        const QString text = QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>\r\n"
                                            "<zelkon version=\"1.0\">\r\n <keyboard>\r\n"
                                            "  <layout>Čeština \u010d</layout>\r\n </keyboard>\r\n</zelkon>\r\n");
        const auto encoded = [&text](const char* name, const char* declared, bool byteOrderMark) {
            QTextCodec* codec = QTextCodec::codecForName(name);
            QTextEncoder encoder(codec, byteOrderMark ? QTextCodec::DefaultConversion : QTextCodec::IgnoreHeader);
            return encoder.fromUnicode(text.arg(QLatin1String(declared)));
        };
        QTest::newRow("UTF-8, CRLF") << encoded("UTF-8", "utf-8", false);
        QTest::newRow("UTF-8 with BOM") << QByteArray("\xEF\xBB\xBF") + encoded("UTF-8", "utf-8", false);
        QTest::newRow("UTF-16LE with BOM, CRLF") << encoded("UTF-16LE", "UTF-16", true);
        QTest::newRow("UTF-16BE with BOM, CRLF") << encoded("UTF-16BE", "UTF-16", true);
        QTest::newRow("UTF-16 declared, little-endian BOM")
            << QByteArray("\xFF\xFE") + encoded("UTF-16LE", "UTF-16", false);
        QTest::newRow("ISO-8859-2") << encoded("ISO-8859-2", "ISO-8859-2", false);
    }

    void encodingsLoadWhole()
    {
        QFETCH(QByteArray, bytes);
        const QString expected = QStringLiteral("Čeština \u010d");
        writeFile(QStringLiteral("foreign.tavlocfg"), bytes);

        ConfigFile config;
        QVERIFY(config.load(QStringLiteral("foreign.tavlocfg")));
        QCOMPARE(config.value(QStringLiteral("layout")), expected);

        // Written in the declared encoding, read back the same.
        QVERIFY(config.save(QStringLiteral("saved.tavlocfg")));
        ConfigFile reread;
        QVERIFY(reread.load(QStringLiteral("saved.tavlocfg")));
        QCOMPARE(reread.value(QStringLiteral("layout")), expected);
    }

    // Nothing that lost the file's content counts as loaded.
    void brokenFilesDoNotLoad_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("cut short") << QByteArray("<zelkon><keyboard><layout>Norway</layout>");
        QTest::newRow("UTF-16 cut short")
            << QTextCodec::codecForName("UTF-16LE")->fromUnicode(QStringLiteral("\uFEFF<zelkon><a>\u010d</a>"));
        QTest::newRow("not XML") << QByteArray("[keyboard]\nlayout=Norway\n");
    }

    void brokenFilesDoNotLoad()
    {
        QFETCH(QByteArray, bytes);
        writeFile(QStringLiteral("broken.tavlocfg"), bytes);
        ConfigFile config;
        QVERIFY(!config.load(QStringLiteral("broken.tavlocfg")));
        QCOMPARE(config.value(QStringLiteral("layout")), QString());
    }

    void apply()
    {
        ConfigFile config;
        config.addNode(QStringLiteral("sound"));
        {
            // The tool is always handed the device file, whichever path was saved.
            FakeTool tool(QStringLiteral("tavlosettings"));
            config.apply(QStringLiteral("elsewhere.tavlocfg"));
            QCOMPARE(tool.runs().size(), 1);
            QCOMPARE(tool.runs().first().arguments, (QStringList { "-settings", "default.tavlocfg", "-set", "all" }));
        }
        QVERIFY(fileContents(QStringLiteral("elsewhere.tavlocfg")).contains("<sound/>"));
        QVERIFY(!QFile::exists(QStringLiteral("default.tavlocfg")));

        // Without the tool the file is still saved, and nobody is told.
        const QByteArray oldPath = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(m_dir->path()));
        const bool dialog = opensDialog([&config] { config.apply(QStringLiteral("default.tavlocfg")); });
        qputenv("PATH", oldPath);
        QVERIFY(!dialog);
        QVERIFY(fileContents(QStringLiteral("default.tavlocfg")).contains("<sound/>"));
    }

    void validate()
    {
        // As the summary page does; without it the verdict goes to nobody.
        ValidationBox::install();
        ConfigFile config;
        config.setIntValue(QStringLiteral("volume"), 5);
        bool valid = true;
        QVERIFY(!opensDialog([&] { valid = config.validate(); }));
        QVERIFY(!valid && !config.isValid() && config.errorMessage().isEmpty());

        QVERIFY(config.setSchema(Schema));
        ModalAnswer answer;
        answer.arm();
        QVERIFY(config.validate() && config.isValid());
        QCOMPARE(answer.title(), QStringLiteral("Validation"));
        QCOMPARE(answer.text(), QStringLiteral("The configuration file is valid."));

        config.setValue(QStringLiteral("volume"), QStringLiteral("loud"));
        answer.arm();
        QVERIFY(!config.validate() && !config.isValid());
        // The volume element is on line 3 of the saved document.
        const QString error = config.errorMessage();
        QVERIFY2(QRegularExpression(QStringLiteral("^Line 3 Col \\d+ .*loud")).match(error).hasMatch(),
                 qPrintable(error));
        QCOMPARE(answer.title(), QStringLiteral("Validation"));
        QCOMPARE(answer.text(), "The configuration file is invalid. " + error);
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(ConfigFilesTest)
#include "tst_configfiles.moc"
