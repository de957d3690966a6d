#pragma once

#include <QByteArray>
#include <QString>

/*
 * What every fuzz target shares: an application object (widgets included), a platform that never runs the
 * device's tools, a scratch device root, and the file each input is written to.
 */
class FuzzInput
{
public:
    FuzzInput() = delete;

    static void initialize(int* argc, char*** argv);
    // Writes bytes to the input file and returns its path: machinePath below the scratch
    // device root when one is given, otherwise a file of its own.
    static QString place(const QByteArray& bytes, const QString& machinePath);
    // A path a target may write to, for example to save what it loaded.
    static QString scratchFile();
};
