#include "showcommand.h"

#include "config/configfile.h"
#include "documentview.h"

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QTextStream>

namespace {
const QString FormatOption = QStringLiteral("format");
const QString RevealOption = QStringLiteral("reveal");
} // namespace

QString ShowCommand::description() const
{
    return QStringLiteral(
        "Prints the summary of FILE: \"html\" exactly as the wizard's Summary page shows it, \"text\" "
        "with the same sections and labels, \"json\" as sections, keys and values with records as "
        "arrays. Passwords and passphrases are masked as in the summary unless --reveal is given "
        "(text and json).");
}

QList<QCommandLineOption> ShowCommand::options() const
{
    return { { FormatOption, QStringLiteral("html, text (the default) or json."), QStringLiteral("format"),
               QStringLiteral("text") },
             { RevealOption, QStringLiteral("Show passwords and passphrases.") } };
}

int ShowCommand::execute(const QCommandLineParser& parser, const QStringList& positional)
{
    if (positional.size() != 1)
        return usageError(QStringLiteral("one file to show"));
    const QString format = parser.value(FormatOption);
    if (format != QLatin1String("html") && format != QLatin1String("text") && format != QLatin1String("json"))
        return usageError(QStringLiteral("unknown format \"%1\"").arg(format));

    ConfigFile config;
    if (!loadDocument(positional.constFirst(), &config))
        return Failure;
    const bool reveal = parser.isSet(RevealOption);
    if (format == QLatin1String("html"))
        out() << config.toFormattedString() << '\n';
    else if (format == QLatin1String("text"))
        out() << DocumentView::toText(&config, reveal);
    else
        out() << QJsonDocument(DocumentView::toJson(config, reveal)).toJson(QJsonDocument::Indented);
    return Success;
}
