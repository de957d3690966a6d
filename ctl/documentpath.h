#pragma once

#include <QDomElement>
#include <QStringList>

class ConfigFile;

/*
 * Paths such as "usb/read_only" that name a value by the element names from the root
 * down. Only direct children are followed, unlike the document's own key lookup, which
 * searches at any depth: a path names exactly one element.
 */
class DocumentPath
{
public:
    DocumentPath() = delete;

    // The names of the path; empty when a name is empty.
    static QStringList split(const QString& path);
    // The element at path below parent; null when there is none.
    static QDomElement find(const QDomElement& parent, const QStringList& path);
    // Sets the text of the element at path, creating what is missing. False, and nothing
    // changed, when that element holds elements of its own.
    static bool setValue(ConfigFile* config, QDomElement parent, const QStringList& path, const QString& value);
};
