#include "sortcommand.h"

#include "config/configfile.h"

QString SortCommand::description() const
{
    return QStringLiteral("Sorts the sections of FILE by name, as the wizard orders them, keeping the keys and "
                          "records inside each section in their order, and replaces FILE atomically.");
}

int SortCommand::execute(const QCommandLineParser&, const QStringList& positional)
{
    if (positional.size() != 1)
        return usageError(QStringLiteral("one file to sort"));
    ConfigFile config;
    if (!loadDocument(positional.constFirst(), &config))
        return Failure;
    config.sortNodes();
    return saveDocument(positional.constFirst(), &config) ? Success : Failure;
}
