#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QStringList>

/*
 * Runs the device's command-line tools (the settings tool, the registry client) by name,
 * found on PATH, in the current directory, and waits for them synchronously on the GUI
 * thread for a bounded time.
 *
 * A tool that outlives the wait is left running, also after the application has ended:
 * killing the settings tool half-way could leave the device in a worse state than
 * letting it finish. Tools therefore get no pipes to the application, which would break
 * when it is gone; their output has never been read.
 */
class TAVLOZELKON_LIB_EXPORT ExternalTool
{
public:
    ExternalTool() = delete;

    static constexpr int DefaultTimeoutMs = 30000;

    struct Result
    {
        enum class Outcome { Finished, NotStarted, Crashed, TimedOut };

        Outcome outcome = Outcome::NotStarted;
        // Meaningful when the tool finished.
        int exitCode = -1;
        // The system's reason when the tool could not be started or crashed.
        QString errorText;

        bool succeeded() const { return outcome == Outcome::Finished && exitCode == 0; }
    };

    static Result execute(const QString& program, const QStringList& arguments, int timeoutMs = DefaultTimeoutMs);
    // The tool's exit code, or -1 when it could not be started, crashed or did not
    // finish within timeoutMs.
    static int run(const QString& program, const QStringList& arguments, int timeoutMs = DefaultTimeoutMs);
};
