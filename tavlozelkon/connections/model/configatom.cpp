#include "configatom.h"

#include <QChildEvent>

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
        // The parent's child event came while this was no atom yet and had no name.
        parent->childAdded(this);
    }
}

ConfigAtom::~ConfigAtom()
{
    // While its parent destroys its children the parent is no atom any more, and then
    // there is no index to keep.
    if (auto* parentAtom = qobject_cast<ConfigAtom*>(parent()))
        parentAtom->childGone(this, objectName());
}

QString ConfigAtom::name() const
{
    return objectName();
}

void ConfigAtom::setName(const QString& name)
{
    const QString oldName = objectName();
    setObjectName(name);
    if (auto* parentAtom = qobject_cast<ConfigAtom*>(parent()))
        parentAtom->childRenamed(this, oldName);
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
    if (name.isEmpty()) {
        // Sessions are made nameless and named at once; only such lookups scan.
        for (QObject* child : children()) {
            auto* node = qobject_cast<ConfigAtom*>(child);
            if (node && node->objectName().isEmpty())
                return node;
        }
        return nullptr;
    }
    if (!m_childIndexValid) {
        m_childIndex.clear();
        for (QObject* child : children()) {
            auto* node = qobject_cast<ConfigAtom*>(child);
            if (node && !node->objectName().isEmpty() && !m_childIndex.contains(node->objectName()))
                m_childIndex.insert(node->objectName(), node);
        }
        m_childIndexValid = true;
    }
    return m_childIndex.value(name);
}

void ConfigAtom::childEvent(QChildEvent* event)
{
    // Children under construction or destruction are no atoms here; the constructor and
    // destructor report them instead.
    auto* child = qobject_cast<ConfigAtom*>(event->child());
    if (!child)
        return;
    if (event->added())
        childAdded(child);
    else if (event->removed())
        childGone(child, child->objectName());
}

void ConfigAtom::childAdded(ConfigAtom* child)
{
    // A new child comes last, so a namesake already indexed stays the first.
    if (m_childIndexValid && !child->objectName().isEmpty() && !m_childIndex.contains(child->objectName()))
        m_childIndex.insert(child->objectName(), child);
}

void ConfigAtom::childGone(ConfigAtom* child, const QString& name)
{
    // A later namesake may take its place; finding it is left to the next lookup.
    if (m_childIndexValid && m_childIndex.value(name) == child)
        m_childIndexValid = false;
}

void ConfigAtom::childRenamed(ConfigAtom* child, const QString& oldName)
{
    childGone(child, oldName);
    // Whether the child comes before a namesake already indexed is not known here.
    if (m_childIndexValid && m_childIndex.contains(child->objectName()))
        m_childIndexValid = false;
    childAdded(child);
}
