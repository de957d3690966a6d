#include "config/configfile.h"

#include <QtTest>

/*
 * The cursor interface every frame and model uses: navigation, values and their
 * encodings, attributes, clearing and the order of sections.
 */
class ConfigDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void freshDocumentHasCursorOnRoot();
    void navigationIsRecursive();
    void addNodeCountsNamesakesAtAnyDepth();
    void findNodePastTheLastMatchKeepsCursor();
    void refusalsAtTheTop();
    void removeNodeLeavesCursorOnParent();
    void countsIncludeTextAndNestedNamesakes();
    void siblingSearchSkipsChildren();
    void valuesRoundTrip();
    void valueOperationsReturnToParent();
    void boolValue_data();
    void boolValue();
    void intValue_data();
    void intValue();
    void setValueOnKeyWithoutTextChangesNothing();
    void clearKeepsRootAndAttributes();
    void setCurrentNodeAsRoot();
    void sortNodes_data();
    void sortNodes();
    void sortNodesKeepsGrandchildrenAndCursor();
};

namespace {
QStringList childNames(const QDomNode& parent)
{
    QStringList names;
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling())
        names.append(child.nodeName());
    return names;
}
} // namespace

void ConfigDocumentTest::freshDocumentHasCursorOnRoot()
{
    ConfigFile config;
    QVERIFY(config.currentNode().isElement());
    QCOMPARE(config.currentNode().nodeName(), QStringLiteral("zelkon"));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QVERIFY(config.firstChild().isProcessingInstruction());
    QCOMPARE(config.firstChild().nodeName(), QStringLiteral("xml version=\"1.0\" encoding=\"utf-8\""));
    QCOMPARE(config.attribute(QStringLiteral("version")), QStringLiteral("1.0"));
    QCOMPARE(config.attribute(QStringLiteral("creator")), QStringLiteral("zelkon"));
    QCOMPARE(config.attribute(QStringLiteral("creator_version")), QStringLiteral("2.0"));
    QVERIFY(config.attribute(QStringLiteral("id")).isNull());
    QVERIFY(!config.isValid());
    QVERIFY(config.errorMessage().isEmpty());
    QVERIFY(config.getfilename().isEmpty());
}

void ConfigDocumentTest::navigationIsRecursive()
{
    ConfigFile config;
    config.addNode(QStringLiteral("display"));
    config.addNode(QStringLiteral("monitor"));
    config.setValue(QStringLiteral("depth"), QStringLiteral("24"));
    config.setCurrentNodeAsRoot();

    // The key two levels down is found from the root.
    QVERIFY(config.findNode(QStringLiteral("depth"), 0));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/display/monitor/depth"));
    config.setCurrentNodeAsRoot();
    QCOMPARE(config.value(QStringLiteral("depth")), QStringLiteral("24"));
    // ...and value() leaves the cursor on the key's parent, not where it started.
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/display/monitor"));
}

void ConfigDocumentTest::addNodeCountsNamesakesAtAnyDepth()
{
    ConfigFile config;
    QCOMPARE(config.addNode(QStringLiteral("session")), 0);
    QVERIFY(config.leaveNode());
    QCOMPARE(config.addNode(QStringLiteral("session")), 1);
    // A nested namesake counts as well.
    QCOMPARE(config.addNode(QStringLiteral("session")), 0);
    config.setCurrentNodeAsRoot();
    QCOMPARE(config.addNode(QStringLiteral("session")), 3);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/session"));
    QCOMPARE(config.nodeCount(), 0);
}

void ConfigDocumentTest::findNodePastTheLastMatchKeepsCursor()
{
    ConfigFile config;
    config.addNode(QStringLiteral("rdp"));
    config.addNode(QStringLiteral("session"));
    config.leaveNode();
    config.addNode(QStringLiteral("session"));
    config.leaveNode();

    QVERIFY(!config.findNode(QStringLiteral("session"), 2));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp"));
    QVERIFY(!config.findNode(QStringLiteral("session"), -1));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/rdp"));
    QVERIFY(config.findNode(QStringLiteral("session"), 1));
    QCOMPARE(config.currentNode().parentNode().childNodes().at(1), config.currentNode());
}

void ConfigDocumentTest::refusalsAtTheTop()
{
    ConfigFile config;
    QVERIFY(!config.leaveNode());
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));

    // A document whose root is not "zelkon" leaves a null cursor; then nothing is written.
    QVERIFY(config.setContent(QByteArrayLiteral("<other/>")));
    config.setCurrentNodeAsRoot();
    QVERIFY(config.currentNode().isNull());
    QVERIFY(!config.leaveNode());
    QCOMPARE(config.addNode(QStringLiteral("sound")), -1);
    QCOMPARE(config.namedNodeCount(QStringLiteral("other")), 0);
    QCOMPARE(config.nodeCount(), 0);
    QVERIFY(!config.findNode(QStringLiteral("other"), 0));
    QCOMPARE(config.currentNodePath(), QString());
    QCOMPARE(config.attribute(QStringLiteral("x")), QStringLiteral(""));
    QVERIFY(!config.attribute(QStringLiteral("x")).isNull());
    QVERIFY(!config.hasAttribute(QStringLiteral("x")));
    config.setValue(QStringLiteral("volume"), QStringLiteral("3"));
    QCOMPARE(config.documentElement().childNodes().count(), 0);
}

void ConfigDocumentTest::removeNodeLeavesCursorOnParent()
{
    ConfigFile config;
    config.addNode(QStringLiteral("printers"));
    config.addNode(QStringLiteral("printer"));
    config.setValue(QStringLiteral("name"), QStringLiteral("first"));
    config.leaveNode();
    config.addNode(QStringLiteral("printer"));
    config.setValue(QStringLiteral("name"), QStringLiteral("second"));
    config.setCurrentNodeAsRoot();

    QVERIFY(config.removeNode(QStringLiteral("printer"), 0));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/printers"));
    QCOMPARE(config.namedNodeCount(QStringLiteral("printer")), 1);
    QCOMPARE(config.value(QStringLiteral("name")), QStringLiteral("second"));

    config.setCurrentNodeAsRoot();
    QVERIFY(!config.removeNode(QStringLiteral("printer"), 1));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));

    config.findNode(QStringLiteral("printer"), 0);
    config.removeValue(QStringLiteral("name"));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/printers/printer"));
    QCOMPARE(config.nodeCount(), 0);
}

void ConfigDocumentTest::countsIncludeTextAndNestedNamesakes()
{
    ConfigFile config;
    config.addNode(QStringLiteral("a"));
    config.currentNode().appendChild(config.createComment(QStringLiteral("note")));
    config.setValue(QStringLiteral("b"), QStringLiteral("x"));
    config.addNode(QStringLiteral("a"));
    config.leaveNode();
    QCOMPARE(config.nodeCount(), 3);
    QVERIFY(config.findNode(QStringLiteral("b"), 0));
    QCOMPARE(config.nodeCount(), 1);
    config.setCurrentNodeAsRoot();
    QCOMPARE(config.namedNodeCount(QStringLiteral("a")), 2);
}

void ConfigDocumentTest::siblingSearchSkipsChildren()
{
    ConfigFile config;
    config.addNode(QStringLiteral("x"));
    config.addNode(QStringLiteral("target"));
    config.setCurrentNodeAsRoot();
    config.addNode(QStringLiteral("y"));
    config.leaveNode();
    config.addNode(QStringLiteral("target"));
    config.setCurrentNodeAsRoot();

    const QDomNode first = config.documentElement().firstChild();
    const QDomNode found = config.findNode(QStringLiteral("target"), first);
    QCOMPARE(found, config.documentElement().lastChild());
    QCOMPARE(config.findNode(QStringLiteral("x"), first), first);
    QVERIFY(config.findNode(QStringLiteral("x"), first.nextSibling()).isNull());
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
}

void ConfigDocumentTest::valuesRoundTrip()
{
    ConfigFile config;
    config.addNode(QStringLiteral("power"));
    config.setIntValue(QStringLiteral("delay"), -15);
    config.setBoolValue(QStringLiteral("enabled"), true);
    config.setBoolValue(QStringLiteral("suspend"), false);
    config.setValue(QStringLiteral("name"), QStringLiteral("a < b & \"c\""));

    QCOMPARE(config.value(QStringLiteral("delay")), QStringLiteral("-15"));
    QCOMPARE(config.intValue(QStringLiteral("delay")), -15);
    QCOMPARE(config.value(QStringLiteral("enabled")), QStringLiteral("true"));
    QCOMPARE(config.value(QStringLiteral("suspend")), QStringLiteral("false"));
    QVERIFY(config.boolValue(QStringLiteral("enabled")));
    QVERIFY(!config.boolValue(QStringLiteral("suspend")));
    QCOMPARE(config.value(QStringLiteral("name")), QStringLiteral("a < b & \"c\""));

    config.setValue(QStringLiteral("name"), QStringLiteral("other"));
    QCOMPARE(config.namedNodeCount(QStringLiteral("name")), 1);
    QCOMPARE(config.value(QStringLiteral("name")), QStringLiteral("other"));

    QVERIFY(config.value(QStringLiteral("missing")).isNull());
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/power"));
}

void ConfigDocumentTest::valueOperationsReturnToParent()
{
    ConfigFile config;
    config.addNode(QStringLiteral("sound"));
    config.setValue(QStringLiteral("volume"), QStringLiteral("7"));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/sound"));
    config.setValue(QStringLiteral("volume"), QStringLiteral("8"));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/sound"));
    config.value(QStringLiteral("volume"));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/sound"));

    // createTextNode on its own stays on the new element.
    config.createTextNode(QStringLiteral("mute"), QStringLiteral("false"));
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/sound/mute"));
    QCOMPARE(config.getTextValue(), QStringLiteral("false"));
}

void ConfigDocumentTest::boolValue_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("expected");
    QTest::newRow("true") << "true" << true;
    QTest::newRow("capitals") << "TRUE" << true;
    QTest::newRow("mixed case") << "True" << true;
    QTest::newRow("false") << "false" << false;
    // The "0" rule: a stored 0 reads as true, a stored 1 as false.
    QTest::newRow("zero") << "0" << true;
    QTest::newRow("one") << "1" << false;
    QTest::newRow("yes") << "yes" << false;
    QTest::newRow("padded true") << " true" << false;
    QTest::newRow("empty") << "" << false;
}

void ConfigDocumentTest::boolValue()
{
    QFETCH(QString, stored);
    QFETCH(bool, expected);
    ConfigFile config;
    config.setValue(QStringLiteral("flag"), stored);
    QCOMPARE(config.boolValue(QStringLiteral("flag")), expected);
    QVERIFY(!config.boolValue(QStringLiteral("missing")));
}

void ConfigDocumentTest::intValue_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("expected");
    QTest::newRow("decimal") << "42" << 42;
    QTest::newRow("negative") << "-3" << -3;
    QTest::newRow("leading zero is still decimal") << "010" << 10;
    QTest::newRow("hex is not read") << "0x10" << 0;
    QTest::newRow("text") << "loud" << 0;
    QTest::newRow("empty") << "" << 0;
}

void ConfigDocumentTest::intValue()
{
    QFETCH(QString, stored);
    QFETCH(int, expected);
    ConfigFile config;
    config.setValue(QStringLiteral("n"), stored);
    QCOMPARE(config.intValue(QStringLiteral("n")), expected);
    QCOMPARE(config.intValue(QStringLiteral("missing")), 0);
}

void ConfigDocumentTest::setValueOnKeyWithoutTextChangesNothing()
{
    // As read back from a file, an empty value is <key/> without a text node.
    ConfigFile config;
    QVERIFY(config.setContent(QByteArrayLiteral("<zelkon><wireless><ssid/></wireless></zelkon>"), true));
    config.setCurrentNodeAsRoot();
    QVERIFY(config.findNode(QStringLiteral("wireless"), 0));
    config.setValue(QStringLiteral("ssid"), QStringLiteral("office"));
    QCOMPARE(config.value(QStringLiteral("ssid")), QString());
    QCOMPARE(config.namedNodeCount(QStringLiteral("ssid")), 1);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon/wireless"));
    QVERIFY(config.findNode(QStringLiteral("ssid"), 0));
    QVERIFY(config.getTextNode().isNull());
    config.changeTextNode(QStringLiteral("office"));
    QCOMPARE(config.nodeCount(), 0);
}

void ConfigDocumentTest::clearKeepsRootAndAttributes()
{
    ConfigFile config;
    config.clear();
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QCOMPARE(config.nodeCount(), 0);

    config.addNode(QStringLiteral("sound"));
    config.setValue(QStringLiteral("volume"), QStringLiteral("3"));
    config.leaveNode();
    config.addNode(QStringLiteral("power"));
    config.clear();
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QCOMPARE(config.nodeCount(), 0);
    QCOMPARE(config.documentElement().attributes().count(), 3);
    QCOMPARE(config.attribute(QStringLiteral("creator_version")), QStringLiteral("2.0"));
    QCOMPARE(config.childNodes().count(), 2);
}

void ConfigDocumentTest::setCurrentNodeAsRoot()
{
    ConfigFile config;
    QVERIFY(config.setContent(
        QByteArrayLiteral("<?xml version=\"1.0\"?><!-- before --><zelkon><sound><volume>1</volume></sound></zelkon>")));
    config.setCurrentNodeAsRoot();
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    config.findNode(QStringLiteral("volume"), 0);
    config.setCurrentNodeAsRoot();
    QCOMPARE(config.currentNode(), QDomNode(config.documentElement()));
}

void ConfigDocumentTest::sortNodes_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("sorted");
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("one") << QStringList { "sound" } << QStringList { "sound" };
    QTest::newRow("reversed") << QStringList { "wireless", "sound", "power", "display" }
                              << QStringList { "display", "power", "sound", "wireless" };
    QTest::newRow("upper case before lower case")
        << QStringList { "apple", "Zebra", "mango", "Banana" } << QStringList { "Banana", "Zebra", "apple", "mango" };
    QTest::newRow("underscore between cases") << QStringList { "a", "_b", "B" } << QStringList { "B", "_b", "a" };
    QTest::newRow("prefix first") << QStringList { "time_zone", "time" } << QStringList { "time", "time_zone" };
}

void ConfigDocumentTest::sortNodes()
{
    QFETCH(QStringList, names);
    QFETCH(QStringList, sorted);
    ConfigFile config;
    for (const QString& name : names) {
        config.addNode(name);
        config.leaveNode();
    }
    config.sortNodes();
    QCOMPARE(childNames(config.documentElement()), sorted);
}

void ConfigDocumentTest::sortNodesKeepsGrandchildrenAndCursor()
{
    ConfigFile config;
    config.addNode(QStringLiteral("session"));
    config.setValue(QStringLiteral("name"), QStringLiteral("second-last"));
    config.leaveNode();
    config.addNode(QStringLiteral("keyboard"));
    config.setValue(QStringLiteral("z"), QStringLiteral("1"));
    config.setValue(QStringLiteral("a"), QStringLiteral("2"));
    config.leaveNode();
    config.addNode(QStringLiteral("session"));
    config.setValue(QStringLiteral("name"), QStringLiteral("last"));
    config.leaveNode();
    config.currentNode().appendChild(config.createComment(QStringLiteral("c")));
    config.currentNode().appendChild(QDomNode(config.QDomDocument::createTextNode(QStringLiteral("t"))));

    config.findNode(QStringLiteral("keyboard"), 0);
    const QDomNode cursor = config.currentNode();
    config.sortNodes();

    QCOMPARE(config.currentNode(), cursor);
    const QDomElement root = config.documentElement();
    QCOMPARE(childNames(root), (QStringList { "#comment", "#text", "keyboard", "session", "session" }));
    QCOMPARE(childNames(root.firstChildElement(QStringLiteral("keyboard"))), (QStringList { "z", "a" }));
    QCOMPARE(root.lastChild().toElement().text(), QStringLiteral("last"));
    QCOMPARE(root.lastChild().previousSibling().toElement().text(), QStringLiteral("second-last"));
}

QTEST_MAIN(ConfigDocumentTest)
#include "tst_configdocument.moc"
