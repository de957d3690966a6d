#include "connectionsession.h"

#include <QUuid>

ConnectionSession::ConnectionSession(const QString& id, ConfigAtom* parent)
    : ConfigAtom(id, parent)
{
    initId();
}

void ConnectionSession::initId()
{
    if (name().isEmpty())
        setName(QUuid::createUuid().toString());
}
