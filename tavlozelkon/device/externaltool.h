#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QStringList>

/*
 * Runs the device's command-line tools (the settings tool, the registry client) by name,
 * found on PATH, in the current directory, and waits for them synchronously on the GUI
 * thread for a bounded time.
 */
class TAVLOZELKON_LIB_EXPORT ExternalTool
{
public:
    ExternalTool() = delete;

    static constexpr int DefaultTimeoutMs = 30000;

    // The tool's exit code, or -1 when it could not be started, crashed or did not
    // finish within timeoutMs. A tool still running after the time-out is left running,
    // owned by the application object, rather than killed.
    static int run(const QString& program, const QStringList& arguments, int timeoutMs = DefaultTimeoutMs);
};
