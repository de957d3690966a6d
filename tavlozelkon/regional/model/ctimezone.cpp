#include "ctimezone.h"

#include "device/machineroot.h"

#include <QFile>
#include <QSet>
#include <QTextStream>

namespace {
const char TablePath[] = "/usr/share/tavlotc-zelkon-tools/time_zones.tab";
const int TableUnreadable = 1;

// Fields counted from 0: area, city, (country, unused), Windows name.
enum Field { Area = 0, City = 1, WindowsName = 3, FieldCount };

QStringList uniqueInOrder(const QStringList& names)
{
    QStringList unique;
    QSet<QString> seen;
    for (const QString& name : names) {
        if (!seen.contains(name)) {
            seen.insert(name);
            unique.append(name);
        }
    }
    return unique;
}
} // namespace

QVector<CTimeZone::tzdata_t> CTimeZone::s_table;
bool CTimeZone::s_tableRead = false;

const char* CTimeZone::ExceptionType::what() const noexcept
{
    return "the time zone table cannot be read";
}

CTimeZone::CTimeZone(QObject* parent)
    : QObject(parent)
{
    readTableOnce();
}

CTimeZone::CTimeZone(const QString& area, const QString& city, QObject* parent)
    : QObject(parent)
{
    readTableOnce();
    fromLinux(area, city);
}

CTimeZone::CTimeZone(const QString& windowsName, QObject* parent)
    : QObject(parent)
{
    readTableOnce();
    fromWindows(windowsName);
}

CTimeZone::~CTimeZone() = default;

void CTimeZone::readTableOnce()
{
    if (s_tableRead)
        return;
    QFile file(MachineRoot::path(QLatin1String(TablePath)));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        throw ExceptionType(TableUnreadable);
    QTextStream stream(&file);
    s_table = parseTable(stream);
    s_tableRead = true;
}

QVector<CTimeZone::tzdata_t> CTimeZone::parseTable(QTextStream& stream)
{
    stream.setCodec("UTF-8");
    QVector<tzdata_t> table;
    QString line;
    while (stream.readLineInto(&line)) {
        const QString trimmed = line.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith(QLatin1Char('#')))
            continue;
        const QStringList fields = line.split(QLatin1Char('\t'));
        if (fields.size() < FieldCount)
            continue;
        table.append({ fields.at(Area).trimmed(), fields.at(City).trimmed(), fields.at(WindowsName).trimmed() });
    }
    return table;
}

void CTimeZone::clear()
{
    m_windowsName.clear();
    m_area.clear();
    m_city.clear();
}

void CTimeZone::take(const tzdata_t& entry)
{
    m_windowsName = entry.windowsName;
    m_area = entry.area;
    m_city = entry.city;
}

bool CTimeZone::fromLinux(const QString& area, const QString& city)
{
    clear();
    for (const tzdata_t& entry : qAsConst(s_table)) {
        if (entry.area.compare(area, Qt::CaseInsensitive) == 0 && entry.city.compare(city, Qt::CaseInsensitive) == 0) {
            take(entry);
            return true;
        }
    }
    return false;
}

bool CTimeZone::fromLinux(const QString& name)
{
    const int slash = name.indexOf(QLatin1Char('/'));
    if (slash < 0)
        return fromLinux(name, name);
    return fromLinux(name.left(slash), name.mid(slash + 1));
}

bool CTimeZone::fromWindows(const QString& name)
{
    clear();
    for (const tzdata_t& entry : qAsConst(s_table)) {
        if (entry.windowsName.compare(name, Qt::CaseInsensitive) == 0) {
            take(entry);
            return true;
        }
    }
    return false;
}

QString CTimeZone::toLinux() const
{
    if (m_area.isEmpty() || m_city.isEmpty())
        return QString();
    return m_area + QLatin1Char('/') + m_city;
}

void CTimeZone::toLinuxPair(QString* area, QString* city) const
{
    if (area)
        *area = m_area;
    if (city)
        *city = m_city;
}

QStringList CTimeZone::linuxList() const
{
    QStringList names;
    for (const tzdata_t& entry : qAsConst(s_table))
        names.append(entry.area + QLatin1Char('/') + entry.city);
    return uniqueInOrder(names);
}

QStringList CTimeZone::windowsList() const
{
    QStringList names;
    for (const tzdata_t& entry : qAsConst(s_table))
        names.append(entry.windowsName);
    return uniqueInOrder(names);
}
