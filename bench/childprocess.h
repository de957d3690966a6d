#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QStringList>
#include <QtGlobal>

/*
 * Runs a program and reports what it cost: wall time, its own peak resident memory and
 * its output. Linux only: the program runs traced, so that its peak can be read as it exits.
 * With a marker, the time taken is the time until the child wrote that line, and the peak
 * is not measured.
 */
class ChildProcess
{
public:
    struct Result
    {
        bool ok = false;
        int exitCode = -1;
        qint64 wallMicroseconds = 0;
        qint64 markerMicroseconds = -1;
        qint64 peakKilobytes = 0;
        QByteArray output;
    };

    static Result run(const QStringList& arguments, const QByteArray& marker = QByteArray(),
                      const QList<QPair<QByteArray, QByteArray>>& environment = {});
    static bool exists(const QString& program);
};
