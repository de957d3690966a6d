#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"

#include <QRegularExpression>
#include <QtTest>
#include <memory>
#include <typeinfo>

namespace {
bool isBracedUuid(const QString& id)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\{[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\}$"));
    return pattern.match(id).hasMatch();
}

// A kind as the loader leaves it on a device: filled with marking off, then clean.
ConnectionSession& loadedSession(ConnectionKindred* kind, const QString& id, const QString& name)
{
    kind->disableDirtyFlag();
    ConnectionSession& session = kind->session(id);
    session.setProperty("name", name);
    kind->enableDirtyFlag();
    return session;
}
} // namespace

class TestConnectionModel : public QObject
{
    Q_OBJECT

private slots:
    void sessionIds();
    void kindSessionLookup();
    void kindSessionOfAnotherAtomIsABadCast();
    void kindIsMarkedBySessionChanges_data();
    void kindIsMarkedBySessionChanges();
    void connectionsCreatesCleanKinds();
    void modelSessionLookup();
    void unknownSessionIsNewAndParentless();
    void sessionsByName();
    void deleteSession();
    void clearReplacesDesktop();
};

void TestConnectionModel::sessionIds()
{
    ConnectionSession fresh(QString(), nullptr);
    QVERIFY(isBracedUuid(fresh.id()));
    QCOMPARE(fresh.name(), fresh.id());
    ConnectionSession other(QString(), nullptr);
    QVERIFY(other.id() != fresh.id());

    ConnectionSession given(QStringLiteral("not-a-uuid"), nullptr);
    QCOMPARE(given.id(), QStringLiteral("not-a-uuid"));
    given.setId(QString());
    given.initId();
    QVERIFY(isBracedUuid(given.id()));
}

void TestConnectionModel::kindSessionLookup()
{
    ConnectionKindred kind(QStringLiteral("rdp"));
    QCOMPARE(kind.connectionType(), QStringLiteral("rdp"));
    ConnectionSession& created = kind.session(QStringLiteral("{a}"));
    QCOMPARE(created.id(), QStringLiteral("{a}"));
    QCOMPARE(&kind.session(QStringLiteral("{a}")), &created);
    QVERIFY(kind.containsSession(QStringLiteral("{a}")));

    kind.atom(QStringLiteral("general_settings"));
    ConnectionSession& first = kind.session(QString());
    ConnectionSession& second = kind.session(QString());
    QVERIFY(&first != &second);
    QVERIFY(isBracedUuid(first.id()));
    QCOMPARE(kind.sessions(), (QList<ConnectionSession*> { &created, &first, &second }));
}

void TestConnectionModel::kindSessionOfAnotherAtomIsABadCast()
{
    ConnectionKindred kind(QStringLiteral("browser"));
    kind.atom(QStringLiteral("general_settings"));
    QVERIFY_EXCEPTION_THROWN(kind.session(QStringLiteral("general_settings")), std::bad_cast);
    QCOMPARE(kind.atoms().size(), 1);
}

void TestConnectionModel::kindIsMarkedBySessionChanges_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("session property") << "property";
    QTest::newRow("proxy property") << "proxy";
    QTest::newRow("new session, fresh id") << "new";
    QTest::newRow("new session, given id") << "newWithId";
    QTest::newRow("session renamed") << "rename";
    QTest::newRow("session deleted") << "delete";
}

void TestConnectionModel::kindIsMarkedBySessionChanges()
{
    QFETCH(QString, change);
    ConnectionKindred kind(QStringLiteral("ica"));
    ConnectionSession& session = loadedSession(&kind, QStringLiteral("{s}"), QStringLiteral("Host"));
    kind.disableDirtyFlag();
    ConfigAtom* proxy = session.atom(QStringLiteral("proxy"));
    kind.enableDirtyFlag();
    QVERIFY(!kind.isDirty());

    if (change == QLatin1String("property"))
        session.setProperty("address", QStringLiteral("10.0.0.1"));
    else if (change == QLatin1String("proxy"))
        proxy->setProperty("enable", true);
    else if (change == QLatin1String("new"))
        kind.session(QString());
    else if (change == QLatin1String("newWithId"))
        kind.session(QStringLiteral("{t}"));
    else if (change == QLatin1String("rename"))
        session.setId(QStringLiteral("{u}"));
    else
        QVERIFY(kind.deleteSession(QStringLiteral("{s}")));
    QVERIFY(kind.isDirty());
}

void TestConnectionModel::connectionsCreatesCleanKinds()
{
    ConnectionModel model;
    ConnectionKindred* kind = model.connections(QStringLiteral("x"));
    QVERIFY(kind);
    QCOMPARE(kind->connectionType(), QStringLiteral("x"));
    QVERIFY(!kind->isDirty());
    QVERIFY(kind->atoms().isEmpty());
    QCOMPARE(model.connections(QStringLiteral("x")), kind);
    QVERIFY(model.connections(QStringLiteral("X")) != kind);
}

void TestConnectionModel::modelSessionLookup()
{
    ConnectionModel model;
    ConnectionSession& inRdp = loadedSession(model.connections(QStringLiteral("rdp")), QStringLiteral("{1}"), "A");
    ConnectionSession& inIca = loadedSession(model.connections(QStringLiteral("ica")), QStringLiteral("{1}"), "B");
    loadedSession(model.connections(QStringLiteral("vmware")), QStringLiteral("{2}"), "C");

    // Kinds are searched in key order: "ica" before "rdp".
    QCOMPARE(model.session(QStringLiteral("{1}")), &inIca);
    QCOMPARE(model.connectionTypeOf(QStringLiteral("{1}")), QStringLiteral("ica"));
    QCOMPARE(model.connectionTypeOf(QStringLiteral("{2}")), QStringLiteral("vmware"));
    QCOMPARE(model.connectionTypeOf(QStringLiteral("{3}")), QString());

    QVERIFY(model.deleteSession(QStringLiteral("{1}")));
    QCOMPARE(model.session(QStringLiteral("{1}")), &inRdp);
    QVERIFY(model.connections(QStringLiteral("ica"))->isDirty());
    QVERIFY(!model.connections(QStringLiteral("rdp"))->isDirty());
}

void TestConnectionModel::unknownSessionIsNewAndParentless()
{
    ConnectionModel model;
    loadedSession(model.connections(QStringLiteral("rdp")), QStringLiteral("{1}"), "A");

    std::unique_ptr<ConnectionSession> session(model.session(QStringLiteral("{unknown}")));
    QVERIFY(session);
    QVERIFY(!session->parent());
    QVERIFY(isBracedUuid(session->id()));
    QCOMPARE(model.connectionTypeOf(session->id()), QString());
    QCOMPARE(model.connections(QStringLiteral("rdp"))->sessions().size(), 1);
    QVERIFY(!model.connections(QStringLiteral("rdp"))->isDirty());
}

void TestConnectionModel::sessionsByName()
{
    ConnectionModel model;
    ConnectionSession& rdp = loadedSession(model.connections(QStringLiteral("rdp")), "{1}", QStringLiteral("Office"));
    ConnectionSession& ica = loadedSession(model.connections(QStringLiteral("ica")), "{2}", QStringLiteral("Office"));
    loadedSession(model.connections(QStringLiteral("ica")), QStringLiteral("{3}"), QStringLiteral("office"));
    ConnectionSession& ica2 = loadedSession(model.connections(QStringLiteral("ica")), "{4}", QStringLiteral("Office"));
    model.connections(QStringLiteral("browser"))->atom(QStringLiteral("general_settings"));

    QCOMPARE(model.sessionsByName(QStringLiteral("Office")), (QList<ConnectionSession*> { &ica, &ica2, &rdp }));
    QVERIFY(model.sessionsByName(QStringLiteral("Office ")).isEmpty());
    QVERIFY(model.sessionsByName(QStringLiteral("general_settings")).isEmpty());
}

void TestConnectionModel::deleteSession()
{
    ConnectionModel model;
    loadedSession(model.connections(QStringLiteral("rdp")), QStringLiteral("{1}"), QStringLiteral("A"));
    QVERIFY(!model.deleteSession(QStringLiteral("{unknown}")));
    QVERIFY(!model.connections(QStringLiteral("rdp"))->isDirty());
    QVERIFY(model.deleteSession(QStringLiteral("{1}")));
    QVERIFY(model.connections(QStringLiteral("rdp"))->isDirty());
    QVERIFY(!model.deleteSession(QStringLiteral("{1}")));
}

void TestConnectionModel::clearReplacesDesktop()
{
    ConnectionModel model;
    ConfigAtom* desktop = model.desktopConfig();
    QCOMPARE(desktop->name(), QStringLiteral("desktop"));
    QVERIFY(!desktop->isDirty());
    desktop->setProperty("kiosk_mode", true);
    QVERIFY(desktop->isDirty());
    ConnectionKindred* rdp = model.connections(QStringLiteral("rdp"));
    loadedSession(rdp, QStringLiteral("{1}"), QStringLiteral("A"));

    model.clear();
    ConfigAtom* fresh = model.desktopConfig();
    QCOMPARE(fresh->name(), QStringLiteral("desktop"));
    QVERIFY(!fresh->isDirty());
    QVERIFY(!fresh->property("kiosk_mode").isValid());
    QCOMPARE(model.connectionTypeOf(QStringLiteral("{1}")), QString());
    QVERIFY(model.connections(QStringLiteral("rdp")) != rdp);
    // Dropped kinds stay usable for whoever still holds them.
    QCOMPARE(rdp->sessions().size(), 1);
}

QTEST_MAIN(TestConnectionModel)
#include "tst_connectionmodel.moc"
