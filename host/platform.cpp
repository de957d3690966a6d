#include "platform.h"

Platform* Platform::instance()
{
    static Platform* platform = new Platform;
    return platform;
}

bool Platform::isLunvex()
{
    return instance()->m_target == Lunvex;
}

bool Platform::isWes()
{
    return instance()->m_target == Wes;
}

bool Platform::isWes7()
{
    return instance()->m_target == Wes7;
}

bool Platform::isCe()
{
    return instance()->m_target == Ce;
}

bool Platform::isStandalone()
{
    return instance()->m_standalone;
}

QStringList Platform::list()
{
    return { QStringLiteral("Lunvex"), QStringLiteral("WES"), QStringLiteral("WES7"), QStringLiteral("CE") };
}

void Platform::setTarget(Target target)
{
    if (target == m_target)
        return;
    m_target = target;
    emit platformChange();
}

void Platform::setStandalone(bool standalone)
{
    if (standalone == m_standalone)
        return;
    m_standalone = standalone;
    emit platformChange();
}

void Platform::selectionChanged(int index)
{
    if (index >= 0 && index < list().size())
        setTarget(static_cast<Target>(index));
}
