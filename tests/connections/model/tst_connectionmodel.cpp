#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "devicetree.h"

#include <QIcon>
#include <QUuid>
#include <QtTest>
#include <memory>
#include <typeinfo>

namespace {
// Adds a session the way loading does on a device: with marking off, so the kind stays clean.
ConnectionSession* addLoaded(ConnectionModel& model, const QString& type, const QString& id, const QString& name)
{
    ConnectionKindred* kind = model.connections(type);
    kind->disableDirtyFlag();
    ConnectionSession* session = &kind->session(id);
    session->setProperty("name", name);
    kind->enableDirtyFlag();
    return session;
}
} // namespace

class TestConnectionModel : public QObject
{
    Q_OBJECT

private slots:
    void dirtyFlagClimbsToFirstDisabledNode();
    void childAtomsByName();
    void refusedOrSilencedChangesMarkNothing();
    void lookupsSearchKindsInKeyOrder();
    void clearGivesFreshDesktop();
    void launchersAreProbedOnEveryCall();
    void namesAndNeverAvailableTypes();
    void everyTypeHasIcons();
    void iconWithoutSuffixComesFirst();
};

void TestConnectionModel::dirtyFlagClimbsToFirstDisabledNode()
{
    ConfigAtom root("ica");
    auto* session = new ConfigAtom("s1", &root);
    auto* proxy = new ConfigAtom("proxy", session);
    auto* sibling = new ConfigAtom("s2", &root);
    session->disableDirtyFlag();
    proxy->enableDirtyFlag();

    proxy->setProperty("port", 8080);
    QVERIFY(proxy->isDirty());
    QVERIFY(!session->isDirty());
    QVERIFY(!root.isDirty());

    session->enableDirtyFlag();
    proxy->setProperty("port", 8081);
    QVERIFY(session->isDirty());
    QVERIFY(root.isDirty());
    QVERIFY(!sibling->isDirty());
}

void TestConnectionModel::childAtomsByName()
{
    ConnectionKindred kind("browser");
    ConfigAtom* settings = kind.atom("general_settings");
    QCOMPARE(settings->name(), QString("general_settings"));
    QVERIFY(kind.isDirty());
    QCOMPARE(kind.atom("general_settings"), settings);
    QCOMPARE(kind.atoms(), QList<ConfigAtom*> { settings });
    QVERIFY_EXCEPTION_THROWN(kind.session("general_settings"), std::bad_cast);
}

void TestConnectionModel::refusedOrSilencedChangesMarkNothing()
{
    ConfigAtom root("rdp");
    auto* child = new ConfigAtom("s1", &root);
    QVERIFY(!child->setProperty("objectName", "renamed"));
    QCOMPARE(child->name(), QString("s1"));
    QVERIFY(!root.deleteAtom("unknown"));
    QVERIFY(!child->isDirty());
    QVERIFY(!root.isDirty());

    root.disableDirtyFlag();
    child->setProperty("name", "n");
    ConfigAtom* proxy = child->atom("proxy");
    proxy->setProperty("port", 1);
    QVERIFY(!proxy->isDirty());
    QVERIFY(!child->isDirty());
    QVERIFY(root.deleteAtom("s1"));
    QVERIFY(!root.isDirty());
}

void TestConnectionModel::lookupsSearchKindsInKeyOrder()
{
    ConnectionModel model;
    ConnectionSession* rdp = addLoaded(model, "rdp", "{1}", "Office");
    ConnectionSession* ica = addLoaded(model, "ica", "{1}", "Office");
    addLoaded(model, "ica", "{2}", "office");

    QCOMPARE(model.session("{1}"), ica);
    QCOMPARE(model.connectionTypeOf("{1}"), QString("ica"));
    QCOMPARE(model.connectionTypeOf("{3}"), QString());
    QCOMPARE(model.sessionsByName("Office"), (QList<ConnectionSession*> { ica, rdp }));

    std::unique_ptr<ConnectionSession> unknown(model.session("{3}"));
    QVERIFY(!unknown->parent());
    QVERIFY(!QUuid(unknown->id()).isNull());
    QCOMPARE(unknown->id(), QUuid(unknown->id()).toString());
    QVERIFY(!model.deleteSession("{3}"));
    QCOMPARE(model.connectionTypeOf(unknown->id()), QString());
    QVERIFY(!model.connections("ica")->isDirty());
    QVERIFY(!model.connections("rdp")->isDirty());

    QVERIFY(model.deleteSession("{1}"));
    QVERIFY(model.connections("ica")->isDirty());
    QCOMPARE(model.session("{1}"), rdp);
}

void TestConnectionModel::clearGivesFreshDesktop()
{
    ConnectionModel model;
    addLoaded(model, "rdp", "{1}", "A");
    model.desktopConfig()->setProperty("kiosk_mode", true);
    model.clear();
    QCOMPARE(model.desktopConfig()->name(), QString("desktop"));
    QVERIFY(!model.desktopConfig()->isDirty());
    QVERIFY(!model.desktopConfig()->property("kiosk_mode").isValid());
    QCOMPARE(model.connectionTypeOf("{1}"), QString());
}

void TestConnectionModel::launchersAreProbedOnEveryCall()
{
    DeviceTree tree;
    QVERIFY(ConnectionModel::sCategorizedConnectionTypes().isEmpty());
    QVERIFY(ConnectionModel::sSupportedConnectionTypes().isEmpty());

    tree.addFile("/usr/bin/view-runner");
    QCOMPARE(ConnectionModel::sCategorizedConnectionTypes(),
             (QList<QPair<QString, QString>> { qMakePair(QString("VDI connection brokers"), QString("vmware")) }));
    QCOMPARE(ConnectionModel::sSupportedConnectionTypes(), QStringList { "vmware" });

    tree.removeFile("/usr/bin/view-runner");
    QVERIFY(ConnectionModel::sSupportedConnectionTypes().isEmpty());
    QVERIFY(!ConnectionModel::sIsConnectionTypeAvailable("vmware"));
}

void TestConnectionModel::namesAndNeverAvailableTypes()
{
    DeviceTree tree;
    for (const char* launcher : { "rdesktop-runner", "ica-session-runner", "parlix-runner", "iceweasel-runner",
                                  "view-runner", "pnagent-runner" })
        tree.addFile(QLatin1String("/usr/bin/") + QLatin1String(launcher));
    // CDA mode is categorised but has no launcher.
    QCOMPARE(ConnectionModel::sSupportedConnectionTypes(),
             (QStringList { "rdp", "ica", "parlix", "browser", "vmware", "xenapp" }));
    QVERIFY(!ConnectionModel::sIsConnectionTypeAvailable("cda"));

    QCOMPARE(ConnectionModel::sGetConnectionTypeName("rdp"), QString("RDP"));
    QCOMPARE(ConnectionModel::sGetConnectionTypeName("RDP"), QString());
}

void TestConnectionModel::everyTypeHasIcons()
{
    for (const char* key : { "rdp", "ica", "parlix", "browser", "cda", "vmware", "xenapp", "leostream", "glimt",
                             "hollis", "ssh", "telnet", "vworkspace", "xdmcp" }) {
        for (int size : { 16, 32 }) {
            const QImage image
                = ConnectionModel::sGetConnectionTypeIcon(QLatin1String(key), size).pixmap(size, size).toImage();
            // Drawn, not blank: the SVG was found and rendered something opaque.
            QVERIFY2(image.size() == QSize(size, size) && qAlpha(image.pixel(size / 2, 2)) == 255,
                     qPrintable(QString("%1 at %2").arg(QLatin1String(key)).arg(size)));
        }
    }
}

void TestConnectionModel::iconWithoutSuffixComesFirst()
{
    // This test's own resource adds :/icaIcon16 in magenta beside the library's :/icaIcon16.svg.
    const QRgb magenta = qRgb(255, 0, 255);
    QCOMPARE(ConnectionModel::sGetConnectionTypeIcon("ica", 16).pixmap(16).toImage().pixel(8, 8), magenta);
    QVERIFY(ConnectionModel::sGetConnectionTypeIcon("ica", 32).pixmap(32).toImage().pixel(16, 16) != magenta);
}

QTEST_MAIN(TestConnectionModel)
#include "tst_connectionmodel.moc"
