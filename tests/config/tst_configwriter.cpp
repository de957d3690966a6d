#include "config/configfile.h"

#include <QtTest>

/*
 * Files are written in Qt's own layout, byte for byte, but with attributes in a fixed
 * order: the root's version, creator, creator_version first, loaded elements in their
 * file's order, attributes added since by name. Qt's DOM alone would vary that order
 * from process to process.
 */
class ConfigWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void matchesQtForLoadedDocuments_data();
    void matchesQtForLoadedDocuments();
    void matchesQtForBuiltDocuments_data();
    void matchesQtForBuiltDocuments();
    void sameBytesInEveryProcess();

private:
    void compareWithQt(ConfigFile& config);

    std::unique_ptr<QTemporaryDir> m_dir;
};

namespace {
QByteArray qtSave(const QDomDocument& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    document.save(stream, 1);
    stream.flush();
    return buffer.data();
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

enum class Built { ControlCharacters, DocumentLevelText, CommentEndingInDash, EmptyText, Namespaces, Unicode };
} // namespace
Q_DECLARE_METATYPE(Built)

void ConfigWriterTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void ConfigWriterTest::compareWithQt(ConfigFile& config)
{
    const QString path = m_dir->filePath(QStringLiteral("out.tavlocfg"));
    QVERIFY(config.save(path));
    const QByteArray expected = qtSave(config);
    QCOMPARE(readAll(path), expected);
    QCOMPARE(config.toString(), static_cast<QDomDocument&>(config).toString(1));
}

void ConfigWriterTest::matchesQtForLoadedDocuments_data()
{
    // No element has more than one attribute, so Qt's own order is the only one possible.
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("text escaping") << QByteArray(
        "<zelkon version=\"1.0\"><a>amp &amp; lt &lt; gt &gt; quot \" apos ' ]]&gt; end</a></zelkon>");
    QTest::newRow("newlines in text") << QByteArray("<zelkon><a>line one\nline two\n</a><b>\n lead</b></zelkon>");
    QTest::newRow("attribute values") << QByteArray(
        "<zelkon><a v=\"&amp;&lt;&gt;&quot;'&#10;&#9;&#13;x ]]&gt;\"/><b w='say \"hi\"'>t</b></zelkon>");
    QTest::newRow("comments") << QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!-- head -->\n"
                                            "<zelkon><!--inner--><a>1<!--in text-->2</a><!-- x --></zelkon>\n"
                                            "<!--tail-->");
    QTest::newRow("cdata") << QByteArray(
        "<zelkon><a><![CDATA[x < y && \"z\" ]]]]><![CDATA[>]]></a><b>t<![CDATA[c]]>u</b><c><![CDATA[]]><d/></c>"
        "</zelkon>");
    QTest::newRow("nested sections and empty elements") << QByteArray(
        "<zelkon creator=\"zelkon\"><rdp><session><name>n</name><proxy><host>h</host><port/></proxy></session>"
        "<session/></rdp><empty></empty><sound><volume>3</volume></sound></zelkon>");
    QTest::newRow("mixed text") << QByteArray("<zelkon><p>before <b>bold</b> after<i/><j/> tail</p></zelkon>");
    QTest::newRow("processing instructions")
        << QByteArray("<?xml version='1.0'?><?style type=\"x\"?><zelkon><?inner data?><a/><?empty?></zelkon>");
    QTest::newRow("document type") << QByteArray("<!DOCTYPE zelkon><zelkon><a/></zelkon>");
    QTest::newRow("latin-1 declaration") << QByteArray(
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><zelkon><a n=\"\xe9\">\xe9 &#x20AC; &#x4E2D;</a></zelkon>");
    QTest::newRow("namespaces") << QByteArray(
        "<zelkon xmlns=\"urn:z\"><p:a xmlns:p=\"urn:p\" p:x=\"1\"><b/></p:a></zelkon>");
}

void ConfigWriterTest::matchesQtForLoadedDocuments()
{
    QFETCH(QByteArray, file);
    const QString path = m_dir->filePath(QStringLiteral("in.tavlocfg"));
    QFile in(path);
    QVERIFY(in.open(QIODevice::WriteOnly));
    in.write(file);
    in.close();

    ConfigFile config;
    QVERIFY(config.load(path));
    QVERIFY(!config.documentElement().isNull());
    compareWithQt(config);
}

void ConfigWriterTest::matchesQtForBuiltDocuments_data()
{
    QTest::addColumn<Built>("built");
    QTest::newRow("control characters") << Built::ControlCharacters;
    QTest::newRow("text beside the root") << Built::DocumentLevelText;
    QTest::newRow("comment ending in a dash") << Built::CommentEndingInDash;
    QTest::newRow("empty text node") << Built::EmptyText;
    QTest::newRow("namespaces") << Built::Namespaces;
    QTest::newRow("characters beyond the BMP") << Built::Unicode;
}

void ConfigWriterTest::matchesQtForBuiltDocuments()
{
    QFETCH(Built, built);
    ConfigFile config;
    // Qt would put the root's three attributes in any order.
    QDomElement root = config.documentElement();
    root.removeAttribute(QStringLiteral("creator"));
    root.removeAttribute(QStringLiteral("creator_version"));

    const auto addText = [&config](const QString& key, const QString& text) {
        config.createTextNode(key, text);
        config.leaveNode();
    };
    switch (built) {
    case Built::ControlCharacters:
        addText(QStringLiteral("a"), QStringLiteral("cr\r lf\n tab\t quote\" ]]> <&"));
        config.addNode(QStringLiteral("b"));
        config.setAttributeValue(QStringLiteral("v"), QStringLiteral("cr\r lf\n tab\t quote\" apos' <&>"));
        config.leaveNode();
        break;
    case Built::DocumentLevelText:
        config.insertBefore(config.QDomDocument::createTextNode(QStringLiteral("say \"hi\" & <go>")), root);
        config.appendChild(config.QDomDocument::createTextNode(QStringLiteral("after")));
        break;
    case Built::CommentEndingInDash:
        root.appendChild(config.createComment(QStringLiteral("dash-")));
        config.appendChild(config.createComment(QStringLiteral("-")));
        break;
    case Built::EmptyText:
        addText(QStringLiteral("empty"), QString());
        addText(QStringLiteral("full"), QStringLiteral("x"));
        break;
    case Built::Namespaces: {
        QDomElement element = config.createElementNS(QStringLiteral("urn:a\"b"), QStringLiteral("p:item"));
        element.setAttributeNS(QStringLiteral("urn:q"), QStringLiteral("q:at"), QStringLiteral("1"));
        root.appendChild(element);
        QDomElement plain = config.createElementNS(QStringLiteral("urn:d"), QStringLiteral("plain"));
        plain.setAttributeNS(QStringLiteral("urn:d"), QStringLiteral("d:x"), QStringLiteral("2"));
        element.appendChild(plain);
        break;
    }
    case Built::Unicode:
        addText(QStringLiteral("emoji"), QString::fromUtf8("smile \xF0\x9F\x98\x80 \xC3\xA9"));
        break;
    }
    compareWithQt(config);
}

void ConfigWriterTest::sameBytesInEveryProcess()
{
    const QString input = m_dir->filePath(QStringLiteral("input.tavlocfg"));
    QFile in(input);
    QVERIFY(in.open(QIODevice::WriteOnly));
    in.write("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
             "<zelkon creator_version=\"2.0\" extra=\"x\" creator=\"zelkon\" version=\"1.0\">\n"
             " <printers>\n"
             "  <printer port=\"9100\" name=\"lp\" address=\"10.0.0.1\" driver=\"pcl\"/>\n"
             " </printers>\n"
             " <sound>\n"
             "  <volume>3</volume>\n"
             "  <device z=\"1\" y=\"2\" x=\"3\"/>\n"
             " </sound>\n"
             "</zelkon>\n");
    in.close();

    // Without a fixed seed every process hashes attributes differently.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_HASH_SEED"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));

    const int runs = 6;
    QList<QByteArray> freshOutputs;
    QList<QByteArray> loadedOutputs;
    for (int run = 0; run < runs; ++run) {
        const QString fresh = m_dir->filePath(QStringLiteral("fresh%1.tavlocfg").arg(run));
        const QString loaded = m_dir->filePath(QStringLiteral("loaded%1.tavlocfg").arg(run));
        QProcess helper;
        helper.setProcessEnvironment(environment);
        helper.start(QStringLiteral(CONFIG_SAVE_HELPER), { input, fresh, loaded });
        QVERIFY2(helper.waitForFinished(30000), qPrintable(helper.errorString()));
        QCOMPARE(helper.exitStatus(), QProcess::NormalExit);
        QCOMPARE(helper.exitCode(), 0);
        freshOutputs.append(readAll(fresh));
        loadedOutputs.append(readAll(loaded));
    }

    const QByteArray expectedFresh = "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\n"
                                     "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\">\n"
                                     " <display>\n"
                                     "  <monitor depth=\"24\" name=\"DVI-1\" rate=\"60\">\n"
                                     "   <primary>true</primary>\n"
                                     "  </monitor>\n"
                                     " </display>\n"
                                     "</zelkon>\n";
    const QByteArray expectedLoaded
        = "<?xml version='1.0' encoding='utf-8'?>\n"
          "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\" extra=\"x\" added=\"yes\">\n"
          " <printers>\n"
          "  <printer port=\"515\" name=\"lp\" address=\"10.0.0.1\" driver=\"pcl\" alpha=\"a\" zeta=\"z\"/>\n"
          " </printers>\n"
          " <sound>\n"
          "  <volume>9</volume>\n"
          "  <device z=\"1\" y=\"2\" x=\"3\"/>\n"
          " </sound>\n"
          "</zelkon>\n";
    for (int run = 0; run < runs; ++run) {
        QCOMPARE(freshOutputs.at(run), expectedFresh);
        QCOMPARE(loadedOutputs.at(run), expectedLoaded);
    }
}

QTEST_MAIN(ConfigWriterTest)
#include "tst_configwriter.moc"
