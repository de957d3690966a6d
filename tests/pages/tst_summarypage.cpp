#include "config/configfile.h"
#include "modalanswer.h"
#include "pages/zelkonsummarypage.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>

namespace {
const QByteArray Schema = "<?xml version=\"1.0\"?>"
                          "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                          " <xs:element name=\"zelkon\"><xs:complexType>"
                          "  <xs:sequence><xs:any processContents=\"skip\" minOccurs=\"0\" maxOccurs=\"unbounded\"/>"
                          "  </xs:sequence><xs:anyAttribute processContents=\"skip\"/>"
                          " </xs:complexType></xs:element>"
                          "</xs:schema>";
}

class TestSummaryPage : public QObject
{
    Q_OBJECT

private slots:
    void showsItsTexts()
    {
        ConfigFile config;
        ZelkonSummaryPage page(&config);
        QCOMPARE(page.findChild<QLabel*>(QStringLiteral("Title"))->text(), QStringLiteral("Zelkon Summary"));
        QCOMPARE(page.applyButton()->text(), QStringLiteral("Apply this configuration to this Thin Client."));
        QCOMPARE(page.saveButton()->text(), QStringLiteral("Save Configuration"));
        QCOMPARE(page.title(), QStringLiteral("Summary"));
        QCOMPARE(page.description(), QStringLiteral("Summary"));
    }

    void emptySummaryLeavesTheButtonsDisabled()
    {
        ConfigFile config;
        config.addNode(QStringLiteral("sound")); // empty sections are left out of the summary
        config.setCurrentNodeAsRoot();
        ZelkonSummaryPage page(&config);
        page.setupToShow();
        QVERIFY(!page.applyButton()->isEnabled());
        QVERIFY(!page.saveButton()->isEnabled());
    }

    void everyShowingRegeneratesTheDocumentAndTheSummary()
    {
        ConfigFile config;
        ZelkonSummaryPage page(&config);
        int generation = 0;
        // The host answers generateConfig() by saving every page into the document.
        connect(&page, &ZelkonSummaryPage::generateConfig, this, [&] {
            ++generation;
            config.setCurrentNodeAsRoot();
            if (!config.findNode(QStringLiteral("sound"), 0))
                config.addNode(QStringLiteral("sound"));
            config.setIntValue(QStringLiteral("volume"), generation);
            config.setCurrentNodeAsRoot();
        });

        page.setupToShow();
        QVERIFY(page.summaryView()->toPlainText().contains(QStringLiteral("Volume")));
        QVERIFY(page.summaryView()->toPlainText().contains(QStringLiteral("1")));
        QVERIFY(page.applyButton()->isEnabled());
        QVERIFY(page.saveButton()->isEnabled());

        page.setupToShow();
        QCOMPARE(generation, 2);
        QVERIFY(page.summaryView()->toPlainText().contains(QStringLiteral("2")));

        QSignalSpy apply(&page, &ZelkonSummaryPage::applyConfig);
        QSignalSpy save(&page, &ZelkonSummaryPage::saveConfig);
        page.applyButton()->click();
        page.saveButton()->click();
        QCOMPARE(apply.count(), 1);
        QCOMPARE(save.count(), 1);
    }

    void validatingShowsTheResultAndReenablesTheButtons()
    {
        ConfigFile config;
        ZelkonSummaryPage page(&config);
        // Without a schema nothing is shown.
        page.validateConfig();
        QVERIFY(page.applyButton()->isEnabled());

        QVERIFY(config.setSchema(Schema));
        ModalAnswer answer;
        answer.arm();
        page.validateConfig();
        QVERIFY(answer.answered());
        QCOMPARE(answer.title(), QStringLiteral("Validation"));
        QCOMPARE(answer.text(), QStringLiteral("The configuration file is valid."));
        QVERIFY(config.isValid());
        QVERIFY(page.applyButton()->isEnabled());
        QVERIFY(page.saveButton()->isEnabled());
    }
};

QTEST_MAIN(TestSummaryPage)
#include "tst_summarypage.moc"
