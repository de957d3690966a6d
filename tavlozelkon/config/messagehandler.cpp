#include "messagehandler.h"

#include <QSourceLocation>

MessageHandler::MessageHandler(QObject* parent)
    : QAbstractMessageHandler(parent)
{
}

void MessageHandler::handleMessage(QtMsgType type, const QString& description, const QUrl& identifier,
                                   const QSourceLocation& sourceLocation)
{
    Q_UNUSED(type)
    Q_UNUSED(identifier)
    m_line = static_cast<int>(sourceLocation.line());
    m_column = static_cast<int>(sourceLocation.column());
    m_description = tr("Line %1 Col %2 %3").arg(QString::number(m_line), QString::number(m_column), description);
}
