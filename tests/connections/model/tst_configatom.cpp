#include "connections/model/configatom.h"

#include <QtTest>

class TestConfigAtom : public QObject
{
    Q_OBJECT

private slots:
    void freshNodes();
    void changesClimbToTheRoot_data();
    void changesClimbToTheRoot();
    void disabledNodeStopsTheClimb();
    void childMadeWhileDisabledStaysUnmarked();
    void objectNameIsNotAProperty();
    void setPropertyMarksEvenWithoutChange();
    void atomLookupCreatesAndMarks();
    void deleteAtom();
    void duplicateNamesFindTheFirst();
};

void TestConfigAtom::freshNodes()
{
    ConfigAtom root(QStringLiteral("rdp"));
    QCOMPARE(root.name(), QStringLiteral("rdp"));
    QVERIFY(!root.isDirty());
    QVERIFY(root.atoms().isEmpty());
    QVERIFY(!root.property("name").isValid());

    // A child copies its parent's current dirty state; construction marks nothing.
    auto* clean = new ConfigAtom(QStringLiteral("a"), &root);
    QVERIFY(!clean->isDirty());
    QVERIFY(!root.isDirty());
    root.setDirty();
    auto* dirty = new ConfigAtom(QStringLiteral("b"), &root);
    QVERIFY(dirty->isDirty());
    QVERIFY(!clean->isDirty());
    QCOMPARE(root.atoms(), (QList<ConfigAtom*> { clean, dirty }));
}

void TestConfigAtom::changesClimbToTheRoot_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("setProperty") << "setProperty";
    QTest::newRow("setName") << "setName";
    QTest::newRow("setDirty") << "setDirty";
    QTest::newRow("missing atom") << "atom";
    QTest::newRow("deleteAtom") << "deleteAtom";
}

void TestConfigAtom::changesClimbToTheRoot()
{
    QFETCH(QString, change);
    ConfigAtom root(QStringLiteral("ica"));
    auto* session = new ConfigAtom(QStringLiteral("s1"), &root);
    auto* proxy = new ConfigAtom(QStringLiteral("proxy"), session);
    auto* sibling = new ConfigAtom(QStringLiteral("s2"), &root);
    new ConfigAtom(QStringLiteral("x"), proxy);

    if (change == QLatin1String("setProperty"))
        proxy->setProperty("port", 8080);
    else if (change == QLatin1String("setName"))
        proxy->setName(QStringLiteral("other"));
    else if (change == QLatin1String("setDirty"))
        proxy->setDirty();
    else if (change == QLatin1String("atom"))
        proxy->atom(QStringLiteral("y"));
    else
        QVERIFY(proxy->deleteAtom(QStringLiteral("x")));

    QVERIFY(proxy->isDirty());
    QVERIFY(session->isDirty());
    QVERIFY(root.isDirty());
    QVERIFY(!sibling->isDirty());
}

void TestConfigAtom::disabledNodeStopsTheClimb()
{
    ConfigAtom root(QStringLiteral("ica"));
    auto* session = new ConfigAtom(QStringLiteral("s1"), &root);
    auto* proxy = new ConfigAtom(QStringLiteral("proxy"), session);
    session->disableDirtyFlag();
    proxy->enableDirtyFlag();

    proxy->setProperty("enable", true);
    QVERIFY(proxy->isDirty());
    QVERIFY(!session->isDirty());
    QVERIFY(!root.isDirty());

    session->setProperty("name", QStringLiteral("x"));
    QVERIFY(!session->isDirty());
    QCOMPARE(session->property("name").toString(), QStringLiteral("x"));
}

void TestConfigAtom::childMadeWhileDisabledStaysUnmarked()
{
    ConfigAtom root(QStringLiteral("rdp"));
    root.disableDirtyFlag();
    ConfigAtom* child = root.atom(QStringLiteral("s1"));
    child->setProperty("name", QStringLiteral("n"));
    child->atom(QStringLiteral("proxy"))->setProperty("port", 1);
    QVERIFY(!root.isDirty());
    QVERIFY(!child->isDirty());

    root.enableDirtyFlag();
    child->atom(QStringLiteral("proxy"))->setProperty("port", 2);
    root.disableDirtyFlag();
    QVERIFY2(root.isDirty(), "switching marking off must not clear the flag");
    QVERIFY(child->isDirty());
    QVERIFY(root.isDirty());
}

void TestConfigAtom::objectNameIsNotAProperty()
{
    ConfigAtom root(QStringLiteral("rdp"));
    auto* child = new ConfigAtom(QStringLiteral("s1"), &root);
    QVERIFY(!child->setProperty("objectName", QStringLiteral("renamed")));
    QCOMPARE(child->name(), QStringLiteral("s1"));
    QVERIFY(!child->isDirty());
    QVERIFY(!root.isDirty());
    QVERIFY(child->propertyNames().isEmpty());
}

void TestConfigAtom::setPropertyMarksEvenWithoutChange()
{
    ConfigAtom root(QStringLiteral("desktop"));
    root.disableDirtyFlag();
    // Dynamic properties report false, as Qt's store does.
    QVERIFY(!root.setProperty("kiosk_mode", true));
    root.enableDirtyFlag();
    QVERIFY(!root.isDirty());

    root.setProperty("kiosk_mode", true);
    QVERIFY(root.isDirty());
    QCOMPARE(root.propertyNames(), QList<QByteArray> { "kiosk_mode" });
    QCOMPARE(root.property("kiosk_mode"), QVariant(true));
}

void TestConfigAtom::atomLookupCreatesAndMarks()
{
    ConfigAtom root(QStringLiteral("browser"));
    QVERIFY(!root.containsAtom(QStringLiteral("general_settings")));
    ConfigAtom* settings = root.atom(QStringLiteral("general_settings"));
    QVERIFY(settings);
    QCOMPARE(settings->name(), QStringLiteral("general_settings"));
    QVERIFY(root.isDirty());
    // Marked before the child was made, so the child inherits the mark.
    QVERIFY(settings->isDirty());
    QCOMPARE(root.atom(QStringLiteral("general_settings")), settings);
    QCOMPARE(root.atoms().size(), 1);
    QVERIFY(!root.containsAtom(QStringLiteral("General_settings")));

    // An existing child is found without marking.
    ConfigAtom clean(QStringLiteral("rdp"));
    clean.disableDirtyFlag();
    ConfigAtom* child = clean.atom(QStringLiteral("s1"));
    clean.enableDirtyFlag();
    QCOMPARE(clean.atom(QStringLiteral("s1")), child);
    QVERIFY(!clean.isDirty());
}

void TestConfigAtom::deleteAtom()
{
    ConfigAtom root(QStringLiteral("rdp"));
    root.disableDirtyFlag();
    QPointer<ConfigAtom> child = root.atom(QStringLiteral("s1"));
    new ConfigAtom(QStringLiteral("inner"), child);
    root.enableDirtyFlag();

    QVERIFY(!root.deleteAtom(QStringLiteral("unknown")));
    QVERIFY(!root.isDirty());

    QVERIFY(root.deleteAtom(QStringLiteral("s1")));
    QVERIFY(child.isNull());
    QVERIFY(root.isDirty());
    QVERIFY(!root.containsAtom(QStringLiteral("s1")));
    QVERIFY(root.atoms().isEmpty());
}

void TestConfigAtom::duplicateNamesFindTheFirst()
{
    ConfigAtom root(QStringLiteral("rdp"));
    auto* first = new ConfigAtom(QStringLiteral("a"), &root);
    auto* second = new ConfigAtom(QStringLiteral("b"), &root);
    second->setName(QStringLiteral("a"));
    QCOMPARE(root.atom(QStringLiteral("a")), first);
    QVERIFY(root.deleteAtom(QStringLiteral("a")));
    QCOMPARE(root.atom(QStringLiteral("a")), second);
}

QTEST_MAIN(TestConfigAtom)
#include "tst_configatom.moc"
