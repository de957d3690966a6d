#include "setcommand.h"

#include "config/configfile.h"
#include "documentpath.h"

#include <QTextStream>

QString SetCommand::description() const
{
    return QStringLiteral("Sets each SECTION/KEY to VALUE, adding the section or key where it is missing, and replaces "
                          "FILE atomically; everything else stays as it was. Nothing is written when the result "
                          "would not be valid against the schema (exit 1).");
}

int SetCommand::execute(const QCommandLineParser&, const QStringList& positional)
{
    if (positional.size() < 2)
        return usageError(QStringLiteral("a file and at least one SECTION/KEY=VALUE"));
    QList<QPair<QStringList, QString>> assignments;
    for (int i = 1; i < positional.size(); ++i) {
        const QString& assignment = positional.at(i);
        const int equals = assignment.indexOf(QLatin1Char('='));
        const QStringList path = DocumentPath::split(assignment.left(equals));
        if (equals < 0 || path.size() < 2)
            return usageError(QStringLiteral("\"%1\" is no SECTION/KEY=VALUE").arg(assignment));
        assignments.append({ path, assignment.mid(equals + 1) });
    }

    const QString file = positional.constFirst();
    ConfigFile config;
    if (!loadDocument(file, &config))
        return Failure;
    QDomElement root = config.documentElement();
    for (const auto& assignment : assignments) {
        if (!DocumentPath::setValue(&config, root, assignment.first, assignment.second)) {
            err() << file << ": " << assignment.first.join(QLatin1Char('/'))
                  << " holds settings of its own, not a value\n";
            return Failure;
        }
    }
    if (!reportProblems(file, &config))
        return Failure;
    return saveDocument(file, &config) ? Success : Failure;
}
