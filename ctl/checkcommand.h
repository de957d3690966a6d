#pragma once

#include "command.h"

// Checks files against the schema, problems as FILE:LINE:COL: message.
class CheckCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("check"); }
    QString synopsis() const override { return QStringLiteral("[--schema XSD] FILE..."); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;

protected:
    int execute(const QCommandLineParser& parser, const QStringList& positional) override;
};
