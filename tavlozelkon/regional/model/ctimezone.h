#pragma once

#include "tavlozelkon_lib_export.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>
#include <exception>

class QTextStream;

/*
 * One time zone named in both vocabularies the thin clients use: the Linux zone (area
 * and city, "Europe/Madrid") and the Windows zone id ("Romance Standard Time"). The
 * translation comes from the device's table /usr/share/tavlotc-zelkon-tools/time_zones.tab,
 * read the first time a zone is made and shared by all zones of the process.
 *
 * Several Linux zones share one Windows zone; translating from Windows picks the first
 * of them in the table, so the table's order decides.
 */
class TAVLOZELKON_LIB_EXPORT CTimeZone : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(CTimeZone)

public:
    // One line of the table.
    struct tzdata_t
    {
        QString area;
        QString city;
        QString windowsName;
    };

    // Thrown by the constructors when the table cannot be read (code 1). Nothing is kept
    // of the failed attempt, so the next construction reads again.
    class TAVLOZELKON_LIB_EXPORT ExceptionType : public std::exception
    {
    public:
        explicit ExceptionType(int code)
            : m_code(code)
        {
        }
        int code() const { return m_code; }
        const char* what() const noexcept override;

    private:
        int m_code;
    };

    explicit CTimeZone(QObject* parent = nullptr);
    CTimeZone(const QString& area, const QString& city, QObject* parent = nullptr);
    explicit CTimeZone(const QString& windowsName, QObject* parent = nullptr);
    ~CTimeZone() override;

    // Each takes the first table entry that matches without regard to case, with the
    // entry's own spelling; false and an empty zone when none matches.
    bool fromLinux(const QString& area, const QString& city);
    // "Area/City"; a name without "/" is tried as both area and city.
    bool fromLinux(const QString& name);
    bool fromWindows(const QString& name);

    QString toWindows() const { return m_windowsName; }
    // "Area/City", or empty while either part is.
    QString toLinux() const;
    void toLinuxPair(QString* area, QString* city) const;

    // Every name of the table once, in table order.
    QStringList linuxList() const;
    QStringList windowsList() const;

    // The entries of a table's text: comments, blank lines and lines with fewer than four
    // tab-separated fields are left out. Exposed for hosts that check a table of their own.
    static QVector<tzdata_t> parseTable(QTextStream& stream);

private:
    static void readTableOnce();
    void clear();
    void take(const tzdata_t& entry);

    static QVector<tzdata_t> s_table;
    static bool s_tableRead;

    QString m_windowsName;
    QString m_area;
    QString m_city;
};
