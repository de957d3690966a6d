#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/*
 * The wizard's command line: the target platform, standalone mode, a device tree to
 * behave as, a directory to render the pages into, the user interface language, and the
 * configuration file to open.
 * Parsing never exits the process; the caller decides what to print and return.
 */
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    // arguments includes the program name, as QCoreApplication::arguments() has it. False
    // when they make no sense; errorText() says why.
    bool parse(const QStringList& arguments);
    QString errorText() const { return m_error; }
    QString helpText() const;

    bool helpRequested() const { return m_help; }
    bool versionRequested() const { return m_version; }
    // An index into Platform::list(), or -1 when no platform was asked for.
    int platformIndex() const { return m_platformIndex; }
    bool standalone() const { return m_standalone; }
    QString deviceRoot() const { return m_deviceRoot; }
    QString screenshotDirectory() const { return m_screenshotDirectory; }
    QString fileName() const { return m_fileName; }
    // An available language code, or empty when the system's language is to be used.
    QString language() const { return m_language; }

private:
    QCommandLineParser m_parser;
    QString m_error;
    bool m_help = false;
    bool m_version = false;
    int m_platformIndex = -1;
    bool m_standalone = false;
    QString m_deviceRoot;
    QString m_screenshotDirectory;
    QString m_fileName;
    QString m_language;
};
