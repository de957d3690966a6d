#include "config/configfile.h"
#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "devicetree.h"
#include "platform.h"

#include <QUuid>
#include <QtTest>

namespace {
const QString rdpSection = "<rdp><session id=\"{r1}\"><name>Office</name><autostart>true</autostart>"
                           "<address>10.0.0.5</address></session><session id=\"{r2}\"><name>Lab &amp; test</name>"
                           "<autostart>false</autostart><address>lab.example</address></session></rdp>";

QString document(const QString& sections)
{
    return "<zelkon version=\"1.0\">" + sections + "</zelkon>";
}

QString compact(const QDomDocument& dom)
{
    return dom.toString(-1);
}
} // namespace

class TestConnectionPersistence : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void standaloneRoundTrip_data();
    void standaloneRoundTrip();
    void deviceWritesOnlyChangedTypes();
    void typeWithoutLauncherIsLeftAlone();
    void sessionWithoutIdGetsFreshId();
    void dirtyDesktopIsAppended();

private:
    // Shared by all tests: each one sets a fresh document, and loading it replaces the model's contents.
    DeviceTree m_tree;
    ConfigFile m_config;
    ConnectionModel m_model;
};

void TestConnectionPersistence::init()
{
    for (const char* launcher : { "rdesktop-runner", "ica-session-runner", "parlix-runner", "iceweasel-runner",
                                  "view-runner", "pnagent-runner" })
        m_tree.addFile(QLatin1String("/usr/bin/") + QLatin1String(launcher));
    Platform::instance()->setStandalone(false);
}

void TestConnectionPersistence::standaloneRoundTrip_data()
{
    QTest::addColumn<QString>("section");
    QTest::newRow("rdp, default layout") << rdpSection;
    QTest::newRow("ica with proxy") << "<ica><session id=\"ica-1\"><name>Citrix</name><autostart>false</autostart>"
                                       "<address>farm.example</address><proxy><enable>true</enable>"
                                       "<address>proxy.example</address><port>8080</port></proxy></session></ica>";
    QTest::newRow("parlix") << "<parlix><session id=\"{p}\"><name>Mainframe</name><region>eu</region>"
                               "<autostart>true</autostart><address>mf.example</address><emulation>vt220</emulation>"
                               "<local_port>2001</local_port><port>23</port><transport>telnet</transport>"
                               "</session></parlix>";
    QTest::newRow("browser") << "<browser><general_settings><proxy><enable>true</enable>"
                                "<address>cache.example</address><port>3128</port></proxy></general_settings>"
                                "<session id=\"b1\"><name>Intranet</name><autostart>true</autostart>"
                                "<url>http://intranet/?a=1&amp;b=2</url></session></browser>";
}

void TestConnectionPersistence::standaloneRoundTrip()
{
    QFETCH(QString, section);
    Platform::instance()->setStandalone(true);
    QVERIFY(m_config.setContent(document(section)));
    m_model.loadConfig(&m_config);
    ConfigFile saved;
    QVERIFY(saved.setContent(document(QString())));
    m_model.saveConfig(&saved);
    QCOMPARE(compact(saved), document(section));
}

void TestConnectionPersistence::deviceWritesOnlyChangedTypes()
{
    const QString ica = "<ica><session id=\"i\"><name>Citrix</name></session></ica>";
    QVERIFY(m_config.setContent(document("<sound/>" + rdpSection + ica)));
    m_model.loadConfig(&m_config);
    m_model.session("{r2}")->setProperty("address", "lab2.example");
    m_model.saveConfig(&m_config);
    QCOMPARE(compact(m_config), document("<sound/>" + QString(rdpSection).replace("lab.", "lab2.")));
}

void TestConnectionPersistence::typeWithoutLauncherIsLeftAlone()
{
    m_tree.removeFile("/usr/bin/rdesktop-runner");
    Platform::instance()->setStandalone(true);
    QVERIFY(m_config.setContent(document(rdpSection)));
    m_model.loadConfig(&m_config);
    QCOMPARE(m_model.connectionTypeOf("{r1}"), QString());
    // Even an edited kind of such a type is not written.
    m_model.connections("rdp")->session(QString()).setProperty("name", "New");
    m_model.saveConfig(&m_config);
    QCOMPARE(compact(m_config), document(rdpSection));
}

void TestConnectionPersistence::sessionWithoutIdGetsFreshId()
{
    QVERIFY(m_config.setContent(document("<vmware><session><name>A</name></session></vmware>")));
    m_model.loadConfig(&m_config);
    const QList<ConnectionSession*> sessions = m_model.connections("vmware")->sessions();
    QCOMPARE(sessions.size(), 1);
    QVERIFY(!QUuid(sessions.first()->id()).isNull());
    QCOMPARE(sessions.first()->id(), QUuid(sessions.first()->id()).toString());
    QCOMPARE(sessions.first()->property("name"), QVariant("A"));
}

void TestConnectionPersistence::dirtyDesktopIsAppended()
{
    const QString kiosk = "<desktop><kiosk_mode>true</kiosk_mode></desktop>";
    QVERIFY(m_config.setContent(document(kiosk)));
    m_model.loadConfig(&m_config);
    m_model.desktopConfig()->setProperty("kiosk_mode", false);
    m_model.saveConfig(&m_config);
    // Unlike a type section the earlier element stays, and the next load reads it.
    QCOMPARE(compact(m_config), document(kiosk + QString(kiosk).replace("true", "false")));
    m_model.loadConfig(&m_config);
    QCOMPARE(m_model.desktopConfig()->property("kiosk_mode"), QVariant(true));
}

QTEST_MAIN(TestConnectionPersistence)
#include "tst_connectionpersistence.moc"
