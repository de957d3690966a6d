#pragma once

#include <QByteArray>
#include <QStringList>

/*
 * Configuration documents of any size for timing: the given number of connection
 * sessions spread in turn over the types below, each with the elements its type writes,
 * plus a few ordinary settings sections, as the wizard itself would save them.
 */
class BenchDocument
{
public:
    BenchDocument() = delete;

    static const QStringList& connectionTypes();
    static QByteArray generate(int sessions);
};
