#include "accordionitem.h"

#include "controlframe.h"

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

AccordionItem::AccordionItem(ControlFrame* content, QWidget* parent)
    : QWidget(parent)
    , m_content(content)
    , m_header(new QToolButton(this))
{
    m_header->setObjectName(QStringLiteral("AccordionHeader"));
    m_header->setCheckable(true);
    m_header->setAutoRaise(false);
    m_header->setStyleSheet(QStringLiteral(
        "QToolButton#AccordionHeader { text-align: left; padding: 6px 8px; border: 1px solid palette(mid);"
        " border-radius: 4px; background: palette(button); }"
        "QToolButton#AccordionHeader:hover { background: palette(light); }"
        "QToolButton#AccordionHeader:checked { background: palette(highlight); color: palette(highlighted-text); }"
        "QToolButton#AccordionHeader:focus { border: 1px solid palette(highlight); }"));
    m_header->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_header->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_header->setIconSize(QSize(24, 24));
    m_header->setArrowType(Qt::NoArrow);
    QFont font = m_header->font();
    font.setBold(true);
    m_header->setFont(font);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_header);
    if (m_content) {
        m_content->setParent(this);
        m_content->setContentsMargins(12, 4, 4, 8);
        layout->addWidget(m_content);
        m_content->setVisible(false);
    }
    setFocusProxy(m_header);

    connect(m_header, &QToolButton::clicked, this, [this](bool checked) { emit toggled(this, checked); });
    updateHeader();
}

AccordionItem::~AccordionItem() = default;

QString AccordionItem::helpText() const
{
    return m_content ? m_content->helpText() : QString();
}

bool AccordionItem::isOpen() const
{
    return m_header->isChecked();
}

void AccordionItem::setOpen(bool open)
{
    m_header->setChecked(open);
    if (m_content)
        m_content->setVisible(open);
}

void AccordionItem::updateHeader()
{
    if (!m_content)
        return;
    m_header->setText(m_content->title().trimmed());
    m_header->setIcon(m_content->icon());
}

void AccordionItem::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        updateHeader();
    QWidget::changeEvent(event);
}
