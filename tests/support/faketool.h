#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/*
 * A stand-in for a device tool (tavlosettings, tregctl): a small shell script put first
 * on PATH for the lifetime of the object. Every run appends its working directory and
 * arguments to a log, optionally writes a file into its working directory, and exits
 * with the chosen code.
 */
class FakeTool
{
public:
    explicit FakeTool(const QString& name, int exitCode = 0);
    ~FakeTool();
    FakeTool(const FakeTool&) = delete;
    FakeTool& operator=(const FakeTool&) = delete;

    void setExitCode(int exitCode);
    // Each run takes at least that long, as a device's tool may.
    void setDelayMs(int delayMs);
    // Each run writes contents to fileName in its working directory.
    void setWritesFile(const QString& fileName, const QByteArray& contents);

    struct Run
    {
        QString workingDirectory;
        QStringList arguments;
    };
    QList<Run> runs() const;

private:
    void writeScript();

    QString m_name;
    QTemporaryDir m_dir;
    int m_exitCode;
    int m_delayMs = 0;
    QString m_writtenFileName;
    QByteArray m_writtenContents;
    QByteArray m_oldPath;
};
