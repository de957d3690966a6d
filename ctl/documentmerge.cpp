#include "documentmerge.h"

#include "config/configfile.h"

#include <QHash>

namespace {

// A record's identity; empty for an element that is no record.
QString identity(const QDomElement& element)
{
    if (element.tagName() == QLatin1String("session"))
        return element.attribute(QStringLiteral("id"));
    if (element.tagName() == QLatin1String("printer"))
        return element.firstChildElement(QStringLiteral("name")).text();
    return QString();
}

QDomElement findRecord(const QDomElement& parent, const QString& tag, const QString& id)
{
    for (QDomElement child = parent.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag)) {
        if (identity(child) == id)
            return child;
    }
    return QDomElement();
}

QDomElement nthChild(const QDomElement& parent, const QString& tag, int n)
{
    QDomElement child = parent.firstChildElement(tag);
    for (int i = 0; i < n && !child.isNull(); ++i)
        child = child.nextSiblingElement(tag);
    return child;
}

void mergeElement(ConfigFile* document, QDomElement target, const QDomElement& source)
{
    QHash<QString, int> seen;
    for (QDomElement child = source.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        const QString id = identity(child);
        const QDomNode copy = document->importNode(child, true);
        if (!id.isEmpty()) {
            const QDomElement record = findRecord(target, tag, id);
            if (record.isNull())
                target.appendChild(copy);
            else
                target.replaceChild(copy, record);
            continue;
        }
        const QDomElement existing = nthChild(target, tag, seen[tag]++);
        if (existing.isNull())
            target.appendChild(copy);
        else if (existing.firstChildElement().isNull())
            target.replaceChild(copy, existing);
        else if (!child.firstChildElement().isNull())
            mergeElement(document, existing, child);
        // An empty overlay section (<rdp/>) has nothing to say about the base's records.
    }
}

} // namespace

void DocumentMerge::merge(ConfigFile* base, const QDomDocument& overlay)
{
    mergeElement(base, base->documentElement(), overlay.documentElement());
}
