#pragma once

#include "configreader.h"
#include "device/externaltool.h"
#include "tavlozelkon_lib_export.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QMap>
#include <QString>
#include <memory>

class AttributeOrder;
class ElementSearch;
class MessageHandler;
class QXmlSchema;

/*
 * The one configuration document the whole wizard edits: an XML DOM document below a
 * "zelkon" root plus a single movable cursor. Pages, frames and models move the cursor
 * into their section and read or write small leaf elements whose text is the value.
 * The document is what is loaded from and saved to ".tavlocfg" files, validated,
 * rendered as the HTML summary and applied to the device.
 *
 * Failures are results (false, -1, empty strings), never exceptions; file errors are
 * silent at this level, but load() and save() also say whether they succeeded so that an
 * application can tell its user.
 *
 * Walking a record list by index and appending records one by one cost time in
 * proportion to the list, not to its square (see ElementSearch). Changes made through
 * the QDomDocument interface instead of this class's own calls are noticed at the next
 * setCurrentNodeAsRoot(), clear() or load(), which is where such callers hand the cursor
 * back to the document anyway.
 */
class TAVLOZELKON_LIB_EXPORT ConfigFile : public QDomDocument
{
    Q_DECLARE_TR_FUNCTIONS(ConfigFile)

public:
    ConfigFile();
    ~ConfigFile();
    ConfigFile(const ConfigFile&) = delete;
    ConfigFile& operator=(const ConfigFile&) = delete;

    // Navigation, relative to the cursor.
    bool findNode(QString name, int index);
    QDomNode findNode(const QString& name, const QDomNode& start) const;
    int addNode(QString name);
    // addNode() without its index, for callers that ignore it: counting the namesakes
    // walks the cursor's whole subtree, the whole document when the cursor is the root.
    // False, and nothing appended, when the cursor is not an element.
    bool appendNode(const QString& name);
    bool leaveNode();
    bool removeNode(QString name, int index);
    void removeValue(QString key);
    int nodeCount();
    int namedNodeCount(QString name);
    void setCurrentNodeAsRoot();
    QString currentNodePath();
    QDomNode currentNode() const { return m_currentNode; }

    // Values: leaf elements below the cursor, found at any depth.
    QString value(const QString& key);
    int intValue(const QString& key);
    bool boolValue(const QString& key);
    void setValue(QString key, QString text);
    void setIntValue(QString key, int n);
    void setBoolValue(QString key, bool b);
    // How the document stores a boolean: "true" or "false".
    static QString boolText(bool b);
    void createTextNode(QString key, QString text);

    // Text and attributes of the cursor element.
    QDomText getTextNode();
    QString getTextValue();
    void changeTextNode(QString text);
    bool hasAttribute(QString name) const;
    QString attribute(QString name) const;
    void setAttributeValue(QString name, QString value);

    // Whole document.
    void clear();
    QString toString();
    void sortNodes();

    // Files. load() and save() return whether the file could be read or written; the
    // document's own callers may ignore that, as the wizard's pages do. load() refuses,
    // leaving the document as it was, a file that ParseGuard does not accept for its size,
    // depth or amount of text; a file that is not well-formed leaves an empty document.
    bool load(QString path);
    // The same, telling in result why a file could not be loaded.
    bool load(const QString& path, ConfigReader::Result* result);
    // Fails, leaving the file as it was, when a value holds a character that an XML file
    // cannot hold (NUL, most control characters, half of a surrogate pair).
    bool save(const QString& path);
    // The element path ("zelkon/rdp/session/name") of the first such value; empty when
    // the document can be saved.
    QString unwritablePath() const;
    void setfilename(QString name);
    QString getfilename();
    void createDefaultConfigFile();
    void apply(const QString& path);
    // What the settings tool did when createDefaultConfigFile() or apply() last ran it.
    // The document stays silent about it; an application may tell its user.
    ExternalTool::Result lastToolResult() const { return m_lastToolResult; }

    // Validation against an XML schema. No schema is loaded by default; a host supplies
    // one with setSchema().
    void loadSchema();
    bool setSchema(const QByteArray& schemaData);
    bool validate();
    bool isValid() const { return m_valid; }
    QString errorMessage() const { return m_errorMessage; }

    // The HTML summary.
    QString sectionAlias(const QString& name);
    QString toFormattedString();
    QString elementToString(QDomElement& section);
    QString sessionToString(QDomElement& element);
    QString generalSettingsToString(QDomElement& element);
    QString proxySettingsToString(QDomElement& element);

private:
    void addXmlVersion();
    void addRootNode();
    // Appends an element called name to the cursor and moves the cursor onto it; the
    // cursor must be an element.
    void appendElement(const QString& name);
    void createSectionAliasList();
    QDomText newTextNode(const QString& text);

    QDomNode m_currentNode;
    bool m_valid = false;
    QString m_errorMessage;
    // Made when a schema is supplied: the first schema object of a process costs more
    // than the rest of the document, and most never validate.
    std::unique_ptr<QXmlSchema> m_schema;
    std::unique_ptr<MessageHandler> m_messageHandler;
    QMap<QString, QString> m_sectionAliases;
    QString m_fileName;
    ExternalTool::Result m_lastToolResult;
    // Kept so that saving writes attributes in a stable order (see AttributeOrder).
    std::unique_ptr<AttributeOrder> m_attributeOrder;
    std::unique_ptr<ElementSearch> m_search;
    QDomText m_textPrototype;
    const void* m_textPrototypeDocument = nullptr;
};
