#include "devicetree.h"
#include "mainwindow.h"
#include "pages/configpage.h"
#include "platform.h"

#include <QListWidget>
#include <QSignalSpy>
#include <QtTest>

// The window shows up before its container pages are made, and nobody asking for them
// can tell.
class DeferredPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_device = std::make_unique<DeviceTree>();
        Platform::instance()->setTarget(Platform::Lunvex);
        Platform::instance()->setStandalone(true);
    }

    void cleanup() { m_device.reset(); }

    void builtAfterTheFirstPaint()
    {
        MainWindow window;
        QSignalSpy built(&window, &MainWindow::containerPagesBuilt);
        QVERIFY(window.findChildren<ConfigPage*>().isEmpty());
        QCOMPARE(window.pageList()->count(), int(MainWindow::PageCount));
        QVERIFY(window.pageList()->item(MainWindow::TitlePage)->text().startsWith(QLatin1String("1.  ")));
        QVERIFY(window.pageList()->item(MainWindow::SummaryPage)->text().startsWith(QLatin1String("6.  ")));
        // The list is complete from the first paint on: it neither fills in nor changes
        // its width when the pages arrive.
        QStringList shownFirst;
        for (int index = 0; index < MainWindow::PageCount; ++index)
            shownFirst.append(window.pageList()->item(index)->text());
        const int firstWidth = window.pageList()->width();

        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(window.findChildren<ConfigPage*>().size(), 4);
        for (int index = MainWindow::RegionalPage; index < MainWindow::SummaryPage; ++index) {
            QCOMPARE(window.pageList()->item(index)->text(),
                     QStringLiteral("%1.  %2").arg(index + 1).arg(window.page(index)->title()));
            QCOMPARE(window.pageList()->item(index)->text(), shownFirst.at(index));
        }
        QCOMPARE(window.pageList()->width(), firstWidth);
        QCOMPARE(window.containerPages().size(), 4);
        // The first pages are not news; only pages built anew are.
        QCOMPARE(built.count(), 0);
    }

    void builtWhenAskedFor_data()
    {
        QTest::addColumn<QString>("asking");
        QTest::newRow("page") << QStringLiteral("page");
        QTest::newRow("container pages") << QStringLiteral("containerPages");
        QTest::newRow("show a page") << QStringLiteral("showPage");
    }

    void builtWhenAskedFor()
    {
        QFETCH(QString, asking);
        MainWindow window;
        QSignalSpy built(&window, &MainWindow::containerPagesBuilt);
        if (asking == QLatin1String("page")) {
            QVERIFY(qobject_cast<ConfigPage*>(window.page(MainWindow::ConnectionsPage)));
        } else if (asking == QLatin1String("containerPages")) {
            QCOMPARE(window.containerPages().size(), 4);
        } else {
            window.showPage(MainWindow::PeripheralPage);
            QCOMPARE(window.currentPage(), int(MainWindow::PeripheralPage));
        }
        const QList<ConfigPage*> pages = window.findChildren<ConfigPage*>();
        QCOMPARE(pages.size(), 4);
        QCOMPARE(window.containerPages().size(), 4);
        QCOMPARE(built.count(), 0);
        // Asking again builds nothing more.
        QCOMPARE(window.findChildren<ConfigPage*>(), pages);
    }

private:
    std::unique_ptr<DeviceTree> m_device;
};

QTEST_MAIN(DeferredPagesTest)
#include "tst_deferredpages.moc"
