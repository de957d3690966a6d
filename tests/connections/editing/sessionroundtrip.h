#pragma once

#include "config/configfile.h"
#include "connections/model/connectionmodel.h"
#include "devicetree.h"
#include "platform.h"
#include "schemacheck.h"

#include <QDomDocument>
#include <QString>

/*
 * What the editor tests share: a machine on which the ICA, terminal emulator and web
 * browser types are available (only those are loaded and saved), on a device, and the
 * trip of a model through a document into a fresh model.
 */
class SessionRoundTrip
{
public:
    SessionRoundTrip()
    {
        for (const char* launcher : { "ica-session-runner", "parlix-runner", "iceweasel-runner" })
            m_tree.addFile(QLatin1String("/usr/bin/") + QLatin1String(launcher));
        Platform::instance()->setStandalone(false);
    }

    static QString document(const QString& sections)
    {
        return QStringLiteral("<zelkon version=\"1.0\">") + sections + QStringLiteral("</zelkon>");
    }

    // Saves the model into the document, which then holds what a saved file would; false
    // also when that is not valid against the schema.
    bool save(ConnectionModel& model)
    {
        if (!m_file.setContent(document(QString())))
            return false;
        model.saveConfig(&m_file);
        const QStringList problems = schemaProblems(m_file.toString().toUtf8());
        for (const QString& problem : problems)
            qWarning("%s", qPrintable(problem));
        return problems.isEmpty();
    }

    // Loads the document into the model.
    void load(ConnectionModel& model) { model.loadConfig(&m_file); }
    bool load(ConnectionModel& model, const QString& sections)
    {
        if (!m_file.setContent(document(sections)))
            return false;
        load(model);
        return true;
    }

    QString text() const { return static_cast<const QDomDocument&>(m_file).toString(-1); }

private:
    DeviceTree m_tree;
    ConfigFile m_file;
};
