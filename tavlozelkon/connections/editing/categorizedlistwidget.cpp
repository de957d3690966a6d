#include "categorizedlistwidget.h"

#include "categorizeditemdelegate.h"

CategorizedListWidget::CategorizedListWidget(QWidget* parent)
    : QListWidget(parent)
{
    setViewMode(QListView::IconMode);
    setFlow(QListView::LeftToRight);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setItemDelegate(new CategorizedItemDelegate(this));
}

CategorizedListWidget::~CategorizedListWidget() = default;

int CategorizedListWidget::categoryRole() const
{
    return qobject_cast<CategorizedItemDelegate*>(itemDelegate()) ? CategorizedItemDelegate::categoryRole() : -1;
}

void CategorizedListWidget::removeAllItems()
{
    while (count() > 0)
        delete takeItem(0);
    if (auto* delegate = qobject_cast<CategorizedItemDelegate*>(itemDelegate()))
        delegate->resetMaxItemSize();
}

void CategorizedListWidget::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QListWidget::rowsInserted(parent, start, end);
    // Only for its effect: the delegate measures the new item and widens its maximum.
    sizeHintForRow(start);
}
