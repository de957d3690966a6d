#include "mergecommand.h"

#include "config/configfile.h"
#include "documentmerge.h"

#include <QCommandLineParser>
#include <QTextStream>

namespace {
const QString OutputOption = QStringLiteral("o");
}

QString MergeCommand::description() const
{
    return QStringLiteral("Layers the OVERLAY files over BASE, in order: a later file wins key by key; connection "
                          "sessions (by id) and printers (by name) are records, and a later record replaces an "
                          "earlier one whole, new records are added; sections and keys only in an earlier file stay. "
                          "The result has the sections in the document's own order and is written to OUT, or to "
                          "standard output; nothing is written when it would not be valid (exit 1).");
}

QList<QCommandLineOption> MergeCommand::options() const
{
    return { { { OutputOption, QStringLiteral("output") },
               QStringLiteral("Write the result to OUT."),
               QStringLiteral("OUT") } };
}

int MergeCommand::execute(const QCommandLineParser& parser, const QStringList& positional)
{
    if (positional.size() < 2)
        return usageError(QStringLiteral("a base and at least one overlay"));
    ConfigFile result;
    if (!loadDocument(positional.constFirst(), &result))
        return Failure;
    for (int i = 1; i < positional.size(); ++i) {
        ConfigFile overlay;
        if (!loadDocument(positional.at(i), &overlay))
            return Failure;
        DocumentMerge::merge(&result, overlay);
    }
    result.sortNodes();

    const QString output = parser.value(OutputOption);
    if (!reportProblems(output.isEmpty() ? QStringLiteral("(merged)") : output, &result))
        return Failure;
    if (output.isEmpty()) {
        out() << result.toString();
        return Success;
    }
    return saveDocument(output, &result) ? Success : Failure;
}
