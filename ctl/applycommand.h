#pragma once

#include "command.h"

// Applies a configuration to this thin client as the wizard's Apply does.
class ApplyCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("apply"); }
    QString synopsis() const override { return QStringLiteral("FILE [--device-root DIR]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
