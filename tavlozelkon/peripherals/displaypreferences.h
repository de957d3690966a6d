#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QStringList>

/*
 * The display preference file of the machine the wizard runs on
 * ("/etc/tavlotc-display-prefs/prefs.conf"): the modes its graphics driver offers, one
 * "Resolution=", "Depth=" or "Refresh=" line each. Only those line prefixes are
 * understood; anything else in the file is ignored. A missing or unreadable file reads
 * as empty, so callers fall back to their fixed lists.
 */
class TAVLOZELKON_LIB_EXPORT DisplayPreferences
{
public:
    // Reads the machine's file (through MachineRoot) or, for tests, the file at filePath.
    DisplayPreferences();
    explicit DisplayPreferences(const QString& filePath);

    static QString machinePath();
    // Some graphics drivers cannot drive several monitors; their preference file is a
    // link to one named after the driver ("...prefs.xgi").
    static bool isSingleMonitorDriver();

    // "WxH" of every "Resolution=W x H[,...]" line with both sizes positive, without
    // duplicates, in file order.
    QStringList resolutions() const;
    // The second comma-separated field of every "Depth=" line, as written ("24 Bpp").
    QStringList depths() const;
    // The first field of every "Refresh=" line, trimmed, "0" read as "Auto"; in file
    // order, duplicates kept.
    QStringList refreshRates() const;

    // Appends "WxH" unless list already has it.
    static void addResolution(QStringList& list, int width, int height);

private:
    void read(const QString& filePath);
    // The rest of every line that begins with prefix (case-sensitive).
    QStringList valuesOf(const QString& prefix) const;

    QStringList m_lines;
};
