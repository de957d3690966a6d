#include "childprocess.h"

#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {
// The high-water mark of the resident set of a process that has not yet let go of its memory.
qint64 peakKilobytes(pid_t pid)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong();
    }
    return 0;
}
} // namespace

ChildProcess::Result ChildProcess::run(const QStringList& arguments, const QByteArray& marker,
                                       const QList<QPair<QByteArray, QByteArray>>& environment)
{
    Result result;
    std::vector<QByteArray> argumentBytes;
    for (const QString& argument : arguments)
        argumentBytes.push_back(argument.toLocal8Bit());
    std::vector<char*> argv;
    for (QByteArray& argument : argumentBytes)
        argv.push_back(argument.data());
    argv.push_back(nullptr);

    std::vector<QByteArray> environmentBytes;
    for (char** entry = environ; *entry; ++entry) {
        const QByteArray variable(*entry);
        bool replaced = false;
        for (const auto& setting : environment)
            replaced = replaced || variable.startsWith(setting.first + '=');
        if (!replaced)
            environmentBytes.push_back(variable);
    }
    for (const auto& setting : environment)
        environmentBytes.push_back(setting.first + '=' + setting.second);
    std::vector<char*> envp;
    for (QByteArray& variable : environmentBytes)
        envp.push_back(variable.data());
    envp.push_back(nullptr);

    // A traced child may stop at any signal until it is continued, so its output goes to a
    // file rather than to a pipe that could fill while it waits; a marker has to be read as
    // it comes, so such a child runs untraced through a pipe.
    const bool traced = marker.isEmpty();
    QTemporaryFile outputFile;
    int pipeEnds[2] = { -1, -1 };
    if (traced ? !outputFile.open() : pipe(pipeEnds) != 0)
        return result;
    const int childOutput = traced ? outputFile.handle() : pipeEnds[1];
    QByteArray program = QStandardPaths::findExecutable(arguments.value(0)).toLocal8Bit();
    if (program.isEmpty())
        program = argumentBytes.front();

    QElapsedTimer timer;
    timer.start();
    const pid_t pid = fork();
    if (pid < 0)
        return result;
    if (pid == 0) {
        // Traced, the parent reads the child's peak memory as it exits: the kernel's own
        // figure for a child (ru_maxrss) also counts the parent's memory at the fork, which
        // would hide a small child's peak behind this process's.
        if (traced)
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        dup2(childOutput, STDOUT_FILENO);
        execve(program.constData(), argv.data(), envp.data());
        _exit(127);
    }

    int status = 0;
    if (traced) {
        // Stopped at the exec; from there on it stops at signals and once more as it exits.
        if (waitpid(pid, &status, 0) == pid && WIFSTOPPED(status))
            ptrace(PTRACE_SETOPTIONS, pid, nullptr, reinterpret_cast<void*>(PTRACE_O_TRACEEXIT));
        ptrace(PTRACE_CONT, pid, nullptr, nullptr);
        while (waitpid(pid, &status, 0) == pid && WIFSTOPPED(status)) {
            int signal = 0;
            if (status >> 8 == (SIGTRAP | (PTRACE_EVENT_EXIT << 8)))
                result.peakKilobytes = peakKilobytes(pid);
            else if (WSTOPSIG(status) != SIGTRAP)
                signal = WSTOPSIG(status);
            ptrace(PTRACE_CONT, pid, nullptr, reinterpret_cast<void*>(qintptr(signal)));
        }
        result.wallMicroseconds = timer.nsecsElapsed() / 1000;
        outputFile.seek(0);
        result.output = outputFile.readAll();
    } else {
        close(pipeEnds[1]);
        char buffer[4096];
        for (;;) {
            const ssize_t got = read(pipeEnds[0], buffer, sizeof buffer);
            if (got <= 0)
                break;
            result.output.append(buffer, int(got));
            if (result.markerMicroseconds < 0 && result.output.contains(marker))
                result.markerMicroseconds = timer.nsecsElapsed() / 1000;
        }
        close(pipeEnds[0]);
        waitpid(pid, &status, 0);
        result.wallMicroseconds = timer.nsecsElapsed() / 1000;
    }
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.ok = WIFEXITED(status);
    return result;
}

bool ChildProcess::exists(const QString& program)
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}
