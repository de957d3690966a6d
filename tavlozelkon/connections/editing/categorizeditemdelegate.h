#pragma once

#include "tavlozelkon_lib_export.h"

#include <QStyledItemDelegate>

/*
 * Draws a CategorizedListWidget: a category item as a bold heading followed by a rule,
 * a whole line of the icon view wide; every other item as usual, but as wide as the
 * widest item seen since the last reset, so that the icon grid stays regular.
 */
class TAVLOZELKON_LIB_EXPORT CategorizedItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY(CategorizedItemDelegate)

public:
    explicit CategorizedItemDelegate(QObject* parent = nullptr);
    ~CategorizedItemDelegate() override;

    // The item data role that marks a category item (true). No other data may use it.
    static constexpr int categoryRole() { return 33; }
    void resetMaxItemSize();

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    mutable int m_maxItemWidth = 0;
};
