#include "diffcommand.h"

#include "config/configdiff.h"
#include "config/configfile.h"

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QTextStream>

namespace {
const QString FormatOption = QStringLiteral("format");
}

QString DiffCommand::description() const
{
    return QStringLiteral("Prints what differs from A to B, by section, key and record (connection sessions matched "
                          "by id, printers by name), passwords and passphrases masked. Exit 0 when the files are "
                          "equal, 1 when they differ, 2 on trouble.");
}

QList<QCommandLineOption> DiffCommand::options() const
{
    return { { FormatOption, QStringLiteral("text (the default) or json."), QStringLiteral("format"),
               QStringLiteral("text") } };
}

int DiffCommand::execute(const QCommandLineParser& parser, const QStringList& positional)
{
    if (positional.size() != 2)
        return usageError(QStringLiteral("two files to compare"));
    const QString format = parser.value(FormatOption);
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        return usageError(QStringLiteral("unknown format \"%1\"").arg(format));

    ConfigFile before;
    ConfigFile after;
    // Trouble is 2, as diff has it: 1 means "different".
    if (!loadDocument(positional.at(0), &before) || !loadDocument(positional.at(1), &after))
        return UsageError;
    const QList<ConfigDiff::Change> changes = ConfigDiff::compare(before, after);
    if (format == QLatin1String("json"))
        out() << QJsonDocument(ConfigDiff::toJson(changes)).toJson(QJsonDocument::Indented);
    else
        out() << ConfigDiff::toText(changes);
    return changes.isEmpty() ? Success : Failure;
}
