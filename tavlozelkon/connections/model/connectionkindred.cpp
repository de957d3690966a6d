#include "connectionkindred.h"

#include "connectionsession.h"

#include <typeinfo>

ConnectionKindred::ConnectionKindred(const QString& type)
    : ConfigAtom(type)
{
}

QList<ConnectionSession*> ConnectionKindred::sessions() const
{
    QList<ConnectionSession*> result;
    for (QObject* child : children()) {
        if (auto* session = qobject_cast<ConnectionSession*>(child))
            result.append(session);
    }
    return result;
}

ConnectionSession& ConnectionKindred::session(const QString& id)
{
    if (!id.isEmpty()) {
        if (ConfigAtom* existing = findAtom(id))
            return dynamic_cast<ConnectionSession&>(*existing);
        // A new session changes the set of sessions, as a new atom does.
        setDirty();
    }
    // With an empty id the new session's own renaming marks the kind.
    return *new ConnectionSession(id, this);
}

bool ConnectionKindred::containsSession(const QString& id) const
{
    return containsAtom(id);
}

bool ConnectionKindred::deleteSession(const QString& id)
{
    return deleteAtom(id);
}
