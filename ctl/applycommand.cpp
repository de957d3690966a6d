#include "applycommand.h"

#include "config/configfile.h"
#include "device/externaltool.h"
#include "device/machineroot.h"

#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>

namespace {
const QString DeviceRootOption = QStringLiteral("device-root");
// The settings tool always reads this file in the current directory.
const QString DeviceFile = QStringLiteral("default.tavlocfg");

QString failure(const ExternalTool::Result& result)
{
    switch (result.outcome) {
    case ExternalTool::Result::Outcome::NotStarted:
        return QStringLiteral("the settings tool \"tavlosettings\" could not be started: %1").arg(result.errorText);
    case ExternalTool::Result::Outcome::Crashed:
        return QStringLiteral("the settings tool \"tavlosettings\" stopped before it had finished: %1")
            .arg(result.errorText);
    case ExternalTool::Result::Outcome::TimedOut:
        return QStringLiteral("the settings tool \"tavlosettings\" did not finish within %1 seconds; it has been "
                              "left running and may still apply the configuration")
            .arg(ExternalTool::DefaultTimeoutMs / 1000);
    case ExternalTool::Result::Outcome::Finished:
        break;
    }
    return QStringLiteral("the settings tool \"tavlosettings\" reported a failure (exit code %1)").arg(result.exitCode);
}
} // namespace

QString ApplyCommand::description() const
{
    return QStringLiteral("Applies FILE to this thin client as the wizard's Apply does: it is saved as "
                          "\"default.tavlocfg\" in the current directory and handed to the settings tool "
                          "\"tavlosettings\". A file that is not valid is not applied. --device-root points the "
                          "machine's paths at a copy of a device's tree.");
}

QList<QCommandLineOption> ApplyCommand::options() const
{
    return { { DeviceRootOption, QStringLiteral("The directory that stands for the device's \"/\"."),
               QStringLiteral("DIR") } };
}

int ApplyCommand::execute(const QCommandLineParser& parser, const QStringList& positional)
{
    if (positional.size() != 1)
        return usageError(QStringLiteral("one file to apply"));
    if (parser.isSet(DeviceRootOption)) {
        const QDir root(parser.value(DeviceRootOption));
        if (!root.exists())
            return usageError(QStringLiteral("the device root %1 is no directory").arg(root.path()));
        MachineRoot::setRoot(root.absolutePath());
    }
    ConfigFile config;
    if (!loadDocument(positional.constFirst(), &config) || !reportProblems(positional.constFirst(), &config))
        return Failure;
    // apply() would hand the tool whatever the file held before if saving failed.
    if (!saveDocument(DeviceFile, &config))
        return Failure;
    config.apply(DeviceFile);
    const ExternalTool::Result result = config.lastToolResult();
    if (!result.succeeded()) {
        err() << positional.constFirst() << ": " << failure(result) << '\n';
        return Failure;
    }
    return Success;
}
