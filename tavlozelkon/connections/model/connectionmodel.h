#pragma once

#include "tavlozelkon_lib_export.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>
#include <memory>

class ConfigAtom;
class ConfigFile;
class ConnectionKindred;
class ConnectionSession;
class QIcon;

/*
 * All remote connections of the configuration being edited, grouped by connection type
 * (one ConnectionKindred per type key, iterated in ascending key order), plus the
 * desktop settings (kiosk mode). The connection pages read and edit it; loadConfig() and
 * saveConfig() move it to and from the configuration document, where each type's section
 * is rewritten whole when the type changed and removed when it did not.
 *
 * The static functions are the catalogue of connection types: which exist, how they are
 * called and drawn, and which can be used on the machine running the wizard (decided by
 * the presence of the type's launcher, probed afresh on every call).
 */
class TAVLOZELKON_LIB_EXPORT ConnectionModel : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionModel)

public:
    explicit ConnectionModel(QObject* parent = nullptr);
    ~ConnectionModel() override;

    // Created empty when missing.
    ConnectionKindred* connections(const QString& type);
    // Whether the type was asked for or loaded; unlike connections() it never adds one.
    bool containsConnections(const QString& type) const;
    // The session from the first type (in key order) holding the id; otherwise a new
    // parentless session with a fresh id, owned by the caller.
    ConnectionSession* session(const QString& id);
    QString connectionTypeOf(const QString& id);
    QList<ConnectionSession*> sessionsByName(const QString& name) const;
    bool deleteSession(const QString& id);
    void clear();
    ConfigAtom* desktopConfig();

    // Standalone, everything loaded is written back; on a device only what was edited.
    void standaloneSetDirty(ConnectionKindred& kind);

    void loadConfig(ConfigFile* config);
    void saveConfig(ConfigFile* config);

    QString toDebugString() const;

    // The catalogue.
    static QList<QPair<QString, QString>> sCategorizedConnectionTypes();
    static QStringList sSupportedConnectionTypes();
    static QString sGetConnectionTypeName(const QString& key);
    // Defined in the widget library, beside the icons it loads: a process without a GUI
    // has no use for icons and need not load Qt's GUI module for them.
    static QIcon sGetConnectionTypeIcon(const QString& key, int size);
    static bool sIsConnectionTypeAvailable(const QString& key);

    static const QString smCDA_MODE_ID;

signals:
    void newConfigLoaded();

private:
    void loadType(ConfigFile* config, const QString& key);
    void saveType(ConfigFile* config, const QString& key);
    void loadDesktop(ConfigFile* config);
    void saveDesktop(ConfigFile* config);

    QMap<QString, ConnectionKindred*> m_connections;
    std::unique_ptr<ConfigAtom> m_desktop;
    // Kinds dropped by clear(); editors may still point into them until they refresh,
    // so they live as long as the model.
    QList<ConnectionKindred*> m_dropped;
};
