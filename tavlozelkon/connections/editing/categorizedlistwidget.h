#pragma once

#include "tavlozelkon_lib_export.h"

#include <QListWidget>

/*
 * An icon view whose items are grouped under category headings (CategoryItem), drawn by
 * a CategorizedItemDelegate: items flow left to right, are laid out again when the view
 * is resized, and cannot be dragged.
 */
class TAVLOZELKON_LIB_EXPORT CategorizedListWidget : public QListWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(CategorizedListWidget)

public:
    explicit CategorizedListWidget(QWidget* parent = nullptr);
    ~CategorizedListWidget() override;

    // The delegate's category role, or -1 when the delegate is not a CategorizedItemDelegate.
    int categoryRole() const;
    // Empties the list and lets the delegate measure the item widths anew.
    void removeAllItems();

protected:
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
};
