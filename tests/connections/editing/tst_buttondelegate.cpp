#include "connections/editing/buttondelegate.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QToolButton>
#include <QtTest>

// The row buttons of the connection and printer lists.
class ButtonDelegateTest : public QObject
{
    Q_OBJECT

private slots:
    void buttonsCarryTheRowsId_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("editSignal");
        QTest::newRow("edit") << int(ButtonDelegate::EditButton) << "Edit the connection"
                              << "edit";
        QTest::newRow("delete") << int(ButtonDelegate::DeleteButton) << "Delete the connection"
                                << "delete";
    }

    void buttonsCarryTheRowsId()
    {
        QFETCH(int, role);
        QFETCH(QString, toolTip);
        QFETCH(QString, editSignal);

        QStandardItemModel model(2, 1);
        model.setItem(0, 0, new QStandardItem(QStringLiteral("{first}")));
        model.setItem(1, 0, new QStandardItem(QStringLiteral("{second}")));
        QTableView view;
        ButtonDelegate delegate { static_cast<ButtonDelegate::ButtonRole_t>(role) };
        view.setItemDelegateForColumn(0, &delegate);
        view.setModel(&model);
        for (int row = 0; row < 2; ++row)
            view.openPersistentEditor(model.index(row, 0));
        QSignalSpy edits(&delegate, qOverload<QString>(&ButtonDelegate::editConnection));
        QSignalSpy deletes(&delegate, qOverload<QString>(&ButtonDelegate::deleteConnection));

        auto* button = qobject_cast<QToolButton*>(view.indexWidget(model.index(1, 0)));
        QVERIFY(button);
        QCOMPARE(button->objectName(), QStringLiteral("ListButton"));
        QCOMPARE(button->toolTip(), toolTip);
        QVERIFY(!button->icon().isNull());
        QVERIFY(!button->icon().pixmap(16).isNull());
        QCOMPARE(delegate.sizeHint(QStyleOptionViewItem(), model.index(1, 0)), QSize(0, 0));

        button->click();
        QSignalSpy& fired = editSignal == QLatin1String("edit") ? edits : deletes;
        QSignalSpy& silent = editSignal == QLatin1String("edit") ? deletes : edits;
        QCOMPARE(fired.count(), 1);
        QCOMPARE(fired.first().first().toString(), QStringLiteral("{second}"));
        QCOMPARE(silent.count(), 0);
    }

    // Only the button shows; the id behind it is never drawn.
    void cellsDrawNoText()
    {
        QStandardItemModel model(1, 1);
        model.setItem(0, 0, new QStandardItem(QStringLiteral("WWWWWWWWWWWW")));
        ButtonDelegate delegate(ButtonDelegate::EditButton);
        QImage image(200, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.state = QStyle::State_Enabled;
        option.palette.setColor(QPalette::Text, Qt::black);
        {
            QPainter painter(&image);
            delegate.paint(&painter, option, model.index(0, 0));
        }
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                QCOMPARE(image.pixel(x, y), QColor(Qt::white).rgb());
        }
    }
};

QTEST_MAIN(ButtonDelegateTest)
#include "tst_buttondelegate.moc"
