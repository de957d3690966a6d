#pragma once

#include "config/configfile.h"

#include <QStringList>

// A document holding the given sections, its cursor on the root as a page leaves it.
inline void fillDocument(ConfigFile& config, const QString& sections)
{
    config.setContent(QStringLiteral("<zelkon>%1</zelkon>").arg(sections));
    config.setCurrentNodeAsRoot();
}

// The values of a section as "key=value" lines in document order, or "absent".
inline QString sectionText(const ConfigFile& config, const QString& section)
{
    const QDomElement element = config.documentElement().firstChildElement(section);
    if (element.isNull())
        return QStringLiteral("absent");
    QStringList values;
    for (QDomElement value = element.firstChildElement(); !value.isNull(); value = value.nextSiblingElement())
        values.append(value.tagName() + '=' + value.text());
    return values.join(';');
}
