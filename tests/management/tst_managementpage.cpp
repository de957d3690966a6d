#include "config/configfile.h"
#include "devicetree.h"
#include "management/altirisframe.h"
#include "management/autoupdateframe.h"
#include "management/corrandframe.h"
#include "management/pellamframe.h"
#include "management/remoteassistanceframe.h"
#include "pages/configpage.h"
#include "pages/zelkonmanagementpage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "hostaddressedit.h"
#include "platform.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

namespace {
using Tool = ZelkonManagementPage::Tool;
const QList<Tool> Tools = { Tool::Corrand, Tool::Pellam, Tool::AutoUpdate, Tool::RemoteAssistance };

const QString Document = QStringLiteral(
    "<zelkon version=\"1.0\"><corrand><enable>false</enable></corrand>"
    "<altiris><enable>false</enable><server_address>old.example.com</server_address></altiris>"
    "<remote_assistance><enable>true</enable><password>pw</password></remote_assistance>"
    "<auto_update><enable>true</enable><server_address>ftp://u</server_address><path>/ce</path></auto_update>"
    "</zelkon>");

void load(ConfigFile& config, const QString& xml)
{
    QVERIFY(config.setContent(xml));
    config.setCurrentNodeAsRoot();
}

template <typename Frame> Frame* frameOf(const ZelkonManagementPage& page, Tool tool)
{
    return qobject_cast<Frame*>(page.item(tool)->content());
}

// A host of its own that offers the Altiris agent, which no page of the wizard places.
class AltirisPage : public ConfigPage
{
public:
    AltirisPage()
    {
        setupAccordion([this] { addFrame(frame = new AltirisFrame(this)); });
    }
    QString title() const override { return QStringLiteral("Altiris"); }
    QString description() const override { return QString(); }
    void retranslateUi() override { }
    AltirisFrame* frame = nullptr;

protected:
    QString baseHelpText() const override { return QStringLiteral("<b>Altiris</b>"); }
};
} // namespace

class TestManagementPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        Platform::instance()->setTarget(Platform::Lunvex);
        Platform::instance()->setStandalone(false);
    }

    void framesInOrderWithoutAltiris()
    {
        ZelkonManagementPage page;
        const QList<AccordionItem*> items = page.accordion()->items();
        QCOMPARE(items.size(), 4);
        for (int i = 0; i < Tools.size(); ++i)
            QCOMPARE(items.at(i), page.item(Tools.at(i)));
        QVERIFY(frameOf<CorrandFrame>(page, Tool::Corrand));
        QVERIFY(frameOf<PellamFrame>(page, Tool::Pellam));
        QVERIFY(frameOf<AutoUpdateFrame>(page, Tool::AutoUpdate));
        QVERIFY(frameOf<RemoteAssistanceFrame>(page, Tool::RemoteAssistance));
        QVERIFY(!page.findChild<AltirisFrame*>());
    }

    void packagesDecideWhatIsOffered_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("standalone");
        // Which package lists the machine has, in the order of Tools; the same items are shown.
        QTest::addColumn<QList<bool>>("installed");
        const QList<bool> none = { false, false, false, false };
        const QList<bool> all = { true, true, true, true };
        QTest::newRow("lunvex, none") << int(Platform::Lunvex) << false << none;
        QTest::newRow("ce standalone, none") << int(Platform::Ce) << true << none;
        // The platform would hide Pellam on Lunvex and WES and the updates on WES7.
        QTest::newRow("lunvex, all") << int(Platform::Lunvex) << false << all;
        QTest::newRow("wes7, all") << int(Platform::Wes7) << false << all;
        QTest::newRow("wes, some") << int(Platform::Wes) << false << QList<bool>({ false, true, true, false });
    }

    void packagesDecideWhatIsOffered()
    {
        QFETCH(int, target);
        QFETCH(bool, standalone);
        QFETCH(QList<bool>, installed);
        DeviceTree device;
        for (int i = 0; i < Tools.size(); ++i) {
            if (installed.at(i))
                device.addFile(ZelkonManagementPage::packageList(Tools.at(i)), "/usr/bin/agent\n");
        }
        Platform::instance()->setStandalone(standalone);
        Platform::instance()->setTarget(Platform::Target(target));

        ZelkonManagementPage page;
        for (int i = 0; i < Tools.size(); ++i)
            QCOMPARE(!page.item(Tools.at(i))->isHidden(), installed.at(i));
    }

    void loadsEveryFrameAndWritesBackWhatWasThere()
    {
        Platform::instance()->setTarget(Platform::Ce);
        ConfigFile config;
        load(config, Document);
        ZelkonManagementPage page;
        QSignalSpy modified(&page, &WizardPage::modified);
        page.loadConfig(&config, false);
        QVERIFY(modified.isEmpty());

        // Each frame found its section although the one before left the cursor in its own.
        QVERIFY(!frameOf<CorrandFrame>(page, Tool::Corrand)->enableCheck()->isChecked());
        QVERIFY(frameOf<PellamFrame>(page, Tool::Pellam)->enableCheck()->isChecked());
        QCOMPARE(frameOf<AutoUpdateFrame>(page, Tool::AutoUpdate)->pathEdit()->text(), QStringLiteral("/ce"));
        auto* remote = frameOf<RemoteAssistanceFrame>(page, Tool::RemoteAssistance);
        QCOMPARE(remote->passwordEdit()->text(), QStringLiteral("pw"));

        // Edits reach the host as modified(); only the edited frame is dirty after a quiet load.
        remote->passwordEdit()->setText(QStringLiteral("new"));
        QCOMPARE(modified.count(), 1);
        QVERIFY(!frameOf<CorrandFrame>(page, Tool::Corrand)->isDirty());

        ConfigFile fresh;
        load(fresh, Document);
        page.saveConfig(&fresh);
        QCOMPARE(fresh.currentNodePath(), QStringLiteral("zelkon"));
        QVERIFY(fresh.findNode(QStringLiteral("remote_assistance"), 0));
        QCOMPARE(fresh.value(QStringLiteral("password")), QStringLiteral("new"));
        fresh.setCurrentNodeAsRoot();
        QVERIFY(!fresh.findNode(QStringLiteral("pellam"), 0));
    }

    // A host that places the Altiris frame on a page of its own gets its section round-tripped.
    void hostPageRoundTripsAltiris()
    {
        ConfigFile config;
        load(config, Document);
        AltirisPage page;
        QCOMPARE(page.accordion()->items().size(), 1);
        QCOMPARE(page.accordion()->items().constFirst()->content(), page.frame);
        page.loadConfig(&config, true);
        QVERIFY(!page.frame->enableCheck()->isChecked());
        QCOMPARE(page.frame->serverAddressEdit()->text(), QStringLiteral("old.example.com"));

        QSignalSpy modified(&page, &WizardPage::modified);
        page.frame->enableCheck()->setChecked(true);
        page.frame->serverAddressEdit()->setText(QStringLiteral("ns.example.com"));
        QCOMPARE(modified.count(), 2);
        config.setCurrentNodeAsRoot();
        page.saveConfig(&config);

        // Read back by a fresh page from the saved text, the other sections untouched.
        ConfigFile reread;
        load(reread, config.toString());
        QVERIFY(reread.toString().contains(QStringLiteral("<corrand>")));
        AltirisPage second;
        second.loadConfig(&reread, false);
        QVERIFY(second.frame->enableCheck()->isChecked());
        QCOMPARE(second.frame->serverAddressEdit()->text(), QStringLiteral("ns.example.com"));
        QCOMPARE(reread.documentElement().elementsByTagName(QStringLiteral("altiris")).size(), 1);
    }
};

QTEST_MAIN(TestManagementPage)
#include "tst_managementpage.moc"
