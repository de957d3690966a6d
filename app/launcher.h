#pragma once

#include <QCoreApplication>
#include <QStringList>

/*
 * Turns the command line into a running wizard: points the library at the device tree,
 * builds the window, sets the platform, opens the file, and either renders the pages and
 * exits or runs the event loop. main() only creates the application object.
 */
class Launcher
{
    Q_DECLARE_TR_FUNCTIONS(Launcher)

public:
    Launcher() = delete;

    // Process-wide settings, first thing in main(): a write beyond the file-size limit
    // then fails like a full disk (the save is reported and the old file kept) instead of
    // ending the process with SIGXFSZ; and the allocator is tuned for large documents.
    static void prepareProcess();
    // Before the application object exists, which would take some of our options for
    // its own: returns the whole command line for run() and leaves in argc/argv only
    // what the application object may see.
    static QStringList prepareArguments(int& argc, char** argv);
    // Still before the application object, whose creation ends the process when there is
    // no display: refuses a command line that makes no sense, then a window without a
    // display, each with a message. -1 to go on, otherwise the exit code.
    static int checkBeforeStart(const QStringList& arguments);
    // arguments as prepareArguments() returned them. Returns the exit code; runs the
    // event loop unless the arguments ask for something else.
    static int run(const QStringList& arguments);

private:
    // --language, or else the system's language when there is a catalogue for it.
    static void chooseLanguage(const QStringList& arguments);
};
