#include "externaltool.h"

#include <QList>
#include <QProcess>

namespace {
// Tools that did not finish in time. Neither parented nor deleted while they run:
// destroying a QProcess kills its process, and the application object destroys its
// children when it ends. Listed so that they are not mistaken for leaks.
QList<QProcess*>& abandonedTools()
{
    // Never destroyed, so the list outlives every check for leaks at exit.
    static auto* tools = new QList<QProcess*>;
    return *tools;
}

void abandon(QProcess* process)
{
    abandonedTools().append(process);
    QObject::connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), process, [process] {
        abandonedTools().removeOne(process);
        process->deleteLater();
    });
}
} // namespace

ExternalTool::Result ExternalTool::execute(const QString& program, const QStringList& arguments, int timeoutMs)
{
    Result result;
    auto* process = new QProcess;
    // Nothing reads the tools' output, and pipes would break when the application ends: a
    // tool that outlived the wait would then die of SIGPIPE at its next message.
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, arguments, QIODevice::ReadWrite);
    if (!process->waitForStarted(timeoutMs)) {
        result.outcome = Result::Outcome::NotStarted;
        result.errorText = process->errorString();
        delete process;
        return result;
    }
    if (!process->waitForFinished(timeoutMs)) {
        result.outcome = Result::Outcome::TimedOut;
        abandon(process);
        return result;
    }
    if (process->exitStatus() == QProcess::NormalExit) {
        result.outcome = Result::Outcome::Finished;
        result.exitCode = process->exitCode();
    } else {
        result.outcome = Result::Outcome::Crashed;
        result.errorText = process->errorString();
    }
    delete process;
    return result;
}

int ExternalTool::run(const QString& program, const QStringList& arguments, int timeoutMs)
{
    const Result result = execute(program, arguments, timeoutMs);
    return result.outcome == Result::Outcome::Finished ? result.exitCode : -1;
}
