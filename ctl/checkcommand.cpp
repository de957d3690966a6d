#include "checkcommand.h"

#include "config/configschema.h"
#include "config/parseguard.h"

#include <QCommandLineParser>
#include <QFile>
#include <QTextStream>

namespace {
const QString SchemaOption = QStringLiteral("schema");
}

QString CheckCommand::description() const
{
    return QStringLiteral("Checks that each FILE is well-formed XML with the root \"zelkon\" and valid against the "
                          "schema. Problems go to standard error as FILE:LINE:COL: message. Exit 0 when every file "
                          "is fine, 1 when any is not.");
}

QList<QCommandLineOption> CheckCommand::options() const
{
    return { { SchemaOption, QStringLiteral("Check against XSD instead of the shipped schema."),
               QStringLiteral("XSD") } };
}

int CheckCommand::execute(const QCommandLineParser& parser, const QStringList& positional)
{
    if (positional.isEmpty())
        return usageError(QStringLiteral("no file to check"));

    QByteArray schemaData = ConfigSchema::shipped();
    if (parser.isSet(SchemaOption)) {
        QFile file(parser.value(SchemaOption));
        if (!file.open(QIODevice::ReadOnly))
            return usageError(
                QStringLiteral("the schema %1 cannot be read: %2").arg(file.fileName(), file.errorString()));
        schemaData = file.readAll();
    }
    const ConfigSchema schema(schemaData);
    if (!schema.isValid())
        return usageError(QStringLiteral("the schema is not valid: %1").arg(schema.schemaError()));

    bool allFine = true;
    for (const QString& path : positional) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            err() << path << ":1:1: cannot be read: " << file.errorString() << '\n';
            allFine = false;
            continue;
        }
        // One byte past the limit is enough for the guard to refuse the file.
        const QList<ConfigSchema::Problem> problems = schema.check(file.read(ParseGuard::MaxFileBytes + 1));
        for (const ConfigSchema::Problem& problem : problems)
            err() << path << ':' << problem.line << ':' << problem.column << ": " << problem.message << '\n';
        allFine = allFine && problems.isEmpty();
    }
    return allFine ? Success : Failure;
}
