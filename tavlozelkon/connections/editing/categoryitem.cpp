#include "categoryitem.h"

#include "categorizeditemdelegate.h"
#include "categorizedlistwidget.h"

CategoryItem::CategoryItem(const QString& category, CategorizedListWidget* list)
    : QListWidgetItem(category, nullptr, QListWidgetItem::UserType)
{
    setData(CategorizedItemDelegate::categoryRole(), true);
    // A heading is read, not picked.
    setFlags(Qt::ItemIsEnabled);
    // Added only now: the list measures an item as it arrives, and must see a heading.
    if (list)
        list->addItem(this);
}

CategoryItem::~CategoryItem() = default;
