#include "connectionmodel.h"

#include "config/configfile.h"
#include "configatom.h"
#include "connectionkindred.h"
#include "connectionsession.h"
#include "device/machineroot.h"
#include "platform.h"

#include <QCoreApplication>
#include <QTime>
#include <QtGlobal>

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

enum class ValueKind { Text, Bool, Int };

struct Field
{
    Field(const char* fieldKey, ValueKind fieldKind)
        : key(fieldKey)
        , name(QLatin1String(fieldKey))
        , kind(fieldKind)
    {
    }

    const char* key;
    // The element name, made once: every element written with it shares the string.
    QString name;
    ValueKind kind;
};

// How one type's section is laid out: the elements of each session in the order they are
// written, and which settings groups the type has.
struct SectionLayout
{
    QList<Field> sessionFields;
    // A "proxy" element in every session, kept as the session's child atom "proxy".
    bool sessionProxy = false;
    // A type-wide "general_settings/proxy", kept as the kind's child atom "general_settings".
    bool generalSettings = false;
};

const QList<Field>& proxyFields()
{
    static const QList<Field> fields {
        { "enable", ValueKind::Bool },
        { "address", ValueKind::Text },
        { "port", ValueKind::Int },
    };
    return fields;
}

SectionLayout sectionLayout(const QString& key)
{
    SectionLayout layout;
    if (key == QLatin1String("parlix")) {
        layout.sessionFields = {
            { "name", ValueKind::Text },    { "region", ValueKind::Text },    { "autostart", ValueKind::Bool },
            { "address", ValueKind::Text }, { "emulation", ValueKind::Text }, { "local_port", ValueKind::Int },
            { "port", ValueKind::Int },     { "transport", ValueKind::Text },
        };
    } else if (key == QLatin1String("browser")) {
        layout.sessionFields = {
            { "name", ValueKind::Text },
            { "autostart", ValueKind::Bool },
            { "url", ValueKind::Text },
        };
        layout.generalSettings = true;
    } else {
        layout.sessionFields = {
            { "name", ValueKind::Text },
            { "autostart", ValueKind::Bool },
            { "address", ValueKind::Text },
        };
        layout.sessionProxy = key == QLatin1String("ica");
    }
    return layout;
}

// Reads the fields from the elements below the cursor, which must be their direct parent.
void readFields(ConfigFile* config, ConfigAtom* atom, const QList<Field>& fields)
{
    for (const Field& field : fields) {
        switch (field.kind) {
        case ValueKind::Text:
            atom->setProperty(field.key, config->value(field.name));
            break;
        case ValueKind::Bool:
            atom->setProperty(field.key, config->boolValue(field.name));
            break;
        case ValueKind::Int:
            atom->setProperty(field.key, config->intValue(field.name));
            break;
        }
    }
}

// Writes the fields below the cursor, which must be an element just added and still
// empty: each field is then new there, so it is appended without first searching for it
// (as setValue() would, to the same effect). Text fields take the variant's text, so a
// boolean stored in one is written as "true"/"false", as setBoolValue() would write it
// (and from the same two strings, rather than a new one per value).
// A missing atom writes the empty values.
void writeFields(ConfigFile* config, const ConfigAtom* atom, const QList<Field>& fields, bool boolAsText)
{
    for (const Field& field : fields) {
        const QVariant value = atom ? atom->property(field.key) : QVariant();
        QString text;
        if (field.kind == ValueKind::Int)
            text = QString::number(value.toInt(), 10);
        else if ((field.kind == ValueKind::Bool && !boolAsText) || value.type() == QVariant::Bool)
            text = ConfigFile::boolText(value.toBool());
        else
            text = value.toString();
        config->createTextNode(field.name, text);
        config->leaveNode();
    }
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
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    qsrand(seed);
    QT_WARNING_POP
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

bool ConnectionModel::containsConnections(const QString& type) const
{
    return m_connections.contains(type);
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

void ConnectionModel::loadConfig(ConfigFile* config)
{
    clear();
    const QStringList keys = sSupportedConnectionTypes();
    for (const QString& key : keys) {
        config->setCurrentNodeAsRoot();
        loadType(config, key);
    }
    config->setCurrentNodeAsRoot();
    loadDesktop(config);
    emit newConfigLoaded();
}

void ConnectionModel::loadType(ConfigFile* config, const QString& key)
{
    if (!config->findNode(key, 0))
        return;
    ConnectionKindred* kind = connections(key);
    kind->disableDirtyFlag();
    const SectionLayout layout = sectionLayout(key);
    const QString proxy = QStringLiteral("proxy");

    if (layout.generalSettings && config->findNode(QStringLiteral("general_settings"), 0)) {
        if (config->findNode(proxy, 0)) {
            readFields(config, kind->atom(QStringLiteral("general_settings")), proxyFields());
            config->leaveNode();
        }
        config->leaveNode();
    }

    const QString sessionElement = QStringLiteral("session");
    for (int index = 0; config->findNode(sessionElement, index); ++index) {
        ConnectionSession& session = kind->session(config->attribute(QStringLiteral("id")));
        readFields(config, &session, layout.sessionFields);
        if (layout.sessionProxy && config->findNode(proxy, 0)) {
            readFields(config, session.atom(proxy), proxyFields());
            config->leaveNode();
        }
        config->leaveNode();
    }

    config->leaveNode();
    // Marking is re-enabled on the whole subtree, which now includes the loaded sessions.
    kind->enableDirtyFlag();
    standaloneSetDirty(*kind);
}

void ConnectionModel::loadDesktop(ConfigFile* config)
{
    if (!config->findNode(QStringLiteral("desktop"), 0))
        return;
    m_desktop->disableDirtyFlag();
    m_desktop->setProperty("kiosk_mode", config->boolValue(QStringLiteral("kiosk_mode")));
    config->leaveNode();
    m_desktop->enableDirtyFlag();
    if (Platform::isStandalone())
        m_desktop->setDirty();
}

void ConnectionModel::saveConfig(ConfigFile* config)
{
    const QStringList keys = sSupportedConnectionTypes();
    // An unchanged type leaves no section behind: on a device the file carries only what
    // the user changed. Every old section goes before the first new one is written, so
    // that a large document is never held twice over, and the new sections reuse the
    // memory of the old ones. The new sections only hold sessions and their settings,
    // never an element named after a type, so each removal finds what it would find
    // between the writes.
    for (const QString& key : keys) {
        config->setCurrentNodeAsRoot();
        config->removeNode(key, 0);
    }
    for (const QString& key : keys) {
        config->setCurrentNodeAsRoot();
        saveType(config, key);
    }
    saveDesktop(config);
}

void ConnectionModel::saveType(ConfigFile* config, const QString& key)
{
    const ConnectionKindred* kind = connections(key);
    if (!kind->isDirty())
        return;
    const SectionLayout layout = sectionLayout(key);
    const QString proxy = QStringLiteral("proxy");

    // The sections are appended without counting their namesakes, an index no one reads.
    config->appendNode(key);
    if (layout.generalSettings) {
        config->appendNode(QStringLiteral("general_settings"));
        config->appendNode(proxy);
        writeFields(config, kind->findAtom(QStringLiteral("general_settings")), proxyFields(), false);
        config->leaveNode();
        config->leaveNode();
    }

    const QList<ConnectionSession*> sessions = kind->sessions();
    for (const ConnectionSession* session : sessions) {
        config->appendNode(QStringLiteral("session"));
        config->setAttributeValue(QStringLiteral("id"), session->id());
        writeFields(config, session, layout.sessionFields, true);
        if (layout.sessionProxy) {
            config->appendNode(proxy);
            writeFields(config, session->findAtom(proxy), proxyFields(), false);
            config->leaveNode();
        }
        config->leaveNode();
    }
    config->leaveNode();
}

void ConnectionModel::saveDesktop(ConfigFile* config)
{
    config->setCurrentNodeAsRoot();
    // Unlike the type sections an earlier "desktop" element is not removed first, so a
    // second one is appended; loading reads the first.
    if (!m_desktop->isDirty())
        return;
    config->appendNode(QStringLiteral("desktop"));
    config->setBoolValue(QStringLiteral("kiosk_mode"), m_desktop->property("kiosk_mode").toBool());
    config->leaveNode();
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

bool ConnectionModel::sIsConnectionTypeAvailable(const QString& key)
{
    const ConnectionType* type = findConnectionType(key);
    return type && type->launcher && MachineRoot::exists(QLatin1String(type->launcher));
}
