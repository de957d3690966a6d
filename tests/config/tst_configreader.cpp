#include "benchdocument.h"
#include "config/attributeorder.h"
#include "config/configfile.h"
#include "config/configreader.h"
#include "config/domwriter.h"
#include "config/parseguard.h"
#include "filecontents.h"
#include "platform.h"

#include <QBuffer>
#include <QDir>
#include <QDomDocument>
#include <QTextCodec>
#include <QTextStream>
#include <QtTest>

namespace {
using Route = ConfigReader::Route;

QString shown(const QString& text)
{
    return text.isNull() ? QStringLiteral("<null>") : QLatin1Char('"') + text + QLatin1Char('"');
}

QString describe(const QDomNode& node)
{
    QString line = QString::number(node.nodeType()) + QLatin1Char(' ') + shown(node.nodeName()) + QLatin1Char(' ')
        + shown(node.localName()) + QLatin1Char(' ') + shown(node.prefix()) + QLatin1Char(' ')
        + shown(node.namespaceURI()) + QLatin1Char(' ') + shown(node.nodeValue());
    const QDomNamedNodeMap attributes = node.attributes();
    QStringList described;
    for (int i = 0; i < attributes.count(); ++i)
        described.append(describe(attributes.item(i)) + QLatin1Char('/') + describe(attributes.item(i).firstChild()));
    described.sort();
    if (!described.isEmpty())
        line += QLatin1String(" [") + described.join(QLatin1String(", ")) + QLatin1Char(']');
    return line;
}

// Every node with everything the DOM tells of it, in pre-order.
QStringList dump(const QDomDocument& document)
{
    QStringList lines { QStringLiteral("doctype ") + shown(document.doctype().name()) };
    int depth = 0;
    QDomNode node = document.firstChild();
    while (!node.isNull()) {
        lines.append(QString(depth, QLatin1Char(' ')) + describe(node));
        if (node.hasChildNodes()) {
            node = node.firstChild();
            ++depth;
            continue;
        }
        while (node.nextSibling().isNull() && !node.parentNode().isNull() && !node.parentNode().isDocument()) {
            node = node.parentNode();
            --depth;
        }
        node = node.nextSibling();
    }
    return lines;
}

// What a save writes, in the encoding of the declaration.
QByteArray saved(const QDomDocument& document, const AttributeOrder& order)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    DomWriter(&order).save(document, stream, 1);
    return buffer.data();
}

QByteArray utf16(const QString& text, bool bigEndian)
{
    QTextCodec* codec = QTextCodec::codecForName(bigEndian ? "UTF-16BE" : "UTF-16LE");
    return (bigEndian ? QByteArray("\xFE\xFF", 2) : QByteArray("\xFF\xFE", 2)) + codec->fromUnicode(text);
}

// Writes content to a file of that name in dir; an empty path when it could not.
QString writtenFile(const QTemporaryDir& dir, const QString& name, const QByteArray& content)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path : QString();
}

const char* const Root = "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\">";
} // namespace

// The one-pass reader against Qt's own parser: the same tree, node for node, and the same
// bytes written back, for every kind of file a user may open.
class ConfigReaderTest : public QObject
{
    Q_OBJECT

private:
    // Reads content both ways and compares everything; returns the route the reader took.
    static Route compareWithQt(const QByteArray& content)
    {
        QDomDocument streamed;
        AttributeOrder streamedOrder;
        const ConfigReader::Result result = ConfigReader::read(content, streamed, &streamedOrder);
        QDomDocument parsed;
        AttributeOrder parsedOrder;
        const ConfigReader::Result reference = ConfigReader::readWithDomParser(content, parsed, &parsedOrder);
        QDomDocument qt;
        const bool qtAccepts = qt.setContent(content, true);

        [&] {
            QCOMPARE(int(result.parse.verdict), int(reference.parse.verdict));
            QCOMPARE(result.parse.line, reference.parse.line);
            QCOMPARE(result.parse.column, reference.parse.column);
            if (!result.accepted())
                return;
            QVERIFY(qtAccepts);
            QCOMPARE(dump(streamed), dump(qt));
            QCOMPARE(dump(parsed), dump(qt));
            QCOMPARE(DomWriter(&streamedOrder).toString(streamed, 1), DomWriter(&parsedOrder).toString(parsed, 1));
            QCOMPARE(saved(streamed, streamedOrder), saved(parsed, parsedOrder));
        }();
        return result.route;
    }

private slots:
    void initTestCase()
    {
        // Loading on a device would ask the settings tool first.
        Platform::instance()->setTarget(Platform::Lunvex);
        Platform::instance()->setStandalone(true);
    }

    void sameAsQt_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("streamed");

        const QByteArray declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
        const auto row = [&](const char* name, const QByteArray& body, bool streamed = true) {
            QTest::newRow(name) << body << streamed;
        };
        row("declaration, root attributes", declaration + Root + "<a>x</a></zelkon>\n");
        row("no declaration", "<zelkon><a>x</a></zelkon>");
        row("version only", "<?xml version=\"1.0\"?><zelkon/>");
        row("single quotes, extra spaces", "<?xml  version = '1.0'   encoding='UTF-8' ?>\n<zelkon/>");
        row("standalone yes", "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?><zelkon/>");
        row("standalone no", "<?xml version=\"1.0\" standalone='no'?><zelkon/>", false);
        row("latin-1", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><zelkon><a>bl\xE5</a></zelkon>");
        row("utf-8 BOM", "\xEF\xBB\xBF" + declaration + "<zelkon><a>\xC3\xA6</a></zelkon>");
        row("utf-16 LE",
            utf16(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<zelkon a=\"1\" b=\"2\">"
                                 "<n>\u00e6\u00f8\r\nx</n></zelkon>"),
                  false));
        row("utf-16 BE", utf16(QStringLiteral("<zelkon><n>\u20ac</n></zelkon>"), true));
        row("comments around the root", "<!-- before --><zelkon><!--in--><a/></zelkon><!-- after -->\n");
        row("processing instructions", "<?pi one?><zelkon><?pi  two  words ?><?bare?></zelkon><?pi after?>");
        row("cdata", "<zelkon><a><![CDATA[<b>&amp;]]></a><b>x<![CDATA[y]]>z</b><c><![CDATA[ ]]></c></zelkon>");
        row("empty cdata", "<zelkon><a><![CDATA[]]></a></zelkon>");
        row("crlf between elements", "<zelkon>\r\n <a>one</a>\r\n <b>&#13;</b>\r</zelkon>\r\n");
        row("crlf in text", "<zelkon>\r\n <a>one\r\ntwo\rthree</a>\r</zelkon>\r\n", false);
        row("crlf in a comment", "<zelkon><!-- a\r\nb --></zelkon>", false);
        row("line ends without cr", "<zelkon><a>one\ntwo</a><!-- a\nb --><?pi a\nb?></zelkon>");
        row("attribute white space", "<zelkon a=\"x\ty\nz\r\nw\" b=' lead  trail '/>", false);
        row("attribute references", "<zelkon c=\"&#9;&#10;&#13;&lt;\" d=\"1\"/>");
        row("references", "<zelkon a=\"&lt;&amp;&gt;&quot;&apos;\"><b>&#x41;&#66;&lt;&amp;&gt;</b></zelkon>");
        row("reference beyond 16 bits", "<zelkon><b>&#x1F600;</b></zelkon>", false);
        row("character beyond 16 bits", "<zelkon><b>\xF0\x9F\x98\x80</b></zelkon>");
        row("white space only text",
            "<zelkon>\n  <a>  </a><b>\t\r\n</b><c>&#32;</c><d>&#xA0;</d><e>\xC2\xA0</e></zelkon>");
        row("mixed content", "<zelkon>text <a>one</a> tail <b/> <!--c--> more </zelkon>");
        row("text split by a comment", "<zelkon><a>one<!--c-->two</a><b> <!--c--> </b></zelkon>");
        row("empty elements", "<zelkon><a/><b></b><c> </c></zelkon>");
        row("many attributes",
            "<zelkon z=\"1\" a=\"2\" m=\"3\" version=\"4\"><s q=\"1\" p=\"2\" o=\"3\"/><t one=\"1\"/></zelkon>");
        row("long text", "<zelkon><a>" + QByteArray(200000, 'x') + "</a></zelkon>");
        row("root not zelkon", "<config><a>1</a></config>");
        row("namespace declaration", "<zelkon xmlns=\"urn:z\"><a>1</a></zelkon>", false);
        row("prefixed names", "<z:zelkon xmlns:z=\"urn:z\" z:a=\"1\"><z:b/></z:zelkon>", false);
        row("xml prefix", "<zelkon xml:lang=\"nb\"><a/></zelkon>", false);
        row("doctype", "<!DOCTYPE zelkon><zelkon/>", false);
        row("internal entity", "<!DOCTYPE zelkon [<!ENTITY e \"value\">]><zelkon><a>&e;</a></zelkon>", false);
        row("entity in attribute", "<!DOCTYPE zelkon [<!ENTITY e \"v\">]><zelkon a=\"&e;\"/>", false);
        // The stream reader takes these; Qt's parser refuses them, and so must a load.
        row("declaration attribute twice", "<?xml version=\"1.0\" encoding=\"utf-8\" encoding=\"utf-8\"?><zelkon/>");
        row("odd character in a name", "<zelkon ver@ion=\"1.0\"><a/></zelkon>");
        row("zero in a name", QByteArray("<zelkon><a\0b/></zelkon>", 21));
        row("non-ASCII name", "<zelkon><bl\xC3\xA5>1</bl\xC3\xA5></zelkon>", false);
        row("given up before an element", "<zelkon>&#x10FFFF;<a x=\"1\"/></zelkon>", false);
        row("not well-formed", "<zelkon><a></zelkon>");
        row("undeclared entity", "<zelkon>&nbsp;</zelkon>");
        row("blank", "  \n ");
        row("empty", "");

        for (const QString& name : QDir(QStringLiteral(ZELKON_EXAMPLES_DIR)).entryList({ "*.tavlocfg" }))
            row(qPrintable("example " + name), fileContents(QStringLiteral(ZELKON_EXAMPLES_DIR "/") + name));
        // The fuzzing seeds; namespaces and entities there take Qt's parser.
        const QDir seeds(QStringLiteral(ZELKON_FUZZ_CORPUS_DIR "/document"));
        for (const QString& name : seeds.entryList(QDir::Files)) {
            const bool special = name.contains(QLatin1String("namespace")) || name.contains(QLatin1String("entities"));
            row(qPrintable("seed " + name), fileContents(seeds.filePath(name)), !special);
        }
        row("generated, 100 sessions", BenchDocument::generate(100));
    }

    void sameAsQt()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, streamed);
        const Route route = compareWithQt(content);
        if (QTest::currentTestFailed())
            return;
        QDomDocument document;
        if (ConfigReader::read(content, document).accepted())
            QCOMPARE(route == Route::Streamed, streamed);
    }

    // Hostile files get the guard's verdict, where the guard stopped, and leave the document.
    void hostileFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QByteArray deep = "<zelkon>";
        for (int i = 0; i < ParseGuard::MaxDepth; ++i)
            deep += "<a>";
        QTest::newRow("too deep") << deep;
        QByteArray laughs = "<!DOCTYPE z [<!ENTITY l0 \"haha\">";
        for (int i = 1; i <= 9; ++i)
            laughs += "<!ENTITY l" + QByteArray::number(i) + " \""
                + QByteArray("&l" + QByteArray::number(i - 1) + ";").repeated(10) + "\">";
        QTest::newRow("billion laughs") << laughs + "]><zelkon>&l9;</zelkon>";
        QTest::newRow("too large") << QByteArray(int(ParseGuard::MaxFileBytes) + 1, ' ');
        QTest::newRow("broken in the middle") << QByteArray("<zelkon>\n<a>\n<b></a></zelkon>");
    }

    void hostileFiles()
    {
        QFETCH(QByteArray, content);
        QDomDocument document;
        document.setContent(QByteArray("<kept/>"));
        const ParseGuard::Result guard = ParseGuard::check(content);
        const ConfigReader::Result result = ConfigReader::read(content, document);
        QVERIFY(!result.accepted());
        QCOMPARE(int(result.parse.verdict), int(guard.verdict));
        QCOMPARE(result.parse.line, guard.line);
        QCOMPARE(result.parse.column, guard.column);
        QCOMPARE(result.parse.message, guard.message);
        QCOMPARE(document.documentElement().tagName(), QStringLiteral("kept"));
    }

    // The file order of attributes survives a load and save, also through Qt's parser.
    void attributeOrder_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expected");
        QTest::newRow("streamed")
            << QByteArray("<zelkon creator=\"c\" z=\"1\" version=\"v\" a=\"2\"><s q=\"1\" p=\"2\"/></zelkon>")
            << "<zelkon version=\"v\" creator=\"c\" z=\"1\" a=\"2\">\n <s q=\"1\" p=\"2\"/>\n</zelkon>\n";
        QTest::newRow("through Qt's parser")
            << QByteArray("<!DOCTYPE zelkon><zelkon z=\"1\" a=\"2\"><s q=\"1\" p=\"2\"/></zelkon>")
            << "<!DOCTYPE zelkon>\n<zelkon z=\"1\" a=\"2\">\n <s q=\"1\" p=\"2\"/>\n</zelkon>\n";
    }

    void attributeOrder()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        const QString path = writtenFile(dir, QStringLiteral("order.tavlocfg"), content);
        QVERIFY(!path.isEmpty());
        ConfigFile config;
        QVERIFY(config.load(path));
        QCOMPARE(config.toString(), expected);
        // A copy of an element is a new element, written by name.
        QDomElement copy = config.documentElement().firstChildElement().cloneNode(true).toElement();
        config.documentElement().appendChild(copy);
        QVERIFY(config.toString().contains(QLatin1String("<s p=\"2\" q=\"1\"/>")));
    }

    // What a load found out is told to the caller, and a refused file leaves the document.
    void loadTellsWhy_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("verdict");
        QTest::addColumn<bool>("blank");
        QTest::addColumn<bool>("kept");
        QTest::newRow("loads") << QByteArray("<zelkon><a>1</a></zelkon>") << int(ParseGuard::Verdict::Accepted) << false
                               << false;
        QTest::newRow("blank") << QByteArray(" \n\t") << int(ParseGuard::Verdict::NotWellFormed) << true << false;
        QTest::newRow("not well-formed") << QByteArray("<zelkon><a></zelkon>")
                                         << int(ParseGuard::Verdict::NotWellFormed) << false << false;
        QTest::newRow("too large") << QByteArray(int(ParseGuard::MaxFileBytes) + 1, ' ')
                                   << int(ParseGuard::Verdict::TooLarge) << false << true;
    }

    void loadTellsWhy()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, verdict);
        QFETCH(bool, blank);
        QFETCH(bool, kept);
        QTemporaryDir dir;
        const QString path = writtenFile(dir, QStringLiteral("file.tavlocfg"), content);
        QVERIFY(!path.isEmpty());

        ConfigFile config;
        config.setValue(QStringLiteral("kept"), QStringLiteral("yes"));
        ConfigReader::Result result;
        QCOMPARE(config.load(path, &result), verdict == int(ParseGuard::Verdict::Accepted));
        QVERIFY(result.opened);
        QCOMPARE(int(result.parse.verdict), verdict);
        QCOMPARE(result.blank, blank);
        config.setCurrentNodeAsRoot();
        QCOMPARE(config.value(QStringLiteral("kept")) == QLatin1String("yes"), kept);
        if (verdict == int(ParseGuard::Verdict::NotWellFormed))
            QVERIFY(config.documentElement().isNull());

        QVERIFY(!config.load(dir.filePath(QStringLiteral("missing.tavlocfg")), &result));
        QVERIFY(!result.opened);
        QVERIFY(!result.openError.isEmpty());
    }

    // Names are shared by every element of one name; text nodes share one "#text".
    void namesAreShared()
    {
        QDomDocument document;
        QVERIFY(ConfigReader::read("<zelkon><a>1</a><a>2</a></zelkon>", document).accepted());
        const QDomElement first = document.documentElement().firstChildElement();
        const QDomElement second = first.nextSiblingElement();
        QCOMPARE(first.tagName().constData(), second.tagName().constData());
        QCOMPARE(first.firstChild().nodeName().constData(), second.firstChild().nodeName().constData());
    }
};

QTEST_MAIN(ConfigReaderTest)
#include "tst_configreader.moc"
