#include "devicetree.h"
#include "markingtranslator.h"
#include "showntexts.h"

#include "config/configfile.h"
#include "pages/zelkonconnectionspage.h"
#include "pages/zelkonmanagementpage.h"
#include "pages/zelkonperipheralpage.h"
#include "pages/zelkonregionalpage.h"
#include "pages/zelkonsummarypage.h"
#include "pages/zelkontitlepage.h"

#include "platform.h"

#include <QComboBox>
#include <QtTest>
#include <functional>
#include <memory>

using PageFactory = std::function<WizardPage*(ConfigFile*)>;
Q_DECLARE_METATYPE(PageFactory)

/*
 * The library's pages as a host places them, without the application: a language
 * installed while they are shown re-words every text of every frame, the pages' own
 * titles and help, and leaves each choice where it was.
 */
class TestPageLanguage : public QObject
{
    Q_OBJECT

private slots:
    void everyTextFollowsTheLanguage_data();
    void everyTextFollowsTheLanguage();
};

void TestPageLanguage::everyTextFollowsTheLanguage_data()
{
    QTest::addColumn<PageFactory>("create");
    QTest::addColumn<int>("target");
    const QList<QPair<const char*, PageFactory>> pages {
        { "title", [](ConfigFile*) -> WizardPage* { return new ZelkonTitlePage; } },
        { "regional", [](ConfigFile*) -> WizardPage* { return new ZelkonRegionalPage; } },
        { "management", [](ConfigFile*) -> WizardPage* { return new ZelkonManagementPage; } },
        { "peripherals", [](ConfigFile*) -> WizardPage* { return new ZelkonPeripheralPage; } },
        { "connections", [](ConfigFile*) -> WizardPage* { return new ZelkonConnectionsPage; } },
        { "summary", [](ConfigFile* config) -> WizardPage* { return new ZelkonSummaryPage(config); } },
    };
    for (const auto& page : pages) {
        for (int target : { Platform::Lunvex, Platform::Wes, Platform::Ce }) {
            QTest::newRow(qPrintable(QLatin1String(page.first) + QLatin1Char(' ') + Platform::list().at(target)))
                << page.second << target;
        }
    }
}

void TestPageLanguage::everyTextFollowsTheLanguage()
{
    QFETCH(PageFactory, create);
    QFETCH(int, target);
    DeviceTree device;
    device.addConnectionLaunchers();
    Platform::instance()->setTarget(Platform::Target(target));
    ConfigFile config;
    const std::unique_ptr<WizardPage> page(create(&config));
    page->setupToShow();
    const ShownTexts::Texts english = ShownTexts::collect(page.get());
    QVERIFY(!english.isEmpty());
    QList<int> selected;
    for (const QComboBox* combo : page->findChildren<QComboBox*>())
        selected.append(combo->currentIndex());

    MarkingTranslator marking;
    QCoreApplication::installTranslator(&marking);
    ShownTexts::deliverLanguageChange();
    const QStringList untranslated = ShownTexts::unmarked(english, page.get());
    const QString title = page->title();
    const QString help = page->helpText();
    QList<int> selectedNow;
    for (const QComboBox* combo : page->findChildren<QComboBox*>())
        selectedNow.append(combo->currentIndex());
    QCoreApplication::removeTranslator(&marking);
    ShownTexts::deliverLanguageChange();

    QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join(QLatin1Char('\n'))));
    QVERIFY2(MarkingTranslator::isMarked(title), qPrintable(title));
    QVERIFY2(MarkingTranslator::isMarked(help), qPrintable(help));
    QCOMPARE(selectedNow, selected);
    QVERIFY(!MarkingTranslator::isMarked(page->title()));
}

QTEST_MAIN(TestPageLanguage)
#include "tst_pagelanguage.moc"
