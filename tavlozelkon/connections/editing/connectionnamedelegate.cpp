#include "connectionnamedelegate.h"

ConnectionNameDelegate::ConnectionNameDelegate(ConnectionModel& model, QObject* parent)
    : QItemDelegate(parent)
    , m_model(model)
{
}

ConnectionNameDelegate::~ConnectionNameDelegate() = default;

void ConnectionNameDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    QItemDelegate::setModelData(editor, model, index);
    const QString sessionId = index.data(Qt::UserRole).toString();
    const QString name = index.data(Qt::EditRole).toString().simplified();
    emit const_cast<ConnectionNameDelegate*>(this)->connectionNameChanged(sessionId, name);
}
