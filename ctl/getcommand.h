#pragma once

#include "command.h"

// Prints one value of a configuration.
class GetCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("get"); }
    QString synopsis() const override { return QStringLiteral("FILE SECTION/KEY"); }
    QString description() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
