#pragma once

#include "command.h"

// Prints what differs between two configurations; exit 1 when they differ.
class DiffCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("diff"); }
    QString synopsis() const override { return QStringLiteral("A B [--format text|json]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
