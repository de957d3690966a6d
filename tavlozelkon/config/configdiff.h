#pragma once

#include "tavlozelkon_lib_export.h"

#include <QJsonArray>
#include <QList>
#include <QPair>
#include <QString>

class QDomDocument;

/*
 * What differs between two configurations, value by value, for the wizard's pending
 * changes and for "zelkonctl diff". A value is named by its path below the root:
 * "display/resolution", "rdp/session[{id}]/address", "network_printer/printer[Laser]/port".
 * Records are matched by identity (sessions by id, printers by name), so reordering them
 * is no change; a section or key that repeats is numbered from its second occurrence on
 * ("desktop[2]/kiosk_mode"). Passwords and passphrases are masked wherever they are.
 */
class TAVLOZELKON_LIB_EXPORT ConfigDiff
{
public:
    struct Change
    {
        enum class Kind { Added, Removed, Changed };
        Kind kind = Kind::Changed;
        // The section's element name, and the path below it.
        QString section;
        QString key;
        // Empty for the side that lacks the value.
        QString before;
        QString after;
    };

    // Every value of the document as (path, text), in document order.
    static QList<QPair<QString, QString>> flatten(const QDomDocument& document);

    // Changes grouped by section, in the order the sections first appear.
    static QList<Change> compare(const QDomDocument& before, const QDomDocument& after);

    static bool isSecret(const QString& key);
    static QString masked(const QString& key, const QString& value);

    // One section heading per changed section, then "  + key: value", "  - key: value" or
    // "  ~ key: before -> after" per change.
    static QString toText(const QList<Change>& changes);
    static QJsonArray toJson(const QList<Change>& changes);
};
