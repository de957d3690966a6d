#include "accordion.h"

#include "accordionitem.h"

#include <QVBoxLayout>

Accordion::Accordion(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
    qRegisterMetaType<AccordionItem*>();
}

Accordion::~Accordion()
{
    // The items die with this widget; their destroyed() must not reach a half-destroyed list.
    for (AccordionItem* item : qAsConst(m_items))
        disconnect(item, nullptr, this, nullptr);
}

void Accordion::addItem(AccordionItem* item)
{
    if (!item || m_items.contains(item))
        return;
    m_items.append(item);
    m_layout->addWidget(item);
    connect(item, &AccordionItem::toggled, this, &Accordion::onItemToggled);
    connect(item, &QObject::destroyed, this, [this, item] {
        m_items.removeAll(item);
        if (m_selected == item)
            m_selected = nullptr;
    });
}

void Accordion::selectItem(AccordionItem* item)
{
    if (item && !m_items.contains(item))
        return;
    for (AccordionItem* each : qAsConst(m_items))
        each->setOpen(each == item);
    if (item == m_selected)
        return;
    m_selected = item;
    emit selectionChanged(item);
    emit helpChanged();
}

void Accordion::onItemToggled(AccordionItem* item, bool open)
{
    selectItem(open ? item : nullptr);
}
