#include "config/configfile.h"
#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "devicetree.h"
#include "platform.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextStream>
#include <QtTest>

namespace {
const QStringList allLaunchers
    = { "/usr/bin/rdesktop-runner",  "/usr/bin/ica-session-runner", "/usr/bin/parlix-runner",
        "/usr/bin/iceweasel-runner", "/usr/bin/view-runner",        "/usr/bin/pnagent-runner" };

const QString rdpSection
    = QStringLiteral("<rdp>"
                     "<session id=\"{6f1c2a9e-3b1d-4c52-9a0e-1f2b3c4d5e6f}\">"
                     "<name>Office</name><autostart>true</autostart><address>10.0.0.5</address></session>"
                     "<session id=\"{0a1b2c3d-4e5f-4a6b-8c7d-9e0f1a2b3c4d}\">"
                     "<name>Lab &amp; test</name><autostart>false</autostart><address>lab.example</address></session>"
                     "</rdp>");

const QString icaSection = QStringLiteral(
    "<ica><session id=\"ica-1\"><name>Citrix</name><autostart>false</autostart><address>farm.example</address>"
    "<proxy><enable>true</enable><address>proxy.example</address><port>8080</port></proxy></session></ica>");

bool isBracedUuid(const QString& id)
{
    static const QRegularExpression pattern(QStringLiteral("^\\{[0-9a-f-]{36}\\}$"));
    return pattern.match(id).hasMatch();
}

bool setDocument(ConfigFile& config, const QString& sections)
{
    const bool parsed
        = config.setContent(QLatin1String("<zelkon version=\"1.0\">") + sections + QLatin1String("</zelkon>"));
    config.setCurrentNodeAsRoot();
    return parsed;
}

QList<QDomElement> sections(const QDomDocument& document, const QString& name)
{
    QList<QDomElement> found;
    for (QDomElement e = document.documentElement().firstChildElement(name); !e.isNull();
         e = e.nextSiblingElement(name))
        found.append(e);
    return found;
}

QString text(const QDomElement& element)
{
    QString result;
    QTextStream stream(&result);
    element.save(stream, -1);
    return result;
}

QString sectionText(const QDomDocument& document, const QString& name)
{
    const QList<QDomElement> found = sections(document, name);
    return found.size() == 1 ? text(found.first()) : QStringLiteral("%1 sections").arg(found.size());
}
} // namespace

class TestConnectionPersistence : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void standaloneRoundTrip_data();
    void standaloneRoundTrip();
    void loadedValuesAreTyped();
    void unchangedTypeDisappearsOnDevice();
    void changedTypeIsRewrittenWhole();
    void unavailableTypesAreLeftAlone();
    void typeNeverAskedForWritesNothing();
    void sessionWithoutIdGetsOne();
    void missingValuesLoadEmpty();
    void loadReplacesThePreviousModel();
    void newSessionGetsFullLayout();
    void desktopIsAppendedNotReplaced();
    void desktopOnDevice();

private:
    std::unique_ptr<DeviceTree> m_tree;
};

void TestConnectionPersistence::init()
{
    m_tree = std::make_unique<DeviceTree>();
    for (const QString& launcher : allLaunchers)
        m_tree->addFile(launcher);
    Platform::instance()->setStandalone(false);
}

void TestConnectionPersistence::cleanup()
{
    m_tree.reset();
    Platform::instance()->setStandalone(false);
}

void TestConnectionPersistence::standaloneRoundTrip_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("section");

    QTest::newRow("rdp") << "rdp" << rdpSection;
    QTest::newRow("vmware, default layout")
        << "vmware"
        << "<vmware><session id=\"v\"><name>Desktops</name><autostart>true</autostart>"
           "<address>broker.example</address></session></vmware>";
    QTest::newRow("ica with proxy") << "ica" << icaSection;
    QTest::newRow("parlix") << "parlix"
                            << "<parlix><session id=\"{p}\"><name>Mainframe</name><region>eu</region>"
                               "<autostart>true</autostart><address>mf.example</address><emulation>vt220</emulation>"
                               "<local_port>-1</local_port><port>23</port><transport>telnet</transport></session>"
                               "<session id=\"{q}\"><name>Second</name><region>us</region><autostart>false</autostart>"
                               "<address>b</address><emulation>3270</emulation><local_port>2001</local_port>"
                               "<port>992</port><transport>ssl</transport></session></parlix>";
    QTest::newRow("browser") << "browser"
                             << "<browser><general_settings><proxy><enable>false</enable>"
                                "<address>cache.example</address><port>3128</port></proxy></general_settings>"
                                "<session id=\"b1\"><name>Intranet</name><autostart>true</autostart>"
                                "<url>http://intranet/</url></session>"
                                "<session id=\"b2\"><name>Mail</name><autostart>false</autostart>"
                                "<url>https://mail.example/?a=1&amp;b=2</url></session></browser>";
}

void TestConnectionPersistence::standaloneRoundTrip()
{
    QFETCH(QString, key);
    QFETCH(QString, section);
    Platform::instance()->setStandalone(true);
    ConfigFile config;
    QVERIFY(setDocument(config, QStringLiteral("<sound><volume>3</volume></sound>") + section));
    const QString before = sectionText(config, key);

    ConnectionModel model;
    QSignalSpy loaded(&model, &ConnectionModel::newConfigLoaded);
    model.loadConfig(&config);
    QCOMPARE(loaded.count(), 1);
    QVERIFY(model.connections(key)->isDirty());
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));

    model.saveConfig(&config);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QCOMPARE(sectionText(config, key), before);
    QCOMPARE(sectionText(config, QStringLiteral("sound")), QStringLiteral("<sound><volume>3</volume></sound>"));
}

void TestConnectionPersistence::loadedValuesAreTyped()
{
    ConfigFile config;
    QVERIFY(setDocument(config, rdpSection + icaSection));
    ConnectionModel model;
    model.loadConfig(&config);

    const QList<ConnectionSession*> rdp = model.connections(QStringLiteral("rdp"))->sessions();
    QCOMPARE(rdp.size(), 2);
    QCOMPARE(rdp.at(0)->id(), QStringLiteral("{6f1c2a9e-3b1d-4c52-9a0e-1f2b3c4d5e6f}"));
    QCOMPARE(rdp.at(0)->property("autostart"), QVariant(true));
    QCOMPARE(rdp.at(1)->property("name"), QVariant(QStringLiteral("Lab & test")));
    ConfigAtom* proxy = model.session(QStringLiteral("ica-1"))->atom(QStringLiteral("proxy"));
    QCOMPARE(proxy->property("enable"), QVariant(true));
    QCOMPARE(proxy->property("port"), QVariant(8080));
    QCOMPARE(proxy->property("address"), QVariant(QStringLiteral("proxy.example")));
    QCOMPARE(model.session(QStringLiteral("ica-1"))->property("address"), QVariant(QStringLiteral("farm.example")));
    // On a device, loading marks nothing, not even the atoms looked up above.
    QVERIFY(!model.connections(QStringLiteral("rdp"))->isDirty());
    QVERIFY(!model.connections(QStringLiteral("ica"))->isDirty());
}

void TestConnectionPersistence::unchangedTypeDisappearsOnDevice()
{
    ConfigFile config;
    QVERIFY(setDocument(config, rdpSection + icaSection + QStringLiteral("<sound/>")));
    ConnectionModel model;
    model.loadConfig(&config);
    model.saveConfig(&config);
    QVERIFY(sections(config, QStringLiteral("rdp")).isEmpty());
    QVERIFY(sections(config, QStringLiteral("ica")).isEmpty());
    QCOMPARE(sections(config, QStringLiteral("sound")).size(), 1);
}

void TestConnectionPersistence::changedTypeIsRewrittenWhole()
{
    ConfigFile config;
    QVERIFY(setDocument(config, rdpSection + icaSection));
    ConnectionModel model;
    model.loadConfig(&config);
    model.session(QStringLiteral("{0a1b2c3d-4e5f-4a6b-8c7d-9e0f1a2b3c4d}"))
        ->setProperty("address", QStringLiteral("lab2.example"));
    model.saveConfig(&config);

    QString expected = rdpSection;
    expected.replace(QLatin1String("lab.example"), QLatin1String("lab2.example"));
    QCOMPARE(sectionText(config, QStringLiteral("rdp")), expected);
    QVERIFY(sections(config, QStringLiteral("ica")).isEmpty());

    // A change inside a session's group counts for the whole type too.
    QVERIFY(setDocument(config, icaSection));
    model.loadConfig(&config);
    model.session(QStringLiteral("ica-1"))->atom(QStringLiteral("proxy"))->setProperty("port", 3128);
    model.saveConfig(&config);
    QCOMPARE(sectionText(config, QStringLiteral("ica")), QString(icaSection).replace("8080", "3128"));
}

void TestConnectionPersistence::unavailableTypesAreLeftAlone()
{
    m_tree->removeFile(QStringLiteral("/usr/bin/rdesktop-runner"));
    Platform::instance()->setStandalone(true);
    const QString cda = QStringLiteral("<cda><session id=\"c\"><name>CDA</name></session></cda>");
    ConfigFile config;
    QVERIFY(setDocument(config, rdpSection + cda));
    ConnectionModel model;
    model.loadConfig(&config);
    QCOMPARE(model.connectionTypeOf(QStringLiteral("{6f1c2a9e-3b1d-4c52-9a0e-1f2b3c4d5e6f}")), QString());
    QCOMPARE(model.connectionTypeOf(QStringLiteral("c")), QString());

    // Even an edited kind of such a type is not written.
    model.connections(QStringLiteral("rdp"))->session(QString()).setProperty("name", QStringLiteral("New"));
    model.saveConfig(&config);
    QCOMPARE(sectionText(config, QStringLiteral("rdp")), rdpSection);
    QCOMPARE(sectionText(config, QStringLiteral("cda")), cda);
}

void TestConnectionPersistence::typeNeverAskedForWritesNothing()
{
    Platform::instance()->setStandalone(true);
    ConfigFile config;
    QVERIFY(setDocument(config, QStringLiteral("<sound/>")));
    ConnectionModel model;
    model.loadConfig(&config);
    model.saveConfig(&config);
    QCOMPARE(config.documentElement().childNodes().count(), 1);
}

void TestConnectionPersistence::sessionWithoutIdGetsOne()
{
    ConfigFile config;
    QVERIFY(setDocument(config,
                        QStringLiteral("<vmware><session><name>A</name></session>"
                                       "<session id=\"\"><name>B</name></session></vmware>")));
    ConnectionModel model;
    model.loadConfig(&config);
    const QList<ConnectionSession*> sessions = model.connections(QStringLiteral("vmware"))->sessions();
    QCOMPARE(sessions.size(), 2);
    QVERIFY(isBracedUuid(sessions.at(0)->id()));
    QVERIFY(isBracedUuid(sessions.at(1)->id()));
    QVERIFY(sessions.at(0)->id() != sessions.at(1)->id());
    QCOMPARE(sessions.at(1)->property("name"), QVariant(QStringLiteral("B")));
    QVERIFY(!model.connections(QStringLiteral("vmware"))->isDirty());
}

void TestConnectionPersistence::missingValuesLoadEmpty()
{
    ConfigFile config;
    QVERIFY(setDocument(config,
                        QStringLiteral("<parlix><session id=\"p\"/></parlix><browser><session id=\"b\"/></browser>")));
    ConnectionModel model;
    model.loadConfig(&config);
    ConnectionSession* parlix = model.session(QStringLiteral("p"));
    QCOMPARE(parlix->property("name").toString(), QString());
    QCOMPARE(parlix->property("autostart"), QVariant(false));
    QCOMPARE(parlix->property("local_port"), QVariant(0));
    // Groups are only made when the document has them.
    QVERIFY(!model.connections(QStringLiteral("browser"))->containsAtom(QStringLiteral("general_settings")));
}

void TestConnectionPersistence::loadReplacesThePreviousModel()
{
    ConfigFile config;
    QVERIFY(setDocument(config, rdpSection));
    ConnectionModel model;
    model.loadConfig(&config);
    model.desktopConfig()->setProperty("kiosk_mode", true);
    QVERIFY(setDocument(config, icaSection));
    model.loadConfig(&config);
    QCOMPARE(model.connectionTypeOf(QStringLiteral("{6f1c2a9e-3b1d-4c52-9a0e-1f2b3c4d5e6f}")), QString());
    QCOMPARE(model.connectionTypeOf(QStringLiteral("ica-1")), QStringLiteral("ica"));
    QVERIFY(!model.desktopConfig()->isDirty());
}

void TestConnectionPersistence::newSessionGetsFullLayout()
{
    ConfigFile config;
    ConnectionModel model;
    model.loadConfig(&config);
    ConnectionSession& session = model.connections(QStringLiteral("ica"))->session(QString());
    session.setProperty("name", QStringLiteral("Fresh"));
    session.setProperty("autostart", true);
    model.saveConfig(&config);

    config.setCurrentNodeAsRoot();
    QVERIFY(config.findNode(QStringLiteral("session"), 0));
    QCOMPARE(config.attribute(QStringLiteral("id")), session.id());
    QCOMPARE(config.value(QStringLiteral("autostart")), QStringLiteral("true"));
    // The proxy group is written even though the session never had one.
    QVERIFY(config.findNode(QStringLiteral("proxy"), 0));
    QCOMPARE(config.value(QStringLiteral("enable")), QStringLiteral("false"));
    QCOMPARE(config.value(QStringLiteral("port")), QStringLiteral("0"));
}

void TestConnectionPersistence::desktopIsAppendedNotReplaced()
{
    Platform::instance()->setStandalone(true);
    ConfigFile config;
    QVERIFY(setDocument(config, QStringLiteral("<desktop><kiosk_mode>true</kiosk_mode></desktop>")));
    ConnectionModel model;
    QSignalSpy loaded(&model, &ConnectionModel::newConfigLoaded);
    bool kioskWhenSignalled = false;
    connect(&model, &ConnectionModel::newConfigLoaded, this,
            [&] { kioskWhenSignalled = model.desktopConfig()->property("kiosk_mode").toBool(); });
    model.loadConfig(&config);
    QVERIFY(kioskWhenSignalled);
    QVERIFY(model.desktopConfig()->isDirty());

    model.desktopConfig()->setProperty("kiosk_mode", false);
    model.saveConfig(&config);
    const QList<QDomElement> desktops = sections(config, QStringLiteral("desktop"));
    QCOMPARE(desktops.size(), 2);
    QCOMPARE(text(desktops.at(1)), QStringLiteral("<desktop><kiosk_mode>false</kiosk_mode></desktop>"));

    // The first one wins on the next load.
    model.loadConfig(&config);
    QCOMPARE(model.desktopConfig()->property("kiosk_mode"), QVariant(true));
    QCOMPARE(loaded.count(), 2);
}

void TestConnectionPersistence::desktopOnDevice()
{
    ConfigFile config;
    QVERIFY(setDocument(config, QStringLiteral("<desktop><kiosk_mode>true</kiosk_mode></desktop>")));
    ConnectionModel model;
    model.loadConfig(&config);
    QVERIFY(!model.desktopConfig()->isDirty());
    model.saveConfig(&config);
    // Not removed like a type section, and nothing added while clean.
    QCOMPARE(sections(config, QStringLiteral("desktop")).size(), 1);

    QVERIFY(setDocument(config, QString()));
    model.loadConfig(&config);
    QVERIFY(!model.desktopConfig()->property("kiosk_mode").isValid());
    model.desktopConfig()->setProperty("kiosk_mode", true);
    model.saveConfig(&config);
    QCOMPARE(sectionText(config, QStringLiteral("desktop")),
             QStringLiteral("<desktop><kiosk_mode>true</kiosk_mode></desktop>"));
}

QTEST_MAIN(TestConnectionPersistence)
#include "tst_connectionpersistence.moc"
