#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/*
 * One pass of what the wizard does with a configuration file, each step timed: load the
 * file, fill the connection model, rename one connection and write the model back, render
 * the summary, save the file. Runs against the machine tree set in MachineRoot, on a
 * device or standalone.
 */
class Pipeline
{
public:
    enum class Mode { Device, Standalone };

    struct Times
    {
        // Microseconds per step, in the order of stepNames().
        QList<qint64> steps;
        int sessions = 0;
        bool ok = false;
    };

    static QStringList stepNames();
    static Times run(const QString& file, Mode mode, const QString& output);
};
