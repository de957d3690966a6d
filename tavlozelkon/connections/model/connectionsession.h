#pragma once

#include "configatom.h"
#include "tavlozelkon_lib_export.h"

/*
 * One remote connection. The atom's name is the connection's id, its properties are the
 * connection's settings ("name", "autostart", and the keys of its type), and grouped
 * settings such as a proxy are child atoms.
 */
class TAVLOZELKON_LIB_EXPORT ConnectionSession : public ConfigAtom
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionSession)

public:
    // An empty id is replaced by a fresh braced UUID.
    ConnectionSession(const QString& id, ConfigAtom* parent);

    void initId();
    QString id() const { return name(); }
    void setId(const QString& id) { setName(id); }
};
