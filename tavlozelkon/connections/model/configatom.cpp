#include "configatom.h"

ConfigAtom::ConfigAtom(const QString& name)
    : QObject(nullptr)
{
    setObjectName(name);
}

ConfigAtom::ConfigAtom(const QString& name, ConfigAtom* parent)
    : QObject(parent)
{
    setObjectName(name);
    if (parent) {
        m_dirtyFlagEnabled = parent->m_dirtyFlagEnabled;
        m_dirty = parent->m_dirty;
    }
}

ConfigAtom::~ConfigAtom() = default;

QString ConfigAtom::name() const
{
    return objectName();
}

void ConfigAtom::setName(const QString& name)
{
    setObjectName(name);
    setDirty();
}

QList<QByteArray> ConfigAtom::propertyNames() const
{
    return dynamicPropertyNames();
}

QVariant ConfigAtom::property(const char* name) const
{
    return QObject::property(name);
}

bool ConfigAtom::setProperty(const char* name, const QVariant& value)
{
    if (qstrcmp(name, "objectName") == 0)
        return false;
    setDirty();
    return QObject::setProperty(name, value);
}

void ConfigAtom::setDirty()
{
    for (ConfigAtom* node = this; node; node = qobject_cast<ConfigAtom*>(node->parent())) {
        if (!node->m_dirtyFlagEnabled)
            return;
        node->m_dirty = true;
    }
}

void ConfigAtom::enableDirtyFlag()
{
    setDirtyFlagEnabled(true);
}

void ConfigAtom::disableDirtyFlag()
{
    setDirtyFlagEnabled(false);
}

void ConfigAtom::setDirtyFlagEnabled(bool enabled)
{
    m_dirtyFlagEnabled = enabled;
    const QList<ConfigAtom*> children = atoms();
    for (ConfigAtom* child : children)
        child->setDirtyFlagEnabled(enabled);
}

ConfigAtom* ConfigAtom::atom(const QString& name)
{
    if (ConfigAtom* existing = findAtom(name))
        return existing;
    // Marked before the child exists, so that the child inherits the mark.
    setDirty();
    return new ConfigAtom(name, this);
}

bool ConfigAtom::containsAtom(const QString& name) const
{
    return findAtom(name) != nullptr;
}

bool ConfigAtom::deleteAtom(const QString& name)
{
    ConfigAtom* child = findAtom(name);
    if (!child)
        return false;
    delete child;
    setDirty();
    return true;
}

QList<ConfigAtom*> ConfigAtom::atoms() const
{
    QList<ConfigAtom*> result;
    for (QObject* child : children()) {
        if (auto* node = qobject_cast<ConfigAtom*>(child))
            result.append(node);
    }
    return result;
}

ConfigAtom* ConfigAtom::findAtom(const QString& name) const
{
    for (QObject* child : children()) {
        auto* node = qobject_cast<ConfigAtom*>(child);
        if (node && node->objectName() == name)
            return node;
    }
    return nullptr;
}
