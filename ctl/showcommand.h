#pragma once

#include "command.h"

// Prints the summary of a configuration.
class ShowCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("show"); }
    QString synopsis() const override { return QStringLiteral("FILE [--format html|text|json] [--reveal]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
