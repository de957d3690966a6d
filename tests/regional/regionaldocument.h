#pragma once

#include "config/configfile.h"

#include <QDomElement>
#include <QStringList>

// A document holding sections (XML below the root), with its cursor on the root.
inline void setSections(ConfigFile& config, const QString& sections)
{
    config.setContent(QStringLiteral("<zelkon>") + sections + QStringLiteral("</zelkon>"));
    config.setCurrentNodeAsRoot();
}

// "key=value" for every value of the section, in document order; "absent" without it.
// Checks that the section is there at most once.
inline QStringList sectionValues(const ConfigFile& config, const QString& section)
{
    const QDomElement root = config.documentElement();
    const QDomElement element = root.firstChildElement(section);
    if (element.isNull())
        return { QStringLiteral("absent") };
    if (!element.nextSiblingElement(section).isNull())
        return { QStringLiteral("repeated") };
    QStringList values;
    for (QDomElement value = element.firstChildElement(); !value.isNull(); value = value.nextSiblingElement())
        values.append(value.tagName() + '=' + value.text());
    return values;
}
