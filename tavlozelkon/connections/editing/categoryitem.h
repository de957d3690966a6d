#pragma once

#include "tavlozelkon_lib_export.h"

#include <QListWidgetItem>

class CategorizedListWidget;

// A heading of a CategorizedListWidget: the category's name, marked under the category role.
class TAVLOZELKON_LIB_EXPORT CategoryItem : public QListWidgetItem
{
public:
    CategoryItem(const QString& category, CategorizedListWidget* list);
    ~CategoryItem() override;
};
