#pragma once

#include "tavlohost_export.h"

#include <QWidget>

class ControlFrame;
class QToolButton;

/*
 * One fold of an Accordion: a clickable header showing the frame's icon and title, and
 * the frame itself below it, visible only while the item is open.
 */
class TAVLOHOST_EXPORT AccordionItem : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(AccordionItem)

public:
    AccordionItem(ControlFrame* content, QWidget* parent = nullptr);
    ~AccordionItem() override;

    ControlFrame* content() const { return m_content; }
    QString helpText() const;

    bool isOpen() const;
    void setOpen(bool open);

    // Refreshes the header from the frame's title and icon (after a language change).
    void updateHeader();

signals:
    // The user asked to open (or close) this item.
    void toggled(AccordionItem* item, bool open);

protected:
    void changeEvent(QEvent* event) override;

private:
    ControlFrame* m_content;
    QToolButton* m_header;
};
