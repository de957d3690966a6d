#include "categorizeditemdelegate.h"

#include <QFontMetrics>
#include <QListWidget>
#include <QPainter>

namespace {
bool isCategory(const QModelIndex& index)
{
    return index.data(CategorizedItemDelegate::categoryRole()).toBool();
}
} // namespace

CategorizedItemDelegate::CategorizedItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

CategorizedItemDelegate::~CategorizedItemDelegate() = default;

void CategorizedItemDelegate::resetMaxItemSize()
{
    m_maxItemWidth = 0;
}

QSize CategorizedItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (isCategory(index)) {
        const auto* list = qobject_cast<const QListWidget*>(parent());
        const int width = list ? list->viewport()->width() : -1;
        // Headings after the first keep some distance from the icons above them.
        const int height = option.fontMetrics.height() + 25 + (index.row() != 0 ? 10 : 0);
        return QSize(width, height);
    }
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    m_maxItemWidth = qMax(m_maxItemWidth, size.width());
    size.setWidth(m_maxItemWidth);
    return size;
}

void CategorizedItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    if (!isCategory(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const auto* list = qobject_cast<const QListWidget*>(parent());
    const QRect item = list ? list->visualRect(index) : QRect();

    painter->save();
    QFont font = option.font;
    font.setWeight(QFont::Bold);
    painter->setFont(font);

    QRect text(item);
    text.setLeft(item.left() + 8);
    // The position, not the row as in sizeHint(): only a heading at the very top has no
    // space above its text.
    if (item.top() != 0)
        text.setTop(item.top() + 10);
    const QString heading = index.data(Qt::DisplayRole).toString();
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter, heading);

    const QRect bounds = painter->boundingRect(text, Qt::AlignLeft | Qt::AlignVCenter, heading);
    const int y = text.top() + (text.bottom() + 1 - text.top()) / 2;
    painter->drawLine(text.left() + (bounds.right() - bounds.left()) + 9, y, item.right() - 7, y);
    painter->restore();
}
