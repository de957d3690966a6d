#include "externaltool.h"

#include <QCoreApplication>
#include <QProcess>

int ExternalTool::run(const QString& program, const QStringList& arguments, int timeoutMs)
{
    auto* process = new QProcess(QCoreApplication::instance());
    process->start(program, arguments, QIODevice::ReadWrite);
    if (!process->waitForStarted(timeoutMs)) {
        delete process;
        return -1;
    }
    if (!process->waitForFinished(timeoutMs)) {
        // Killing the device's settings tool half-way could leave the device in a worse
        // state than letting it finish; the application object reaps it.
        return -1;
    }
    const int code = process->exitStatus() == QProcess::NormalExit ? process->exitCode() : -1;
    delete process;
    return code;
}
