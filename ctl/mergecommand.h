#pragma once

#include "command.h"

// Layers configurations: later files win key by key and record by record.
class MergeCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("merge"); }
    QString synopsis() const override { return QStringLiteral("BASE OVERLAY... [-o OUT]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
