#include "displaypreferences.h"

#include "device/machineroot.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

DisplayPreferences::DisplayPreferences()
{
    read(MachineRoot::path(machinePath()));
}

DisplayPreferences::DisplayPreferences(const QString& filePath)
{
    read(filePath);
}

QString DisplayPreferences::machinePath()
{
    return QStringLiteral("/etc/tavlotc-display-prefs/prefs.conf");
}

bool DisplayPreferences::isSingleMonitorDriver()
{
    // symLinkTarget() is empty when the file is no link.
    return QFileInfo(MachineRoot::path(machinePath())).symLinkTarget().endsWith(QLatin1String("prefs.xgi"));
}

void DisplayPreferences::read(const QString& filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream stream(&file);
    while (!stream.atEnd())
        m_lines.append(stream.readLine());
}

QStringList DisplayPreferences::valuesOf(const QString& prefix) const
{
    QStringList values;
    for (const QString& line : m_lines) {
        if (line.startsWith(prefix))
            values.append(line.mid(prefix.size()));
    }
    return values;
}

QStringList DisplayPreferences::resolutions() const
{
    QStringList list;
    for (const QString& value : valuesOf(QStringLiteral("Resolution="))) {
        const QString size = value.section(QLatin1Char(','), 0, 0);
        const int x = size.indexOf(QLatin1Char('x'));
        if (x < 0)
            continue;
        bool widthOk = false;
        bool heightOk = false;
        const int width = size.left(x).toInt(&widthOk, 10);
        const int height = size.mid(x + 1).toInt(&heightOk, 10);
        if (widthOk && heightOk && width > 0 && height > 0)
            addResolution(list, width, height);
    }
    return list;
}

QStringList DisplayPreferences::depths() const
{
    QStringList list;
    for (const QString& value : valuesOf(QStringLiteral("Depth="))) {
        // The first field is the driver's bit count; the second is the name to offer.
        const QString name = value.section(QLatin1Char(','), 1, 1);
        if (!name.isEmpty())
            list.append(name);
    }
    return list;
}

QStringList DisplayPreferences::refreshRates() const
{
    QStringList list;
    for (const QString& value : valuesOf(QStringLiteral("Refresh="))) {
        const QString rate = value.section(QLatin1Char(','), 0, 0).trimmed();
        if (rate == QLatin1String("0"))
            list.append(QStringLiteral("Auto"));
        else if (!rate.isEmpty())
            list.append(rate);
    }
    return list;
}

void DisplayPreferences::addResolution(QStringList& list, int width, int height)
{
    const QString text = QStringLiteral("%1x%2").arg(width).arg(height);
    if (!list.contains(text))
        list.append(text);
}
