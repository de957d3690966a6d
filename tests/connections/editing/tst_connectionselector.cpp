#include "connections/editing/categorizeditemdelegate.h"
#include "connections/editing/categorizedlistwidget.h"
#include "connections/editing/categoryitem.h"
#include "connections/editing/connectionselectorpage.h"
#include "connections/model/connectionmodel.h"
#include "devicetree.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

// The type selector and the categorised icon view it is made of.
class TestConnectionSelector : public QObject
{
    Q_OBJECT

private slots:
    void offersTheAvailableTypesUnderTheirHeadings()
    {
        DeviceTree device;
        for (const char* launcher : { "rdesktop-runner", "iceweasel-runner", "view-runner", "pnagent-runner" })
            device.addFile(QLatin1String("/usr/bin/") + QLatin1String(launcher));
        ConnectionModel model;
        ConnectionSelectorPage page(model);
        CategorizedListWidget* list = page.connectionList();
        QCOMPARE(list->viewMode(), QListView::IconMode);
        QCOMPARE(list->categoryRole(), 33);

        QStringList shown;
        for (int row = 0; row < list->count(); ++row) {
            QListWidgetItem* item = list->item(row);
            const bool heading = dynamic_cast<CategoryItem*>(item);
            // Role 33 marks the headings and nothing else.
            QCOMPARE(item->data(33).isValid(), heading);
            QCOMPARE(item->data(33).toBool(), heading);
            shown << (heading ? QString('#' + item->text())
                              : QString(item->text() + '=' + item->data(Qt::UserRole).toString()));
            if (!heading) {
                QVERIFY(!item->icon().pixmap(32).isNull());
            }
        }
        QCOMPARE(shown,
                 QStringList({ "#Classics", "RDP=rdp", "Web Browser=browser", "#VDI connection brokers",
                               "VMware View=vmware", "XenApp=xenapp" }));

        // A double-click on a type asks for its editor, on a heading for nothing.
        QSignalSpy opened(&page, qOverload<QString>(&ConnectionSelectorPage::openEditor));
        QSignalSpy canceled(&page, &ConnectionSelectorPage::cancel);
        emit list->itemDoubleClicked(list->item(0));
        emit list->itemDoubleClicked(list->item(3));
        page.openEditor(nullptr);
        QCOMPARE(opened.count(), 0);
        emit list->itemDoubleClicked(list->item(4));
        QCOMPARE(opened.count(), 1);
        QCOMPARE(opened.first().first().toString(), QStringLiteral("vmware"));
        QCOMPARE(page.cancelButton()->text(), QStringLiteral("Cancel"));
        page.cancelButton()->click();
        QCOMPARE(canceled.count(), 1);
        QVERIFY(page.sizeHint().height() >= 310);
    }

    void headingsSpanTheViewAndTypesShareOneWidth()
    {
        CategorizedListWidget list;
        list.resize(400, 300);
        auto* delegate = qobject_cast<CategorizedItemDelegate*>(list.itemDelegate());
        QVERIFY(delegate);
        new CategoryItem(QStringLiteral("First"), &list);
        new QListWidgetItem(QStringLiteral("A much longer type name"), &list);
        new CategoryItem(QStringLiteral("Second"), &list);
        new QListWidgetItem(QStringLiteral("B"), &list);

        QStyleOptionViewItem option;
        option.initFrom(&list);
        const int lineHeight = option.fontMetrics.height();
        const QModelIndex first = list.model()->index(0, 0), second = list.model()->index(2, 0);
        QCOMPARE(delegate->sizeHint(option, first), QSize(list.viewport()->width(), lineHeight + 25));
        // Headings after the first keep a distance from the row above.
        QCOMPARE(delegate->sizeHint(option, second), QSize(list.viewport()->width(), lineHeight + 35));
        // Every type as wide as the widest seen, measured as the items arrived.
        const int wide = delegate->sizeHint(option, list.model()->index(1, 0)).width();
        QCOMPARE(delegate->sizeHint(option, list.model()->index(3, 0)).width(), wide);

        // A rebuild measures afresh.
        list.removeAllItems();
        QCOMPARE(list.count(), 0);
        new QListWidgetItem(QStringLiteral("B"), &list);
        QVERIFY(delegate->sizeHint(option, list.model()->index(0, 0)).width() < wide);

        // Without a categorising delegate there is no category role.
        list.setItemDelegate(new QStyledItemDelegate(&list));
        QCOMPARE(list.categoryRole(), -1);
    }

    void headingIsBoldTextAndARule()
    {
        CategorizedListWidget list;
        list.resize(400, 200);
        list.setStyleSheet(QStringLiteral("QListWidget { background: white; color: black; }"));
        new CategoryItem(QStringLiteral("Classics"), &list);
        new QListWidgetItem(QStringLiteral("RDP"), &list);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        const QRect heading = list.visualItemRect(list.item(0));
        QCOMPARE(heading.top(), 0);
        const QImage image = list.viewport()->grab().toImage();
        // The rule runs through the middle of the heading up to 7 pixels from its right end.
        const int y = heading.top() + (heading.bottom() + 1 - heading.top()) / 2;
        QVERIFY(QColor(image.pixel(heading.right() - 8, y)).lightness() < 128);
        QVERIFY(QColor(image.pixel(heading.right() - 3, y)).lightness() > 128);
    }
};

QTEST_MAIN(TestConnectionSelector)
#include "tst_connectionselector.moc"
