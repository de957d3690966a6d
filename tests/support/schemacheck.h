#pragma once

#include "config/configschema.h"

#include <QByteArray>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryFile>

// The problems of a document against the shipped schema, by Qt's validator and, where it
// is installed, by xmllint as well; empty when both accept it.
inline QStringList schemaProblems(const QByteArray& document)
{
    QStringList problems;
    static const ConfigSchema schema;
    for (const ConfigSchema::Problem& problem : schema.check(document))
        problems.append(QStringLiteral("Qt %1:%2: %3").arg(problem.line).arg(problem.column).arg(problem.message));

    const QString xmllint = QStandardPaths::findExecutable(QStringLiteral("xmllint"));
    if (xmllint.isEmpty())
        return problems;
    QTemporaryFile file;
    if (!file.open() || file.write(document) != document.size() || !file.flush())
        return problems << QStringLiteral("cannot write a file for xmllint");
    QProcess process;
    process.start(
        xmllint,
        { QStringLiteral("--noout"), QStringLiteral("--schema"), QStringLiteral(ZELKON_SCHEMA_FILE), file.fileName() });
    if (!process.waitForFinished(30000) || process.exitCode() != 0)
        problems.append(QStringLiteral("xmllint: ") + QString::fromUtf8(process.readAllStandardError()).trimmed());
    return problems;
}
