#include "getcommand.h"

#include "config/configfile.h"
#include "documentpath.h"

#include <QTextStream>

QString GetCommand::description() const
{
    return QStringLiteral("Prints the value at SECTION/KEY (deeper paths such as browser/general_settings/proxy/port "
                          "work too). Exit 1 when FILE has no such value.");
}

int GetCommand::execute(const QCommandLineParser&, const QStringList& positional)
{
    if (positional.size() != 2)
        return usageError(QStringLiteral("a file and one SECTION/KEY"));
    const QStringList path = DocumentPath::split(positional.at(1));
    if (path.size() < 2)
        return usageError(QStringLiteral("\"%1\" is no SECTION/KEY").arg(positional.at(1)));
    ConfigFile config;
    if (!loadDocument(positional.at(0), &config))
        return Failure;
    const QDomElement element = DocumentPath::find(config.documentElement(), path);
    if (element.isNull() || !element.firstChildElement().isNull()) {
        err() << positional.at(0) << ": no value at " << positional.at(1) << '\n';
        return Failure;
    }
    out() << element.text() << '\n';
    return Success;
}
