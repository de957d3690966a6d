#include "pipeline.h"

#include "config/configfile.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "platform.h"

#include <QElapsedTimer>
#include <QFileInfo>

QStringList Pipeline::stepNames()
{
    return { QStringLiteral("ConfigFile::load"), QStringLiteral("ConnectionModel::loadConfig"),
             QStringLiteral("rename one session + saveConfig"), QStringLiteral("toFormattedString"),
             QStringLiteral("ConfigFile::save") };
}

Pipeline::Times Pipeline::run(const QString& file, Mode mode, const QString& output)
{
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(mode == Mode::Standalone);

    Times times;
    QElapsedTimer timer;
    const auto lap = [&times, &timer] {
        times.steps.append(timer.nsecsElapsed() / 1000);
        timer.restart();
    };
    timer.start();

    ConfigFile config;
    const bool loaded = config.load(file);
    lap();

    ConnectionModel model;
    model.loadConfig(&config);
    lap();

    const QList<ConnectionSession*> sessions = model.connections(QStringLiteral("rdp"))->sessions();
    if (!sessions.isEmpty())
        sessions.at(sessions.size() / 2)->setProperty("name", QStringLiteral("Renamed host"));
    config.setCurrentNodeAsRoot();
    model.saveConfig(&config);
    lap();

    // Not kept: the summary page hands it on at once.
    const bool summarized = !config.toFormattedString().isEmpty();
    lap();

    const bool saved = config.save(output);
    lap();

    for (const QString& type : ConnectionModel::sSupportedConnectionTypes())
        times.sessions += model.connections(type)->sessions().size();
    times.ok = loaded && saved && summarized && QFileInfo(output).size() > 0;
    return times;
}
