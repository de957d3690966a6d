#include "command.h"

#include "config/configfile.h"
#include "config/configschema.h"
#include "config/parseguard.h"

#include <QCommandLineParser>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

Command::~Command() = default;

QTextStream& Command::out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream& Command::err()
{
    static QTextStream stream(stderr);
    return stream;
}

int Command::run(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    const QCommandLineOption help({ QStringLiteral("h"), QStringLiteral("help") }, QStringLiteral("Show this help."));
    parser.addOption(help);
    parser.addOptions(options());
    if (!parser.parse(arguments))
        return usageError(parser.errorText());
    if (parser.isSet(help)) {
        out() << "Usage: zelkonctl " << name() << ' ' << synopsis() << "\n\n" << description() << '\n';
        const QString optionsHelp = parser.helpText().section(QStringLiteral("Options:"), 1);
        if (!optionsHelp.isEmpty())
            out() << "\nOptions:" << optionsHelp;
        out().flush();
        return Success;
    }
    const int result = execute(parser, parser.positionalArguments());
    out().flush();
    err().flush();
    return result;
}

int Command::usageError(const QString& message) const
{
    err() << "zelkonctl " << name() << ": " << message << '\n'
          << "Usage: zelkonctl " << name() << ' ' << synopsis() << '\n';
    err().flush();
    return UsageError;
}

bool Command::loadDocument(const QString& path, ConfigFile* config)
{
    ConfigReader::Result result;
    const bool loaded = config->load(path, &result);
    if (!result.opened) {
        err() << path << ":1:1: cannot be read: " << result.openError << '\n';
        return false;
    }
    const ParseGuard::Result& parse = result.parse;
    if (!parse.accepted()) {
        err() << path << ':' << parse.line << ':' << parse.column << ": not a configuration file"
              << (parse.message.isEmpty() ? QString() : QStringLiteral(": ") + parse.message) << '\n';
        return false;
    }
    if (!loaded || config->documentElement().tagName() != QLatin1String("zelkon")) {
        err() << path << ":1:1: not a configuration file: the root element is not \"zelkon\"\n";
        return false;
    }
    // Only the start of the file, for its declaration; the document was read by the load.
    QFile file(path);
    const QByteArray start = file.open(QIODevice::ReadOnly) ? file.read(256) : QByteArray();
    // The parser rewrites the declaration's quotes; a file that is only touched must keep it.
    static const QRegularExpression declaration(QStringLiteral("^\\s*<\\?xml\\s+(.*?)\\?>"));
    const QRegularExpressionMatch match = declaration.match(QString::fromUtf8(start));
    QDomProcessingInstruction instruction = config->firstChild().toProcessingInstruction();
    if (match.hasMatch() && !instruction.isNull() && instruction.target() == QLatin1String("xml"))
        instruction.setData(match.captured(1));
    return true;
}

bool Command::saveDocument(const QString& path, ConfigFile* config)
{
    if (config->save(path))
        return true;
    const QString unwritable = config->unwritablePath();
    if (!unwritable.isEmpty())
        err() << path << ": \"" << unwritable << "\" holds a character that a configuration file cannot hold\n";
    else
        err() << path << ": could not be written\n";
    return false;
}

bool Command::reportProblems(const QString& label, ConfigFile* config)
{
    static const ConfigSchema schema;
    const QList<ConfigSchema::Problem> problems = schema.check(config->toString().toUtf8());
    for (const ConfigSchema::Problem& problem : problems)
        err() << label << ':' << problem.line << ':' << problem.column << ": " << problem.message << '\n';
    return problems.isEmpty();
}
