#pragma once

#include "command.h"

// Sets values of a configuration and replaces the file atomically.
class SetCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("set"); }
    QString synopsis() const override { return QStringLiteral("FILE SECTION/KEY=VALUE..."); }
    QString description() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
