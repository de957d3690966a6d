#pragma once

#include <QJsonObject>
#include <QString>

class ConfigFile;

/*
 * The summary of a configuration for a terminal and for programs: the same sections,
 * labels and order as the wizard's Summary page, and the same masking of section-level
 * passwords and passphrases unless revealed. Empty sections are left out as there,
 * except connection types.
 */
class DocumentView
{
public:
    DocumentView() = delete;

    // A section heading line, then "  Label: value" lines; records start with "  - ".
    static QString toText(ConfigFile* config, bool reveal);
    // Sections to keys to values; records (sessions, printers) and repeated sections are
    // arrays; a record's id is its "id" key.
    static QJsonObject toJson(const ConfigFile& config, bool reveal);
};
