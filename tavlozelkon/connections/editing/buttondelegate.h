#pragma once

#include "tavlozelkon_lib_export.h"

#include <QItemDelegate>

class QAction;
class QTableWidget;

/*
 * Puts a small tool button into a table cell (as a persistent editor) that edits or
 * deletes the record whose id the cell holds. The connection list and the printer list
 * both use it; the signals carry the id, whatever kind of record it names.
 */
class TAVLOZELKON_LIB_EXPORT ButtonDelegate : public QItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY(ButtonDelegate)

public:
    enum ButtonRole_t { EditButton = 1, DeleteButton = 2 };
    Q_ENUM(ButtonRole_t)

    explicit ButtonDelegate(ButtonRole_t role, QObject* parent = nullptr);
    ~ButtonDelegate() override;

    ButtonRole_t role() const { return m_role; }

    // Opens the buttons of every row in the columns. Call it once the table is filled and
    // sorted: each row inserted or moved later moves every open button below it, which
    // makes a long list take minutes.
    static void openButtons(QTableWidget* table, std::initializer_list<int> columns);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // The cell holds the id for the button; only the button is shown, never the id.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // The column takes the size of the button, not of the id text behind it.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // The view makes the delegate watch its buttons; a language change re-words their tips.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void editConnection(QString id);
    void deleteConnection(QString id);

public slots:
    void editConnection(QAction* action);
    void deleteConnection(QAction* action);

private:
    QString toolTip() const;

    ButtonRole_t m_role;
};
