#include "pages/zelkontitlepage.h"

#include "platform.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

class TestTitlePage : public QObject
{
    Q_OBJECT

private slots:
    void showsTitleAndDescription()
    {
        ZelkonTitlePage page;
        QCOMPARE(page.findChild<QLabel*>(QStringLiteral("Title"))->text(), QStringLiteral("Zelkon"));
        QCOMPARE(page.findChild<QLabel*>(QStringLiteral("Body"))->text(),
                 QStringLiteral("Zelkon<br>This enables you to configure your Thin Clients and the software "
                                "installed on them."));
        QVERIFY(page.helpText().startsWith(QStringLiteral("<b>Zelkon</b><br>This enables you to: <p>1. Configure")));
        QVERIFY(!page.platformCombo());
    }

    void platformChooserDrivesThePlatform()
    {
        Platform::instance()->setTarget(Platform::Wes);
        QSignalSpy changes(Platform::instance(), &Platform::platformChange);
        ZelkonTitlePage page;
        page.setupPlatforms();

        QComboBox* combo = page.platformCombo();
        QCOMPARE(combo->count(), 4);
        QCOMPARE(combo->itemText(3), QStringLiteral("CE"));
        QCOMPARE(combo->currentIndex(), 0);
        // Selecting index 0 happened before the connection: the platform did not hear of it.
        QVERIFY(Platform::isWes());
        QCOMPARE(changes.count(), 0);

        combo->setCurrentIndex(3);
        QVERIFY(Platform::isCe());
        QCOMPARE(changes.count(), 1);
    }
};

QTEST_MAIN(TestTitlePage)
#include "tst_titlepage.moc"
