#pragma once

#include "tavlozelkon_lib_export.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

/*
 * A named node of the connection model's property tree. Values are the object's dynamic
 * properties, child nodes are its child objects (owned, in creation order). Every change
 * marks the node and its ancestors dirty, up to the first node whose marking is
 * disabled; the dirty flag decides what is written back to the configuration document.
 * Nothing ever clears it: a fresh tree is built for each load.
 *
 * Children are found by name through an index, since a connection type may hold
 * thousands of sessions and loading looks each one up. Names change through setName();
 * the index does not notice a bare QObject::setObjectName().
 */
class TAVLOZELKON_LIB_EXPORT ConfigAtom : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ConfigAtom)

public:
    explicit ConfigAtom(const QString& name);
    ConfigAtom(const QString& name, ConfigAtom* parent);
    ~ConfigAtom() override;

    QString name() const;
    void setName(const QString& name);

    QList<QByteArray> propertyNames() const;
    QVariant property(const char* name) const;
    // Refuses "objectName" (the node's name is not a value). Marks dirty even when the
    // value does not change.
    bool setProperty(const char* name, const QVariant& value);

    bool isDirty() const { return m_dirty; }
    void setDirty();
    // Both act on the whole subtree and leave the dirty flags as they are.
    void enableDirtyFlag();
    void disableDirtyFlag();

    // The first child of that name; a missing one is created, which counts as a change.
    ConfigAtom* atom(const QString& name);
    bool containsAtom(const QString& name) const;
    bool deleteAtom(const QString& name);
    QList<ConfigAtom*> atoms() const;
    // The first child of that name, or null; unlike atom() it never changes the tree.
    ConfigAtom* findAtom(const QString& name) const;

protected:
    // Keeps the index when children are moved here or away with QObject::setParent().
    void childEvent(QChildEvent* event) override;

private:
    void setDirtyFlagEnabled(bool enabled);
    void childAdded(ConfigAtom* child);
    void childGone(ConfigAtom* child, const QString& name);
    void childRenamed(ConfigAtom* child, const QString& oldName);

    bool m_dirtyFlagEnabled = true;
    bool m_dirty = false;
    // The first child of each non-empty name, in children() order; built on first use.
    mutable QHash<QString, ConfigAtom*> m_childIndex;
    mutable bool m_childIndexValid = false;
};
