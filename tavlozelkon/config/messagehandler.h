#pragma once

#include "tavlozelkon_lib_export.h"

#include <QAbstractMessageHandler>
#include <QString>

/*
 * Collects what the schema validator says about a configuration document. Only the last
 * message is kept, with its position, formatted for the validation box.
 */
class TAVLOZELKON_LIB_EXPORT MessageHandler : public QAbstractMessageHandler
{
    Q_OBJECT
    Q_DISABLE_COPY(MessageHandler)

public:
    explicit MessageHandler(QObject* parent = nullptr);

    int line() const { return m_line; }
    int column() const { return m_column; }
    // "Line <line> Col <column> <text of the message>"
    QString description() const { return m_description; }

protected:
    void handleMessage(QtMsgType type, const QString& description, const QUrl& identifier,
                       const QSourceLocation& sourceLocation) override;

private:
    int m_line = 0;
    int m_column = 0;
    QString m_description;
};
