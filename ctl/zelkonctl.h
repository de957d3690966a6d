#pragma once

#include <QStringList>
#include <memory>
#include <vector>

class Command;

/*
 * The command-line tool for configurations without a window: picks the subcommand named
 * by the first argument and runs it. It never opens a window or a message box, so it
 * runs on a server without a display.
 */
class ZelkonCtl
{
public:
    ZelkonCtl();
    ~ZelkonCtl();
    ZelkonCtl(const ZelkonCtl&) = delete;
    ZelkonCtl& operator=(const ZelkonCtl&) = delete;

    // arguments as the application got them, the program's name first; the exit code.
    int run(const QStringList& arguments);

private:
    void printHelp() const;

    std::vector<std::unique_ptr<Command>> m_commands;
};
