#include "documentview.h"

#include "config/configdiff.h"
#include "config/configfile.h"
#include "connections/model/connectionmodel.h"

#include <QJsonArray>

namespace {

bool isRecord(const QString& tag)
{
    return tag == QLatin1String("session") || tag == QLatin1String("printer");
}

// As the summary: empty sections are left out, except connection types.
bool isShown(const QDomElement& section)
{
    return section.hasChildNodes() || ConnectionModel::sSupportedConnectionTypes().contains(section.tagName());
}

QString shownValue(const QString& key, const QString& value, bool mask)
{
    return mask ? ConfigDiff::masked(key, value) : value;
}

// Records and groups show every value as stored, as the summary does.
void appendGroup(ConfigFile* config, const QDomElement& group, const QString& indent, const QString& firstIndent,
                 QString* text)
{
    QString prefix = firstIndent;
    for (QDomElement child = group.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString label = config->sectionAlias(child.tagName());
        if (child.firstChildElement().isNull()) {
            *text += prefix + label + QLatin1String(": ") + child.text() + QLatin1Char('\n');
        } else {
            *text += prefix + label + QLatin1Char('\n');
            appendGroup(config, child, indent + QLatin1String("  "), indent + QLatin1String("  "), text);
        }
        prefix = indent;
    }
}

QJsonValue groupToJson(const QDomElement& group, bool maskSecrets)
{
    if (group.firstChildElement().isNull())
        return group.text();
    QJsonObject object;
    if (group.hasAttribute(QStringLiteral("id")) && group.firstChildElement(QStringLiteral("id")).isNull())
        object.insert(QStringLiteral("id"), group.attribute(QStringLiteral("id")));
    for (QDomElement child = group.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        const QJsonValue value = child.firstChildElement().isNull()
            ? QJsonValue(shownValue(tag, child.text(), maskSecrets))
            : groupToJson(child, false);
        if (isRecord(tag)) {
            QJsonArray records = object.value(tag).toArray();
            records.append(value);
            object.insert(tag, records);
        } else if (!object.contains(tag)) {
            object.insert(tag, value);
        }
    }
    return object;
}

} // namespace

QString DocumentView::toText(ConfigFile* config, bool reveal)
{
    QString text;
    const QDomElement root = config->documentElement();
    for (QDomElement section = root.firstChildElement(); !section.isNull(); section = section.nextSiblingElement()) {
        if (!isShown(section))
            continue;
        text += config->sectionAlias(section.tagName()) + QLatin1Char('\n');
        for (QDomElement child = section.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            const QString tag = child.tagName();
            if (isRecord(tag)) {
                appendGroup(config, child, QStringLiteral("    "), QStringLiteral("  - "), &text);
            } else if (!child.firstChildElement().isNull()) {
                text += QLatin1String("  ") + config->sectionAlias(tag) + QLatin1Char('\n');
                appendGroup(config, child, QStringLiteral("    "), QStringLiteral("    "), &text);
            } else {
                text += QLatin1String("  ") + config->sectionAlias(tag) + QLatin1String(": ")
                    + shownValue(tag, child.text(), !reveal) + QLatin1Char('\n');
            }
        }
    }
    return text;
}

QJsonObject DocumentView::toJson(const ConfigFile& config, bool reveal)
{
    QJsonObject sections;
    const QDomElement root = config.documentElement();
    for (QDomElement section = root.firstChildElement(); !section.isNull(); section = section.nextSiblingElement()) {
        if (!isShown(section))
            continue;
        const QString tag = section.tagName();
        QJsonValue value = groupToJson(section, !reveal);
        if (value.isString())
            value = QJsonObject();
        // A section that repeats (a second desktop) becomes an array of its occurrences.
        if (sections.contains(tag)) {
            QJsonValue existing = sections.value(tag);
            QJsonArray occurrences = existing.isArray() ? existing.toArray() : QJsonArray { existing };
            occurrences.append(value);
            sections.insert(tag, occurrences);
        } else {
            sections.insert(tag, value);
        }
    }
    return sections;
}
