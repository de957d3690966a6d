#include "configdiff.h"

#include <QDomDocument>
#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <algorithm>

namespace {

using Entries = QList<QPair<QString, QString>>;

const QString Mask = QStringLiteral("********");

// A record's name in a path: its identity when it has one.
QString identity(const QDomElement& element)
{
    const QString tag = element.tagName();
    if (tag == QLatin1String("session") && element.hasAttribute(QStringLiteral("id")))
        return tag + QLatin1Char('[') + element.attribute(QStringLiteral("id")) + QLatin1Char(']');
    if (tag == QLatin1String("printer")) {
        const QDomElement name = element.firstChildElement(QStringLiteral("name"));
        if (!name.isNull())
            return tag + QLatin1Char('[') + name.text() + QLatin1Char(']');
    }
    return tag;
}

void flattenChildren(const QDomElement& parent, const QString& prefix, Entries* entries)
{
    // Two siblings of one name (two desktops, two printers of one name) stay apart by number.
    QHash<QString, int> seen;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        QString segment = identity(child);
        const int occurrence = ++seen[segment];
        if (occurrence > 1)
            segment += QLatin1Char('[') + QString::number(occurrence) + QLatin1Char(']');
        const QString path = prefix.isEmpty() ? segment : prefix + QLatin1Char('/') + segment;
        if (child.firstChildElement().isNull())
            entries->append({ path, child.text() });
        else
            flattenChildren(child, path, entries);
    }
}

QString sectionOf(const QString& path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}

QString keyOf(const QString& path)
{
    return path.section(QLatin1Char('/'), 1);
}

QString kindName(ConfigDiff::Change::Kind kind)
{
    switch (kind) {
    case ConfigDiff::Change::Kind::Added:
        return QStringLiteral("added");
    case ConfigDiff::Change::Kind::Removed:
        return QStringLiteral("removed");
    case ConfigDiff::Change::Kind::Changed:
        break;
    }
    return QStringLiteral("changed");
}

} // namespace

QList<QPair<QString, QString>> ConfigDiff::flatten(const QDomDocument& document)
{
    Entries entries;
    flattenChildren(document.documentElement(), QString(), &entries);
    return entries;
}

QList<ConfigDiff::Change> ConfigDiff::compare(const QDomDocument& before, const QDomDocument& after)
{
    const Entries oldEntries = flatten(before);
    const Entries newEntries = flatten(after);
    QHash<QString, QString> oldValues;
    for (const auto& entry : oldEntries)
        oldValues.insert(entry.first, entry.second);
    QHash<QString, QString> newValues;
    for (const auto& entry : newEntries)
        newValues.insert(entry.first, entry.second);

    QList<Change> changes;
    QStringList sections;
    auto note = [&](Change::Kind kind, const QString& path, const QString& oldValue, const QString& newValue) {
        Change change;
        change.kind = kind;
        change.section = sectionOf(path);
        change.key = keyOf(path);
        const QString key = path.section(QLatin1Char('/'), -1);
        change.before = masked(key, oldValue);
        change.after = masked(key, newValue);
        changes.append(change);
        if (!sections.contains(change.section))
            sections.append(change.section);
    };
    for (const auto& entry : oldEntries) {
        const auto found = newValues.constFind(entry.first);
        if (found == newValues.constEnd())
            note(Change::Kind::Removed, entry.first, entry.second, QString());
        else if (found.value() != entry.second)
            note(Change::Kind::Changed, entry.first, entry.second, found.value());
    }
    for (const auto& entry : newEntries) {
        if (!oldValues.contains(entry.first))
            note(Change::Kind::Added, entry.first, QString(), entry.second);
    }
    std::stable_sort(changes.begin(), changes.end(), [&sections](const Change& a, const Change& b) {
        return sections.indexOf(a.section) < sections.indexOf(b.section);
    });
    return changes;
}

bool ConfigDiff::isSecret(const QString& key)
{
    return key == QLatin1String("password") || key == QLatin1String("passphrase");
}

QString ConfigDiff::masked(const QString& key, const QString& value)
{
    return isSecret(key) && !value.isEmpty() ? Mask : value;
}

QString ConfigDiff::toText(const QList<Change>& changes)
{
    QString text;
    QString section;
    for (const Change& change : changes) {
        if (change.section != section || text.isEmpty()) {
            section = change.section;
            text += section + QLatin1Char('\n');
        }
        const QString key = change.key.isEmpty() ? QStringLiteral("(section)") : change.key;
        switch (change.kind) {
        case Change::Kind::Added:
            text += QLatin1String("  + ") + key + QLatin1String(": ") + change.after + QLatin1Char('\n');
            break;
        case Change::Kind::Removed:
            text += QLatin1String("  - ") + key + QLatin1String(": ") + change.before + QLatin1Char('\n');
            break;
        case Change::Kind::Changed:
            text += QLatin1String("  ~ ") + key + QLatin1String(": ") + change.before + QLatin1String(" -> ")
                + change.after + QLatin1Char('\n');
            break;
        }
    }
    return text;
}

QJsonArray ConfigDiff::toJson(const QList<Change>& changes)
{
    QJsonArray array;
    for (const Change& change : changes) {
        QJsonObject object { { QStringLiteral("change"), kindName(change.kind) },
                             { QStringLiteral("section"), change.section },
                             { QStringLiteral("key"), change.key } };
        if (change.kind != Change::Kind::Added)
            object.insert(QStringLiteral("before"), change.before);
        if (change.kind != Change::Kind::Removed)
            object.insert(QStringLiteral("after"), change.after);
        array.append(object);
    }
    return array;
}
