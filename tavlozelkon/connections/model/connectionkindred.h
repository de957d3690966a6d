#pragma once

#include "configatom.h"
#include "tavlozelkon_lib_export.h"

#include <QList>

class ConnectionSession;

/*
 * One connection type with its sessions. It is a root atom named by the type key, so
 * its dirty flag says whether anything of the type changed since loading, and with it
 * whether the type's section is rewritten when saving. Besides sessions it may hold
 * type-wide settings groups (the web browser's "general_settings").
 */
class TAVLOZELKON_LIB_EXPORT ConnectionKindred : public ConfigAtom
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionKindred)

public:
    explicit ConnectionKindred(const QString& type);

    QString connectionType() const { return name(); }
    QList<ConnectionSession*> sessions() const;

    // The session of that id, created when missing; an empty id always makes a new
    // session with a fresh id. Throws std::bad_cast when a child of that name is not a
    // session, which only a programming error can cause.
    ConnectionSession& session(const QString& id);
    bool containsSession(const QString& id) const;
    bool deleteSession(const QString& id);
};
