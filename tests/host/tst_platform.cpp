#include "platform.h"

#include <QSignalSpy>
#include <QTest>

class TestPlatform : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        Platform::instance()->setTarget(Platform::Lunvex);
        Platform::instance()->setStandalone(false);
    }

    void listNamesTheTargetsInEnumOrder()
    {
        QCOMPARE(Platform::list(), QStringList({ "Lunvex", "WES", "WES7", "CE" }));
    }

    void selectionChangedSwitchesTheTargetAndSignalsOnlyRealChanges()
    {
        QSignalSpy changes(Platform::instance(), &Platform::platformChange);
        Platform::instance()->selectionChanged(3);
        QVERIFY(Platform::isCe());
        QVERIFY(!Platform::isLunvex() && !Platform::isWes() && !Platform::isWes7());
        QCOMPARE(changes.count(), 1);

        Platform::instance()->selectionChanged(3);
        QCOMPARE(changes.count(), 1);

        Platform::instance()->selectionChanged(2);
        QVERIFY(Platform::isWes7());
        QVERIFY(!Platform::isWes());
        QCOMPARE(changes.count(), 2);

        Platform::instance()->selectionChanged(4);
        Platform::instance()->selectionChanged(-1);
        QVERIFY(Platform::isWes7());
        QCOMPARE(changes.count(), 2);
    }

    void standaloneModeIsAPlatformChange()
    {
        QSignalSpy changes(Platform::instance(), &Platform::platformChange);
        Platform::instance()->setStandalone(true);
        QVERIFY(Platform::isStandalone());
        QVERIFY(Platform::isLunvex());
        Platform::instance()->setStandalone(true);
        QCOMPARE(changes.count(), 1);
    }
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
