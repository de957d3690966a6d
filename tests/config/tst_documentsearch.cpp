#include "config/configfile.h"
#include "filecontents.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {
// What the cursor operations return when every search starts afresh.
QDomNodeList freshMatches(const ConfigFile& config, const QString& name)
{
    return config.currentNode().toElement().elementsByTagName(name);
}

void writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
}
} // namespace

// Searches by index and appends are remembered between calls; whatever changes the
// document in between, every result must be the one a fresh search gives.
class DocumentSearchTest : public QObject
{
    Q_OBJECT

private slots:
    void resultsMatchAFreshSearch_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<bool>("directEdits");
        for (quint32 seed = 1; seed <= 6; ++seed) {
            QTest::addRow("cursor calls only, seed %u", seed) << seed << false;
            QTest::addRow("with direct DOM edits, seed %u", seed) << seed << true;
        }
    }

    void resultsMatchAFreshSearch()
    {
        QFETCH(quint32, seed);
        QFETCH(bool, directEdits);
        QRandomGenerator random(seed);
        // Few names, so that namesakes nest inside one another.
        const QStringList names { QStringLiteral("session"), QStringLiteral("name"), QStringLiteral("proxy") };
        const auto anyName = [&] { return names.at(random.bounded(names.size())); };

        ConfigFile config;
        for (int step = 0; step < 3000; ++step) {
            const QString name = anyName();
            const QByteArray where = QByteArray::number(step) + " at " + config.currentNodePath().toUtf8();
            switch (random.bounded(directEdits ? 9 : 8)) {
            case 0:
            case 1: {
                const int expected = config.currentNode().isElement() ? freshMatches(config, name).count() : -1;
                QVERIFY2(config.addNode(name) == expected, where);
                break;
            }
            case 2: {
                const int count = config.currentNode().isElement() ? freshMatches(config, name).count() : 0;
                const int index = random.bounded(count + 2);
                const QDomNode expected = index < count ? freshMatches(config, name).at(index) : config.currentNode();
                QVERIFY2(config.findNode(name, index) == (index < count), where);
                QVERIFY2(config.currentNode() == expected, where);
                break;
            }
            case 3:
                QVERIFY2(config.namedNodeCount(name) == freshMatches(config, name).count(), where);
                break;
            case 4:
                config.setValue(name, QString::number(step));
                break;
            case 5:
                config.leaveNode();
                break;
            case 6: {
                const int count = freshMatches(config, name).count();
                if (count > 0 && random.bounded(4) == 0)
                    QVERIFY2(config.removeNode(name, random.bounded(count)), where);
                break;
            }
            case 7:
                if (random.bounded(8) == 0)
                    config.setCurrentNodeAsRoot();
                break;
            case 8: {
                // An edit behind the cursor's back, followed by the usual hand-back to the root.
                QDomElement root = config.documentElement();
                QDomNodeList all = root.elementsByTagName(name);
                QDomElement parent = all.isEmpty() ? root : all.at(random.bounded(all.count())).toElement();
                if (random.bounded(3) == 0 && !parent.firstChildElement().isNull())
                    parent.removeChild(parent.firstChildElement());
                else
                    parent.appendChild(config.createElement(anyName()));
                config.setCurrentNodeAsRoot();
                break;
            }
            }
        }
        // The walk built a document of some size, or it proved little.
        config.setCurrentNodeAsRoot();
        QVERIFY(config.namedNodeCount(QStringLiteral("session")) > 20);
    }

    void recordListsRoundTrip()
    {
        // The record-list pattern of the frames and the connection model, on a long list.
        ConfigFile config;
        config.addNode(QStringLiteral("rdp"));
        for (int i = 0; i < 500; ++i) {
            QCOMPARE(config.addNode(QStringLiteral("session")), i);
            config.setAttributeValue(QStringLiteral("id"), QString::number(i));
            config.setValue(QStringLiteral("name"), QStringLiteral("host %1").arg(i));
            if (i == 298)
                config.setValue(QStringLiteral("port"), QStringLiteral("3389"));
            config.leaveNode();
        }
        // A namesake deeper down counts for later appends, as it always has.
        QVERIFY(config.findNode(QStringLiteral("session"), 499));
        QCOMPARE(config.addNode(QStringLiteral("session")), 0);
        config.leaveNode();
        config.leaveNode();
        QCOMPARE(config.addNode(QStringLiteral("session")), 501);
        config.leaveNode();

        QCOMPARE(config.namedNodeCount(QStringLiteral("session")), 502);
        for (int i = 0; i < 500; ++i) {
            QVERIFY(config.findNode(QStringLiteral("session"), i));
            QCOMPARE(config.attribute(QStringLiteral("id")), QString::number(i));
            QCOMPARE(config.value(QStringLiteral("name")), QStringLiteral("host %1").arg(i));
            config.leaveNode();
        }
        QVERIFY(config.removeNode(QStringLiteral("session"), 0));
        QVERIFY(config.findNode(QStringLiteral("session"), 0));
        QCOMPARE(config.attribute(QStringLiteral("id")), QStringLiteral("1"));
    }

    // A search that goes on past the first few hundred nodes still finds the first match in
    // document order, however deep, and leaves the cursor alone when there is none.
    void longSearchesFindTheFirstInDocumentOrder()
    {
        ConfigFile config;
        config.addNode(QStringLiteral("rdp"));
        for (int i = 0; i < 300; ++i) {
            config.addNode(QStringLiteral("session"));
            config.setValue(QStringLiteral("name"), QStringLiteral("host %1").arg(i));
            if (i == 298)
                config.setValue(QStringLiteral("port"), QStringLiteral("3389"));
            config.leaveNode();
        }
        config.setCurrentNodeAsRoot();
        config.addNode(QStringLiteral("late"));
        config.addNode(QStringLiteral("deep"));
        config.setValue(QStringLiteral("target"), QStringLiteral("inner"));
        config.setCurrentNodeAsRoot();
        config.createTextNode(QStringLiteral("target"), QStringLiteral("outer"));
        // Here the element of the root comes first, before a deeper namesake after it.
        config.setCurrentNodeAsRoot();
        config.createTextNode(QStringLiteral("mark"), QStringLiteral("outer"));
        config.setCurrentNodeAsRoot();
        config.addNode(QStringLiteral("later"));
        config.setValue(QStringLiteral("mark"), QStringLiteral("inner"));

        config.setCurrentNodeAsRoot();
        QCOMPARE(config.value(QStringLiteral("target")), QStringLiteral("inner"));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/late/deep"));
        config.setCurrentNodeAsRoot();
        QCOMPARE(config.value(QStringLiteral("mark")), QStringLiteral("outer"));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
        // Elements inside a node other than an element are found in their place too.
        QDomEntityReference reference = config.createEntityReference(QStringLiteral("held"));
        reference.appendChild(config.createElement(QStringLiteral("late")));
        config.documentElement().insertAfter(reference, config.documentElement().firstChild());
        config.setCurrentNodeAsRoot();
        QVERIFY(config.findNode(QStringLiteral("late"), 0));
        QVERIFY(config.currentNode().parentNode().isEntityReference());
        config.setCurrentNodeAsRoot();
        QVERIFY(!config.findNode(QStringLiteral("absent"), 0));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
        // From inside the long list the search stays below the cursor.
        QVERIFY(config.findNode(QStringLiteral("rdp"), 0));
        QVERIFY(!config.findNode(QStringLiteral("target"), 0));
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp"));
        QCOMPARE(config.value(QStringLiteral("port")), QStringLiteral("3389"));
        QCOMPARE(config.value(QStringLiteral("name")), QStringLiteral("host 298"));
    }

    void attributeOrderSurvivesALoad()
    {
        // Elements with and without attributes at several depths: each keeps its own order.
        QTemporaryDir dir;
        const QString in = dir.filePath(QStringLiteral("in.tavlocfg"));
        const QString out = dir.filePath(QStringLiteral("out.tavlocfg"));
        writeFile(in,
                  "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                  "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\">\n"
                  " <rdp>\n"
                  "  <session zid=\"1\" id=\"a\">\n   <name>x</name>\n   <proxy port=\"1\" enable=\"true\"/>\n"
                  "  </session>\n"
                  "  <session id=\"b\" mode=\"m\"/>\n"
                  " </rdp>\n"
                  " <printer name=\"lp\" address=\"h\"/>\n"
                  "</zelkon>\n");
        ConfigFile config;
        QVERIFY(config.load(in));
        QVERIFY(config.save(out));
        const auto fromRoot = [](const QByteArray& bytes) { return bytes.mid(bytes.indexOf("<zelkon")); };
        QCOMPARE(fromRoot(fileContents(out)), fromRoot(fileContents(in)));
    }
};

QTEST_MAIN(DocumentSearchTest)
#include "tst_documentsearch.moc"
