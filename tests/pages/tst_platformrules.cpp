#include "devicetree.h"
#include "faketool.h"
#include "pages/zelkonconnectionspage.h"
#include "pages/zelkonmanagementpage.h"
#include "pages/zelkonperipheralpage.h"
#include "pages/zelkonsummarypage.h"
#include "sectionframe.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QTest>

namespace {
using Tool = ZelkonManagementPage::Tool;
using Peripheral = ZelkonPeripheralPage::Peripheral;

class TestManagementPage : public ZelkonManagementPage
{
public:
    TestManagementPage()
    {
        for (Tool tool : { Tool::Corrand, Tool::Pellam, Tool::AutoUpdate, Tool::RemoteAssistance })
            addToolFrame(tool, new SectionFrame(QStringLiteral("tool")));
        updatePlatformOptions();
    }
};

class TestPeripheralPage : public ZelkonPeripheralPage
{
public:
    TestPeripheralPage()
    {
        addPeripheralFrame(Peripheral::Display, new SectionFrame(QStringLiteral("display")));
        addPeripheralFrame(Peripheral::Wireless, new SectionFrame(QStringLiteral("wireless")));
        updatePlatformOptions();
    }
};

class TestConnectionsPage : public ZelkonConnectionsPage
{
public:
    TestConnectionsPage() { frameItem = setFrame(new SectionFrame(QStringLiteral("connections"))); }
    AccordionItem* frameItem;
};

void setPlatform(Platform::Target target, bool standalone)
{
    Platform::instance()->setTarget(target);
    Platform::instance()->setStandalone(standalone);
}

const QString ConnectionsBase = QStringLiteral(
    "<b>Connections</b><br><p>This section enables you to create host connections for a variety of protocols.</p>");
} // namespace

class TestPlatformRules : public QObject
{
    Q_OBJECT

private slots:
    void init() { setPlatform(Platform::Lunvex, false); }

    void managementToolsFollowTheirPackages_data()
    {
        QTest::addColumn<int>("target");
        QTest::newRow("lunvex") << int(Platform::Lunvex);
        QTest::newRow("wes") << int(Platform::Wes);
        QTest::newRow("wes7") << int(Platform::Wes7);
        QTest::newRow("ce") << int(Platform::Ce);
    }

    // Whatever the platform, an installed package offers its tool and a missing one hides it.
    void managementToolsFollowTheirPackages()
    {
        QFETCH(int, target);
        DeviceTree device;
        device.addFile(ZelkonManagementPage::packageList(Tool::Pellam));
        device.addFile(ZelkonManagementPage::packageList(Tool::AutoUpdate));
        setPlatform(Platform::Target(target), false);

        TestManagementPage page;
        QVERIFY(page.item(Tool::Corrand)->isHidden());
        QVERIFY(!page.item(Tool::Pellam)->isHidden());
        QVERIFY(!page.item(Tool::AutoUpdate)->isHidden());
        QVERIFY(page.item(Tool::RemoteAssistance)->isHidden());
    }

    void managementPageRereadsPackagesOnPlatformChange()
    {
        DeviceTree device;
        TestManagementPage page;
        QVERIFY(page.item(Tool::Corrand)->isHidden());
        QCOMPARE(ZelkonManagementPage::packageList(Tool::Corrand),
                 QStringLiteral("/var/lib/dpkg/info/tavlotc-agent-mgr.list"));
        QCOMPARE(ZelkonManagementPage::packageList(Tool::RemoteAssistance),
                 QStringLiteral("/var/lib/dpkg/info/x11vnc.list"));

        device.addFile(QStringLiteral("/var/lib/dpkg/info/tavlotc-agent-mgr.list"));
        device.addFile(QStringLiteral("/var/lib/dpkg/info/x11vnc.list"));
        Platform::instance()->setTarget(Platform::Wes);
        QVERIFY(!page.item(Tool::Corrand)->isHidden());
        QVERIFY(!page.item(Tool::RemoteAssistance)->isHidden());
    }

    void lunvexDeviceAsksTheRegistryForWireless()
    {
        FakeTool tregctl(QStringLiteral("tregctl"), 0);
        TestPeripheralPage page;
        QVERIFY(!page.item(Peripheral::Wireless)->isHidden());
        QVERIFY(!page.item(Peripheral::Display)->isHidden());
        QVERIFY(!tregctl.runs().isEmpty());
        QCOMPARE(tregctl.runs().last().arguments, QStringList({ "get", "root/zelkon-view/wireless" }));

        tregctl.setExitCode(1);
        Platform::instance()->setTarget(Platform::Ce);
        Platform::instance()->setTarget(Platform::Lunvex);
        QVERIFY(page.item(Peripheral::Wireless)->isHidden());
    }

    void wirelessWithoutRegistry_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("standalone");
        QTest::addColumn<bool>("present");
        QTest::newRow("lunvex standalone") << int(Platform::Lunvex) << true << true;
        QTest::newRow("wes") << int(Platform::Wes) << false << true;
        QTest::newRow("wes7") << int(Platform::Wes7) << false << true;
        QTest::newRow("ce") << int(Platform::Ce) << false << false;
        QTest::newRow("ce standalone") << int(Platform::Ce) << true << false;
    }

    void wirelessWithoutRegistry()
    {
        QFETCH(int, target);
        QFETCH(bool, standalone);
        QFETCH(bool, present);
        FakeTool tregctl(QStringLiteral("tregctl"), 1);
        setPlatform(Platform::Target(target), standalone);
        TestPeripheralPage page;
        QCOMPARE(!page.item(Peripheral::Wireless)->isHidden(), present);
        QVERIFY(tregctl.runs().isEmpty());
    }

    void connectionsHelpNamesWhereConnectionsAppear_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("standalone");
        QTest::addColumn<QString>("sentence");
        const QString standaloneSentence = QStringLiteral(
            "<p>The connections created can be launched using the following methods:</p><p>On Lunvex the connections "
            "will be available in the Control Center.</p><p>On WES and CE the connections will be available from the "
            "respective connection management tools.</p>");
        const QString administrator
            = QStringLiteral("<p>The connections will be available from the Connection Administrator.</p>");
        QTest::newRow("standalone") << int(Platform::Wes7) << true << standaloneSentence;
        QTest::newRow("lunvex") << int(Platform::Lunvex) << false
                                << QStringLiteral(
                                       "<p>The connections will be available in the Lunvex's Control Center.</p>");
        QTest::newRow("wes") << int(Platform::Wes) << false << administrator;
        QTest::newRow("ce") << int(Platform::Ce) << false << administrator;
        QTest::newRow("wes7") << int(Platform::Wes7) << false << QString();
    }

    void connectionsHelpNamesWhereConnectionsAppear()
    {
        QFETCH(int, target);
        QFETCH(bool, standalone);
        QFETCH(QString, sentence);
        setPlatform(Platform::Target(target), standalone);
        TestConnectionsPage page;
        // The one frame is open from the start.
        QCOMPARE(page.accordion()->selectedItem(), page.frameItem);
        QCOMPARE(page.helpText(), ConnectionsBase + sentence + QStringLiteral("<br><i>Help of connections</i>"));
        QCOMPARE(page.title(), QStringLiteral("Connections"));
        QVERIFY(page.description().isEmpty());
    }

    void summaryHelpMentionsApplyingOnlyOnADevice()
    {
        ConfigFile config;
        ZelkonSummaryPage page(&config);
        const QString saving
            = QStringLiteral("<p>Clicking 'Save Configuration' will save the configuration in a file.</p>");
        const QString intro = QStringLiteral(
            "<b>Summary</b> <br>This page summarizes any customizations you have made to the configuration.");
        QCOMPARE(page.helpText(),
                 intro
                     + QStringLiteral("<p>Clicking 'Apply this configuration to this Thin Client' will apply the "
                                      "customizations to this Thin Client.</p>")
                     + saving);
        Platform::instance()->setStandalone(true);
        QCOMPARE(page.helpText(), intro + saving);
    }
};

QTEST_MAIN(TestPlatformRules)
#include "tst_platformrules.moc"
