#pragma once

#include "command.h"

// Puts a configuration's sections into the document's own order.
class SortCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("sort"); }
    QString synopsis() const override { return QStringLiteral("FILE"); }
    QString description() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
