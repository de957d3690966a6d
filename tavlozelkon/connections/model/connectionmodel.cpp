#include "connectionmodel.h"

#include "configatom.h"
#include "connectionkindred.h"
#include "connectionsession.h"
#include "device/machineroot.h"
#include "platform.h"

#include <QCoreApplication>
#include <QTime>
#include <QtGlobal>
#include <cstdlib>

namespace {

const char* const categoryClassics = QT_TRANSLATE_NOOP("ConnectionModel", "Classics");
const char* const categoryBrokers = QT_TRANSLATE_NOOP("ConnectionModel", "VDI connection brokers");

struct ConnectionType
{
    const char* key;
    const char* displayName;
    // Null for the types the selector never offers.
    const char* category;
    // Null for the types that are never available.
    const char* launcher;
};

// The selector shows the offered types in this order.
const ConnectionType connectionTypes[] = {
    { "rdp", QT_TRANSLATE_NOOP("ConnectionModel", "RDP"), categoryClassics, "/usr/bin/rdesktop-runner" },
    { "ica", QT_TRANSLATE_NOOP("ConnectionModel", "ICA"), categoryClassics, "/usr/bin/ica-session-runner" },
    { "parlix", QT_TRANSLATE_NOOP("ConnectionModel", "Parlix"), categoryClassics, "/usr/bin/parlix-runner" },
    { "browser", QT_TRANSLATE_NOOP("ConnectionModel", "Web Browser"), categoryClassics, "/usr/bin/iceweasel-runner" },
    // Categorised but without a launcher, so it never reaches the selector.
    { "cda", QT_TRANSLATE_NOOP("ConnectionModel", "CDA mode"), categoryClassics, nullptr },
    { "vmware", QT_TRANSLATE_NOOP("ConnectionModel", "VMware View"), categoryBrokers, "/usr/bin/view-runner" },
    { "xenapp", QT_TRANSLATE_NOOP("ConnectionModel", "XenApp"), categoryBrokers, "/usr/bin/pnagent-runner" },
    { "leostream", QT_TRANSLATE_NOOP("ConnectionModel", "Leostream"), nullptr, nullptr },
    { "glimt", QT_TRANSLATE_NOOP("ConnectionModel", "Glimt"), nullptr, nullptr },
    { "hollis", QT_TRANSLATE_NOOP("ConnectionModel", "Hollis"), nullptr, nullptr },
    { "ssh", QT_TRANSLATE_NOOP("ConnectionModel", "SSH"), nullptr, nullptr },
    { "telnet", QT_TRANSLATE_NOOP("ConnectionModel", "Telnet"), nullptr, nullptr },
    { "vworkspace", QT_TRANSLATE_NOOP("ConnectionModel", "vWorkspace"), nullptr, nullptr },
    { "xdmcp", QT_TRANSLATE_NOOP("ConnectionModel", "XDMCP"), nullptr, nullptr },
};

const ConnectionType* findConnectionType(const QString& key)
{
    for (const ConnectionType& type : connectionTypes) {
        if (key == QLatin1String(type.key))
            return &type;
    }
    return nullptr;
}

QString translated(const char* text)
{
    return QCoreApplication::translate("ConnectionModel", text);
}

} // namespace

const QString ConnectionModel::smCDA_MODE_ID = QStringLiteral("smCDA_MODE_ID");

ConnectionModel::ConnectionModel(QObject* parent)
    : QObject(parent)
    , m_desktop(new ConfigAtom(QStringLiteral("desktop")))
{
    const QTime now = QTime::currentTime();
    const uint seed = uint(now.msec() + 1000 * now.second() + 100000 * now.minute() + 10000000 * now.hour());
    // qsrand() is compiled out together with the rest of Qt's deprecated API; the C
    // library's generator is its nearest stand-in.
    std::srand(seed);
}

ConnectionModel::~ConnectionModel()
{
    qDeleteAll(m_connections);
    qDeleteAll(m_dropped);
}

ConnectionKindred* ConnectionModel::connections(const QString& type)
{
    ConnectionKindred*& kind = m_connections[type];
    if (!kind)
        kind = new ConnectionKindred(type);
    return kind;
}

ConnectionSession* ConnectionModel::session(const QString& id)
{
    for (ConnectionKindred* kind : qAsConst(m_connections)) {
        if (kind->containsSession(id))
            return &kind->session(id);
    }
    return new ConnectionSession(QString(), nullptr);
}

QString ConnectionModel::connectionTypeOf(const QString& id)
{
    for (auto it = m_connections.cbegin(); it != m_connections.cend(); ++it) {
        if (it.value()->containsSession(id))
            return it.key();
    }
    return QString();
}

QList<ConnectionSession*> ConnectionModel::sessionsByName(const QString& name) const
{
    QList<ConnectionSession*> result;
    for (ConnectionKindred* kind : m_connections) {
        const QList<ConnectionSession*> sessions = kind->sessions();
        for (ConnectionSession* session : sessions) {
            if (session->property("name").toString() == name)
                result.append(session);
        }
    }
    return result;
}

bool ConnectionModel::deleteSession(const QString& id)
{
    for (ConnectionKindred* kind : qAsConst(m_connections)) {
        if (kind->containsSession(id))
            return kind->deleteSession(id);
    }
    return false;
}

void ConnectionModel::clear()
{
    m_dropped.append(m_connections.values());
    m_connections.clear();
    m_desktop.reset(new ConfigAtom(QStringLiteral("desktop")));
}

ConfigAtom* ConnectionModel::desktopConfig()
{
    return m_desktop.get();
}

void ConnectionModel::standaloneSetDirty(ConnectionKindred& kind)
{
    if (Platform::isStandalone())
        kind.setDirty();
}

QString ConnectionModel::toDebugString() const
{
    QString text;
    const auto describe = [&text](const ConfigAtom* atom, int depth, const auto& self) -> void {
        text += QString(2 * depth, QLatin1Char(' ')) % atom->name()
            % (atom->isDirty() ? QLatin1String(" (dirty)") : QLatin1String("")) % QLatin1Char('\n');
        const QList<QByteArray> names = atom->propertyNames();
        for (const QByteArray& name : names) {
            text += QString(2 * depth + 2, QLatin1Char(' ')) % QString::fromLatin1(name) % QLatin1String(" = ")
                % atom->property(name.constData()).toString() % QLatin1Char('\n');
        }
        const QList<ConfigAtom*> children = atom->atoms();
        for (const ConfigAtom* child : children)
            self(child, depth + 1, self);
    };
    for (const ConnectionKindred* kind : m_connections)
        describe(kind, 0, describe);
    describe(m_desktop.get(), 0, describe);
    return text;
}

QList<QPair<QString, QString>> ConnectionModel::sCategorizedConnectionTypes()
{
    QList<QPair<QString, QString>> result;
    for (const ConnectionType& type : connectionTypes) {
        const QString key = QLatin1String(type.key);
        if (type.category && sIsConnectionTypeAvailable(key))
            result.append(qMakePair(translated(type.category), key));
    }
    return result;
}

QStringList ConnectionModel::sSupportedConnectionTypes()
{
    QStringList keys;
    const QList<QPair<QString, QString>> categorized = sCategorizedConnectionTypes();
    for (const auto& entry : categorized) {
        if (!keys.contains(entry.second))
            keys.append(entry.second);
    }
    return keys;
}

QString ConnectionModel::sGetConnectionTypeName(const QString& key)
{
    const ConnectionType* type = findConnectionType(key);
    return type ? translated(type->displayName) : QString();
}

QIcon ConnectionModel::sGetConnectionTypeIcon(const QString& key, int size)
{
    const QString name = QStringLiteral(":/%1Icon%2").arg(key).arg(size);
    QIcon icon(name);
    if (icon.isNull())
        icon = QIcon(name + QLatin1String(".svg"));
    return icon;
}

bool ConnectionModel::sIsConnectionTypeAvailable(const QString& key)
{
    const ConnectionType* type = findConnectionType(key);
    return type && type->launcher && MachineRoot::exists(QLatin1String(type->launcher));
}
