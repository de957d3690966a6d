#include "zelkonctl.h"

#include "applycommand.h"
#include "checkcommand.h"
#include "diffcommand.h"
#include "getcommand.h"
#include "mergecommand.h"
#include "setcommand.h"
#include "showcommand.h"
#include "sortcommand.h"

#include <QCoreApplication>
#include <QTextStream>

ZelkonCtl::ZelkonCtl()
{
    m_commands.push_back(std::make_unique<CheckCommand>());
    m_commands.push_back(std::make_unique<ShowCommand>());
    m_commands.push_back(std::make_unique<DiffCommand>());
    m_commands.push_back(std::make_unique<GetCommand>());
    m_commands.push_back(std::make_unique<SetCommand>());
    m_commands.push_back(std::make_unique<SortCommand>());
    m_commands.push_back(std::make_unique<MergeCommand>());
    m_commands.push_back(std::make_unique<ApplyCommand>());
}

ZelkonCtl::~ZelkonCtl() = default;

int ZelkonCtl::run(const QStringList& arguments)
{
    const QString first = arguments.value(1);
    if (first == QLatin1String("--help") || first == QLatin1String("-h") || first == QLatin1String("help")) {
        printHelp();
        return Command::Success;
    }
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        Command::out() << "zelkonctl " << QCoreApplication::applicationVersion() << '\n';
        Command::out().flush();
        return Command::Success;
    }
    for (const auto& command : m_commands) {
        if (command->name() == first)
            return command->run(arguments.mid(1));
    }
    Command::err() << (first.isEmpty() ? QStringLiteral("zelkonctl: no command given")
                                       : QStringLiteral("zelkonctl: unknown command \"%1\"").arg(first))
                   << "\nTry \"zelkonctl --help\".\n";
    Command::err().flush();
    return Command::UsageError;
}

void ZelkonCtl::printHelp() const
{
    QTextStream& out = Command::out();
    out << "Usage: zelkonctl COMMAND [ARGUMENTS]\n\n"
           "Checks, shows, compares, edits, merges and applies Zelkon configurations (.tavlocfg)\n"
           "without a window.\n\nCommands:\n";
    for (const auto& command : m_commands)
        out << "  " << command->name() << ' ' << command->synopsis() << '\n';
    out << "\n  zelkonctl COMMAND --help    what a command does and its options\n"
           "  zelkonctl --version         the version\n\n"
           "Exit codes: 0 success (valid, equal), 1 failure (invalid, different, not found), 2 usage error.\n";
    out.flush();
}
