#pragma once

#include "tavlozelkon_lib_export.h"

#include <QItemDelegate>

class ConnectionModel;

/*
 * Renames a connection in place in the connection list. The cell holds the session id
 * under Qt::UserRole; the name typed is announced simplified (trimmed, inner blanks
 * collapsed), and the list stores it in the model.
 */
class TAVLOZELKON_LIB_EXPORT ConnectionNameDelegate : public QItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionNameDelegate)

public:
    ConnectionNameDelegate(ConnectionModel& model, QObject* parent);
    ~ConnectionNameDelegate() override;

    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

signals:
    void connectionNameChanged(const QString& sessionId, const QString& name);

private:
    ConnectionModel& m_model;
};
