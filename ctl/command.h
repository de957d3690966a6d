#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class ConfigFile;
class QCommandLineParser;
class QTextStream;

/*
 * One subcommand of zelkonctl: its name, what it is for, its options, and its work on
 * the positional arguments. Data goes to standard output, diagnostics to standard error;
 * the exit code follows the shell's habits.
 */
class Command
{
public:
    enum ExitCode { Success = 0, Failure = 1, UsageError = 2 };

    Command() = default;
    virtual ~Command();
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    virtual QString name() const = 0;
    // The arguments after the name, as in "FILE [--format html|text|json]".
    virtual QString synopsis() const = 0;
    virtual QString description() const = 0;
    virtual QList<QCommandLineOption> options() const { return {}; }

    // arguments start with the command's name.
    int run(const QStringList& arguments);

    static QTextStream& out();
    static QTextStream& err();

protected:
    virtual int execute(const QCommandLineParser& parser, const QStringList& positional) = 0;

    // Writes a diagnostic and returns UsageError.
    int usageError(const QString& message) const;
    // Loads a configuration file; on failure says why on standard error.
    static bool loadDocument(const QString& path, ConfigFile* config);
    // Replaces the file atomically; on failure says why on standard error.
    static bool saveDocument(const QString& path, ConfigFile* config);
    // The document's problems against the shipped schema on standard error, as
    // "FILE:LINE:COL: message"; true when there are none.
    static bool reportProblems(const QString& label, ConfigFile* config);
};
