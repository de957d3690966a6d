#include "faketool.h"

#include <QFile>
#include <QTextStream>

namespace {
QString shellQuote(const QString& text)
{
    QString quoted = text;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}
} // namespace

FakeTool::FakeTool(const QString& name, int exitCode)
    : m_name(name)
    , m_exitCode(exitCode)
{
    m_oldPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(m_dir.path()) + ':' + m_oldPath);
    writeScript();
}

FakeTool::~FakeTool()
{
    qputenv("PATH", m_oldPath);
}

void FakeTool::setExitCode(int exitCode)
{
    m_exitCode = exitCode;
    writeScript();
}

void FakeTool::setDelayMs(int delayMs)
{
    m_delayMs = delayMs;
    writeScript();
}

void FakeTool::setWritesFile(const QString& fileName, const QByteArray& contents)
{
    m_writtenFileName = fileName;
    m_writtenContents = contents;
    QFile payload(m_dir.filePath(QStringLiteral("payload")));
    if (payload.open(QIODevice::WriteOnly))
        payload.write(contents);
    writeScript();
}

void FakeTool::writeScript()
{
    // Arguments are logged one per line after a "--run" line holding the working directory.
    QString script
        = QStringLiteral(
              "#!/bin/sh\nlog=%1\n"
              "{ printf -- '--run %s\\n' \"$(pwd)\"; for a in \"$@\"; do printf '%s\\n' \"$a\"; done; } >> \"$log\"\n")
              .arg(shellQuote(m_dir.filePath(QStringLiteral("log"))));
    if (!m_writtenFileName.isEmpty())
        script += QStringLiteral("cp %1 %2\n")
                      .arg(shellQuote(m_dir.filePath(QStringLiteral("payload"))), shellQuote(m_writtenFileName));
    if (m_delayMs > 0)
        script += QStringLiteral("sleep %1\n").arg(m_delayMs / 1000.0);
    script += QStringLiteral("exit %1\n").arg(m_exitCode);

    QFile file(m_dir.filePath(m_name));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file.write(script.toUtf8());
        file.close();
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
}

QList<FakeTool::Run> FakeTool::runs() const
{
    QList<Run> result;
    QFile file(m_dir.filePath(QStringLiteral("log")));
    if (!file.open(QIODevice::ReadOnly))
        return result;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("--run ")))
            result.append(Run { line.mid(6), {} });
        else if (!result.isEmpty())
            result.last().arguments.append(line);
    }
    return result;
}
