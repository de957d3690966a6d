#include "buttondelegate.h"

#include <QAction>
#include <QEvent>
#include <QIcon>
#include <QTableWidget>
#include <QToolButton>

ButtonDelegate::ButtonDelegate(ButtonRole_t role, QObject* parent)
    : QItemDelegate(parent)
    , m_role(role)
{
}

ButtonDelegate::~ButtonDelegate() = default;

QWidget* ButtonDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("ListButton"));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setAutoRaise(true);

    auto* action = new QAction(button);
    action->setData(index.data(Qt::EditRole));
    auto* self = const_cast<ButtonDelegate*>(this);
    switch (m_role) {
    case EditButton:
        action->setIcon(QIcon(QStringLiteral(":/editIcon")));
        connect(button, &QToolButton::triggered, self, qOverload<QAction*>(&ButtonDelegate::editConnection));
        break;
    case DeleteButton:
        action->setIcon(QIcon(QStringLiteral(":/deleteIcon")));
        connect(button, &QToolButton::triggered, self, qOverload<QAction*>(&ButtonDelegate::deleteConnection));
        break;
    }
    action->setToolTip(toolTip());
    button->setDefaultAction(action);
    return button;
}

QString ButtonDelegate::toolTip() const
{
    return m_role == EditButton ? tr("Edit the connection") : tr("Delete the connection");
}

bool ButtonDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        if (auto* button = qobject_cast<QToolButton*>(watched); button && button->defaultAction())
            button->defaultAction()->setToolTip(toolTip());
    }
    return QItemDelegate::eventFilter(watched, event);
}

void ButtonDelegate::openButtons(QTableWidget* table, std::initializer_list<int> columns)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column : columns)
            table->openPersistentEditor(table->item(row, column));
    }
}

void ButtonDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    drawBackground(painter, option, index);
}

QSize ButtonDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return QSize(0, 0);
}

void ButtonDelegate::editConnection(QAction* action)
{
    emit editConnection(action->data().toString());
}

void ButtonDelegate::deleteConnection(QAction* action)
{
    emit deleteConnection(action->data().toString());
}
