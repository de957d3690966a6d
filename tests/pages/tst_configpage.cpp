#include "config/configfile.h"
#include "pages/zelkonregionalpage.h"
#include "sectionframe.h"

#include "accordion.h"
#include "accordionitem.h"
#include "controlframe.h"

#include <QSignalSpy>
#include <QTest>

namespace {
// A container page holding test frames, added as a page adds its own frames.
class TestPage : public ZelkonRegionalPage
{
public:
    TestPage()
    {
        first = new SectionFrame(QStringLiteral("first"));
        second = new SectionFrame(QStringLiteral("second"));
        firstItem = addFrame(first);
        accordion()->addItem(new AccordionItem(new ControlFrame, nullptr));
        secondItem = addFrame(second);
    }

    SectionFrame* first;
    SectionFrame* second;
    AccordionItem* firstItem;
    AccordionItem* secondItem;
};

const QString BaseHelp
    = QStringLiteral("<b>Regional</b> <br>These options enable you to configure the following features of your Thin "
                     "Clients:<p>1. The Time Zone.</p><p>2. The Keyboard layout.</p><p>3. The Locale.</p>");

void fillDocument(ConfigFile& config)
{
    config.addNode(QStringLiteral("first"));
    config.setValue(QStringLiteral("text"), QStringLiteral("one"));
    config.leaveNode();
    config.addNode(QStringLiteral("second"));
    config.setValue(QStringLiteral("text"), QStringLiteral("two"));
    config.leaveNode();
}
} // namespace

class TestConfigPage : public QObject
{
    Q_OBJECT

private slots:
    void loadingWithoutNotificationReportsNothingAndThenPassesChangesOn()
    {
        ConfigFile config;
        fillDocument(config);
        TestPage page;
        QSignalSpy modified(&page, &WizardPage::modified);

        page.loadConfig(&config, false);
        QCOMPARE(page.first->text(), QStringLiteral("one"));
        QCOMPARE(page.second->text(), QStringLiteral("two"));
        QCOMPARE(modified.count(), 0);
        QVERIFY(!page.first->isDirty());
        QVERIFY(page.first->notifies() && page.second->notifies());

        page.second->setText(QStringLiteral("changed"));
        QCOMPARE(modified.count(), 1);
        QVERIFY(page.second->isDirty());
        QVERIFY(!page.first->isDirty());
    }

    void loadingWithNotificationMarksLoadedSectionsOnly()
    {
        ConfigFile config;
        config.addNode(QStringLiteral("second"));
        config.setValue(QStringLiteral("text"), QStringLiteral("two"));
        config.leaveNode();
        TestPage page;
        QSignalSpy modified(&page, &WizardPage::modified);

        page.loadConfig(&config, true);
        QVERIFY(!page.first->isDirty());
        QVERIFY(page.second->isDirty());
        QCOMPARE(modified.count(), 2); // marking the section, then filling the value
    }

    void everyFrameLoadsFromTheRoot()
    {
        ConfigFile config;
        fillDocument(config);
        TestPage page;
        // The first frame stays in its section after loading; the second must not start there.
        page.loadConfig(&config, true);
        QCOMPARE(page.first->cursorAtLoad, QStringLiteral("zelkon"));
        QCOMPARE(page.second->cursorAtLoad, QStringLiteral("zelkon"));
        QCOMPARE(page.first->loads, 1);
        QCOMPARE(page.second->loads, 1);
    }

    void savingWritesOnlyDirtyFramesAndSkipsOtherItems()
    {
        ConfigFile config;
        TestPage page;
        page.second->setText(QStringLiteral("2nd"));
        page.saveConfig(&config);
        QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
        QVERIFY(!config.findNode(QStringLiteral("first"), 0));
        QCOMPARE(config.value(QStringLiteral("text")), QStringLiteral("2nd"));

        // A second save rewrites the same section in place. Reading moved the cursor into
        // "second"; saving does not reset it, so the caller puts it back on the root.
        config.setCurrentNodeAsRoot();
        page.second->setText(QStringLiteral("again"));
        page.saveConfig(&config);
        config.setCurrentNodeAsRoot();
        QCOMPARE(config.namedNodeCount(QStringLiteral("second")), 1);
        QCOMPARE(config.value(QStringLiteral("text")), QStringLiteral("again"));
    }

    void helpTextFollowsTheOpenItem()
    {
        TestPage page;
        QSignalSpy help(&page, &ConfigPage::helpChanged);
        QCOMPARE(page.helpText(), BaseHelp);

        page.accordion()->selectItem(page.secondItem);
        QCOMPARE(page.helpText(), BaseHelp + QStringLiteral("<br><i>Help of second</i>"));
        QCOMPARE(help.count(), 1);
        QCOMPARE(help.at(0).at(0).toString(), page.helpText());

        page.accordion()->selectItem(nullptr);
        QCOMPARE(help.count(), 2);
        QCOMPARE(help.at(1).at(0).toString(), BaseHelp);
    }
};

QTEST_MAIN(TestConfigPage)
#include "tst_configpage.moc"
