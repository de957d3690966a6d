#pragma once

#include "tavlohost_export.h"

#include <QList>
#include <QWidget>

class AccordionItem;
class QVBoxLayout;

/*
 * A vertical stack of AccordionItems of which at most one is open. Opening an item
 * closes the open one; clicking the open item's header closes it.
 */
class TAVLOHOST_EXPORT Accordion : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(Accordion)

public:
    explicit Accordion(QWidget* parent = nullptr);
    ~Accordion() override;

    void addItem(AccordionItem* item);
    QList<AccordionItem*> items() const { return m_items; }
    AccordionItem* selectedItem() const { return m_selected; }

public slots:
    // Opens item (closing any other), or closes everything when item is null.
    void selectItem(AccordionItem* item);

signals:
    void selectionChanged(AccordionItem* item);
    void helpChanged();

private:
    void onItemToggled(AccordionItem* item, bool open);

    QVBoxLayout* m_layout;
    QList<AccordionItem*> m_items;
    AccordionItem* m_selected = nullptr;
};
