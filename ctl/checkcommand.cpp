#include "checkcommand.h"

#include "config/configschema.h"
#include "config/parseguard.h"

#include <QCommandLineParser>
#include <QFile>
#include <QTextStream>
#include <QThread>
#include <thread>
#include <vector>

namespace {

const QString SchemaOption = QStringLiteral("schema");
// Fewer files are checked faster than a thread starts.
constexpr int FilesPerThread = 64;

// "FILE:LINE:COL: message" for each problem of the file.
QStringList problemLines(const QString& path, const ConfigSchema& schema)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return { QStringLiteral("%1:1:1: cannot be read: %2").arg(path, file.errorString()) };
    QStringList lines;
    // One byte past the limit is enough for the guard to refuse the file.
    for (const ConfigSchema::Problem& problem : schema.check(file.read(ParseGuard::MaxFileBytes + 1)))
        lines.append(
            QStringLiteral("%1:%2:%3: %4").arg(path).arg(problem.line).arg(problem.column).arg(problem.message));
    return lines;
}

} // namespace

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

    // Validating is the slow part of checking a fleet's files, and the files are
    // independent: each thread checks a share with a schema of its own (the validator is
    // reentrant, not thread-safe). Problems are reported in the order of the arguments.
    std::vector<QStringList> reports(size_t(positional.size()));
    const int threads = qBound(1, int(positional.size() / FilesPerThread), QThread::idealThreadCount());
    auto checkShare = [&](int share) {
        const ConfigSchema ownSchema(schemaData);
        for (int i = share; i < positional.size(); i += threads)
            reports[size_t(i)] = problemLines(positional.at(i), ownSchema);
    };
    std::vector<std::thread> workers;
    for (int share = 1; share < threads; ++share)
        workers.emplace_back(checkShare, share);
    checkShare(0);
    for (std::thread& worker : workers)
        worker.join();

    bool allFine = true;
    for (const QStringList& lines : reports) {
        for (const QString& line : lines)
            err() << line << '\n';
        allFine = allFine && lines.isEmpty();
    }
    return allFine ? Success : Failure;
}
