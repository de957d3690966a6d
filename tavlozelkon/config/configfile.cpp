#include "configfile.h"

#include "attributeorder.h"
#include "configreader.h"
#include "device/externaltool.h"
#include "domwriter.h"
#include "elementsearch.h"
#include "messagehandler.h"
#include "parseguard.h"
#include "platform.h"
#include "summaryhtml.h"
#include "validationnotice.h"
#include "xmlcharacters.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QSaveFile>
#include <QTextStream>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

namespace {
const QString RootName = QStringLiteral("zelkon");
// The settings tool always works on this file in the current directory.
const QString DeviceSettingsFile = QStringLiteral("default.tavlocfg");
} // namespace

ConfigFile::ConfigFile()
    : m_messageHandler(std::make_unique<MessageHandler>())
    , m_attributeOrder(std::make_unique<AttributeOrder>())
    , m_search(std::make_unique<ElementSearch>())
{
    m_currentNode = *this;
    addXmlVersion();
    addRootNode();
    loadSchema();
    createSectionAliasList();
}

ConfigFile::~ConfigFile() = default;

void ConfigFile::addXmlVersion()
{
    // Qt writes this node as the declaration line of the file.
    appendChild(createProcessingInstruction(QStringLiteral("xml version=\"1.0\" encoding=\"utf-8\""), QString()));
}

void ConfigFile::addRootNode()
{
    QDomElement root = createElement(RootName);
    root.setAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    root.setAttribute(QStringLiteral("creator"), QStringLiteral("zelkon"));
    root.setAttribute(QStringLiteral("creator_version"), QStringLiteral("2.0"));
    appendChild(root);
    m_currentNode = root;
}

// Navigation

bool ConfigFile::findNode(QString name, int index)
{
    if (!m_currentNode.isElement() || index < 0)
        return false;
    const QDomElement top = m_currentNode.toElement();
    // Reading a value asks for index 0 far more often than anything else; that search
    // stops at the first match and leaves the remembered list alone.
    const QDomNode match = index == 0 ? ElementSearch::first(top, name) : m_search->matches(top, name).at(index);
    if (match.isNull())
        return false;
    m_currentNode = match;
    return true;
}

QDomNode ConfigFile::findNode(const QString& name, const QDomNode& start) const
{
    for (QDomNode node = start; !node.isNull(); node = node.nextSibling()) {
        if (node.isElement() && node.toElement().tagName() == name)
            return node;
    }
    return QDomNode();
}

int ConfigFile::addNode(QString name)
{
    if (!m_currentNode.isElement())
        return -1;
    const int count = m_search->count(m_currentNode.toElement(), name);
    appendElement(name);
    return count;
}

bool ConfigFile::appendNode(const QString& name)
{
    if (!m_currentNode.isElement())
        return false;
    appendElement(name);
    return true;
}

void ConfigFile::appendElement(const QString& name)
{
    const QDomElement element = createElement(name);
    m_currentNode.appendChild(element);
    m_search->elementAppended(m_currentNode.toElement(), name);
    m_currentNode = element;
}

bool ConfigFile::leaveNode()
{
    if (m_currentNode.isNull())
        return false;
    const QDomNode parent = m_currentNode.parentNode();
    if (parent.isNull() || !parent.isElement())
        return false;
    m_currentNode = parent;
    return true;
}

bool ConfigFile::removeNode(QString name, int index)
{
    if (!findNode(name, index))
        return false;
    QDomNode parent = m_currentNode.parentNode();
    parent.removeChild(m_currentNode);
    // Also lets go of a list that would keep the removed elements alive.
    m_search->clear();
    m_currentNode = parent;
    return true;
}

void ConfigFile::removeValue(QString key)
{
    removeNode(key, 0);
}

int ConfigFile::nodeCount()
{
    return m_currentNode.childNodes().count();
}

int ConfigFile::namedNodeCount(QString name)
{
    if (!m_currentNode.isElement())
        return 0;
    return m_search->matches(m_currentNode.toElement(), name).count();
}

void ConfigFile::setCurrentNodeAsRoot()
{
    m_search->forgetCounts();
    m_currentNode = findNode(RootName, firstChild());
}

QString ConfigFile::currentNodePath()
{
    QStringList names;
    for (QDomNode node = m_currentNode; !node.isNull() && !node.isDocument(); node = node.parentNode())
        names.prepend(node.nodeName());
    return names.join(QLatin1Char('/'));
}

// Values

QString ConfigFile::value(const QString& key)
{
    if (!findNode(key, 0))
        return QString();
    const QString text = getTextValue();
    leaveNode();
    return text;
}

int ConfigFile::intValue(const QString& key)
{
    return value(key).toInt(nullptr, 10);
}

bool ConfigFile::boolValue(const QString& key)
{
    const QString text = value(key);
    if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    // Files of this format have always read a stored "0" as true; frames rely on it.
    return text == QLatin1String("0");
}

void ConfigFile::setValue(QString key, QString text)
{
    if (findNode(key, 0)) {
        // An element read back as <key/> has no text node, and then the value stays empty.
        changeTextNode(text);
        leaveNode();
    } else {
        createTextNode(key, text);
        leaveNode();
    }
}

void ConfigFile::setIntValue(QString key, int n)
{
    setValue(key, QString::number(n, 10));
}

void ConfigFile::setBoolValue(QString key, bool b)
{
    setValue(key, boolText(b));
}

QString ConfigFile::boolText(bool b)
{
    return b ? QStringLiteral("true") : QStringLiteral("false");
}

void ConfigFile::createTextNode(QString key, QString text)
{
    if (appendNode(key))
        m_currentNode.appendChild(newTextNode(text));
}

QDomText ConfigFile::newTextNode(const QString& text)
{
    // createTextNode() gives every text node its own copy of the node name "#text"; the
    // clones of one text node share it, and a large document holds a text node per value.
    // The prototype belongs to one document object, which load() and clear() may replace.
    if (m_textPrototypeDocument != impl) {
        m_textPrototype = QDomDocument::createTextNode(QString());
        m_textPrototypeDocument = impl;
    }
    QDomText node = m_textPrototype.cloneNode(false).toText();
    node.setData(text);
    return node;
}

// Text and attributes of the cursor element

QDomText ConfigFile::getTextNode()
{
    const QDomNode child = m_currentNode.firstChild();
    return child.isText() ? child.toText() : QDomText();
}

QString ConfigFile::getTextValue()
{
    const QDomText text = getTextNode();
    return text.isNull() ? QString() : text.data();
}

void ConfigFile::changeTextNode(QString text)
{
    QDomText node = getTextNode();
    if (!node.isNull())
        node.setData(text);
}

bool ConfigFile::hasAttribute(QString name) const
{
    return m_currentNode.isElement() && m_currentNode.toElement().hasAttribute(name);
}

QString ConfigFile::attribute(QString name) const
{
    if (!m_currentNode.isElement())
        return QStringLiteral("");
    return m_currentNode.toElement().attribute(name);
}

void ConfigFile::setAttributeValue(QString name, QString value)
{
    if (m_currentNode.isElement())
        m_currentNode.toElement().setAttribute(name, value);
}

// Whole document

void ConfigFile::clear()
{
    m_search->clear();
    m_currentNode = documentElement();
    while (!m_currentNode.firstChild().isNull())
        m_currentNode.removeChild(m_currentNode.firstChild());
}

QString ConfigFile::toString()
{
    return DomWriter(m_attributeOrder.get()).toString(*this, 1);
}

void ConfigFile::sortNodes()
{
    QDomElement root = documentElement();
    if (root.isNull())
        return;
    // A stable bubble sort on the sibling list, so records of one name keep their order.
    bool exchanged = true;
    while (exchanged) {
        exchanged = false;
        QDomNode current = root.firstChild();
        while (!current.isNull() && !current.nextSibling().isNull()) {
            QDomNode next = current.nextSibling();
            if (QString::compare(current.nodeName(), next.nodeName(), Qt::CaseSensitive) > 0) {
                root.removeChild(next);
                root.insertBefore(next, current);
                exchanged = true;
            }
            current = current.nextSibling();
        }
    }
}

// Files

bool ConfigFile::load(QString path)
{
    return load(path, nullptr);
}

bool ConfigFile::load(const QString& path, ConfigReader::Result* result)
{
    if ((Platform::isCe() || Platform::isWes()) && !Platform::isStandalone())
        createDefaultConfigFile();

    auto order = std::make_unique<AttributeOrder>();
    const ConfigReader::Result read = ConfigReader::readFile(path, *this, order.get());
    if (result)
        *result = read;
    // A file that cannot be opened or that the guard refuses leaves the document as it was.
    if (!read.opened || (!read.accepted() && read.parse.verdict != ParseGuard::Verdict::NotWellFormed))
        return false;

    m_search->clear();
    // Half a configuration is worse than none: a file that did not parse empties the document.
    if (!read.accepted())
        QDomNode::clear();
    m_attributeOrder = std::move(order);
    m_currentNode = documentElement();
    return read.accepted();
}

bool ConfigFile::save(const QString& path)
{
    m_fileName = path;
    // Replacing such characters would change the user's values behind their back, and
    // writing them would make a file no strict reader accepts.
    if (!XmlCharacters::firstUnwritable(*this).isNull())
        return false;
    // Written beside the old file and renamed over it only when complete, so a failed
    // save never costs the user the file they had.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextStream stream(&file);
    DomWriter(m_attributeOrder.get()).save(*this, stream, 1);
    if (stream.status() != QTextStream::Ok) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

QString ConfigFile::unwritablePath() const
{
    QStringList names;
    for (QDomNode node = XmlCharacters::firstUnwritable(*this); !node.isNull() && !node.isDocument();
         node = node.parentNode()) {
        if (node.isElement())
            names.prepend(node.nodeName());
    }
    return names.join(QLatin1Char('/'));
}

void ConfigFile::setfilename(QString name)
{
    if (!name.trimmed().isEmpty())
        m_fileName = name;
}

QString ConfigFile::getfilename()
{
    return m_fileName;
}

void ConfigFile::createDefaultConfigFile()
{
    // The tool writes the device's current settings; whether it managed to is not ours to judge.
    m_lastToolResult = ExternalTool::execute(
        QStringLiteral("tavlosettings"),
        { QStringLiteral("-settings"), DeviceSettingsFile, QStringLiteral("-get"), QStringLiteral("all") });
}

void ConfigFile::apply(const QString& path)
{
    save(path);
    // The tool is always handed the device file, whatever path was saved; the summary page
    // applies by saving under exactly that name.
    m_lastToolResult = ExternalTool::execute(
        QStringLiteral("tavlosettings"),
        { QStringLiteral("-settings"), DeviceSettingsFile, QStringLiteral("-set"), QStringLiteral("all") });
}

// Validation

void ConfigFile::loadSchema()
{
    // No schema ships with the wizard; a host that has one passes it to setSchema().
}

bool ConfigFile::setSchema(const QByteArray& schemaData)
{
    if (!m_schema) {
        m_schema = std::make_unique<QXmlSchema>();
        m_schema->setMessageHandler(m_messageHandler.get());
    }
    return m_schema->load(schemaData) && m_schema->isValid();
}

bool ConfigFile::validate()
{
    if (!m_schema || !m_schema->isValid())
        return false;

    const QByteArray data = toString().toUtf8();
    QXmlSchemaValidator validator(*m_schema);
    validator.setMessageHandler(m_messageHandler.get());
    if (validator.validate(data, QUrl())) {
        const QString text = tr("The configuration file is valid.");
        qDebug().noquote() << text;
        ValidationNotice::tell(tr("Validation"), text);
        m_valid = true;
    } else {
        m_errorMessage = m_messageHandler->description();
        const QString text = tr("The configuration file is invalid. ");
        qDebug().noquote() << text + QLatin1Char('"') + m_errorMessage + QLatin1Char('"');
        ValidationNotice::tell(tr("Validation"), text + m_errorMessage);
        m_valid = false;
    }
    return m_valid;
}

// The HTML summary

void ConfigFile::createSectionAliasList()
{
    m_sectionAliases.insert(QStringLiteral("time_zone"), QLatin1String(QT_TR_NOOP("Time Zone")));
    m_sectionAliases.insert(QStringLiteral("timezone"), QLatin1String(QT_TR_NOOP("Time Zone")));
    m_sectionAliases.insert(QStringLiteral("system_locale"), QLatin1String(QT_TR_NOOP("Locale")));
    m_sectionAliases.insert(QStringLiteral("corrand"), QLatin1String(QT_TR_NOOP("Corrand")));
    m_sectionAliases.insert(QStringLiteral("pellam"), QLatin1String(QT_TR_NOOP("Pellam")));
    m_sectionAliases.insert(QStringLiteral("color_depth"), QLatin1String(QT_TR_NOOP("Color Depth")));
    m_sectionAliases.insert(QStringLiteral("refresh_rate"), QLatin1String(QT_TR_NOOP("Refresh Rate")));
    m_sectionAliases.insert(QStringLiteral("multi_monitor_mode"), QLatin1String(QT_TR_NOOP("Multi Monitor Mode")));
    m_sectionAliases.insert(QStringLiteral("primary_monitor"), QLatin1String(QT_TR_NOOP("Primary Monitor")));
    m_sectionAliases.insert(QStringLiteral("screen_saver_delay"), QLatin1String(QT_TR_NOOP("Screen Saver On")));
    m_sectionAliases.insert(QStringLiteral("ssid"), QLatin1String(QT_TR_NOOP("SSID")));
    m_sectionAliases.insert(QStringLiteral("read_only"), QLatin1String(QT_TR_NOOP("Read Only")));
    m_sectionAliases.insert(QStringLiteral("cda"), QLatin1String(QT_TR_NOOP("CDA")));
    m_sectionAliases.insert(QStringLiteral("ica"), QLatin1String(QT_TR_NOOP("ICA")));
    m_sectionAliases.insert(QStringLiteral("rdp"), QLatin1String(QT_TR_NOOP("RDP")));
    m_sectionAliases.insert(QStringLiteral("vmware"), QLatin1String(QT_TR_NOOP("VMware View")));
    m_sectionAliases.insert(QStringLiteral("xenapp"), QLatin1String(QT_TR_NOOP("XenApp")));
    m_sectionAliases.insert(QStringLiteral("browser"), QLatin1String(QT_TR_NOOP("Web Browser")));
    m_sectionAliases.insert(QStringLiteral("general_settings"), QLatin1String(QT_TR_NOOP("General Settings")));
}

QString ConfigFile::sectionAlias(const QString& name)
{
    // The map holds the source texts, so that the labels follow a language switch.
    const auto alias = m_sectionAliases.constFind(name);
    if (alias != m_sectionAliases.constEnd())
        return tr(alias.value().toLatin1().constData());
    if (name.isEmpty())
        return name;
    return name.left(1).toUpper() + name.mid(1);
}

QString ConfigFile::toFormattedString()
{
    const QDomNode root = findNode(RootName, firstChild());
    if (root.isNull())
        return QString();
    // Everything is appended to one string: pieces built apart and then added would each
    // be a second copy of up to a whole section, and the summary of a large file is
    // several times the file's size.
    SummaryHtml html(*this);
    for (QDomElement section = root.firstChildElement(); !section.isNull(); section = section.nextSiblingElement())
        html.appendSection(section);
    return html.take();
}

QString ConfigFile::elementToString(QDomElement& section)
{
    SummaryHtml html(*this);
    html.appendSection(section);
    return html.take();
}

QString ConfigFile::sessionToString(QDomElement& element)
{
    SummaryHtml html(*this);
    html.appendSession(element);
    return html.take();
}

QString ConfigFile::generalSettingsToString(QDomElement& element)
{
    SummaryHtml html(*this);
    html.appendGeneralSettings(element);
    return html.take();
}

QString ConfigFile::proxySettingsToString(QDomElement& element)
{
    SummaryHtml html(*this);
    html.appendProxySettings(element);
    return html.take();
}
