#include "dombuilder.h"

#include "attributeorder.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QVarLengthArray>
#include <QXmlStreamReader>
#include <algorithm>

namespace {
// Qt's parser drops character data that is nothing but white space in its own, wider
// sense (QChar::isSpace(), which takes in no-break spaces too).
bool isBlank(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
}
// A copy of the reader's text of exactly its size. QStringRef::toString() would share the
// reader's whole buffer, capacity and all, when the text fills it.
QString copied(const QStringRef& text)
{
    return text.isNull() ? QString() : QString(text.unicode(), text.size());
}
} // namespace

DomBuilder::DomBuilder(AttributeOrder& order, const QByteArray& content)
    : m_order(order)
    , m_content(content)
{
    m_order.clear();
    // The prototype must come from this document: a node knows its owner only by a pointer
    // that does not keep the owner alive.
    m_textPrototype = m_document.createTextNode(QString());
    m_parent = m_document;
}

void DomBuilder::token(const QXmlStreamReader& reader)
{
    const QXmlStreamReader::TokenType type = reader.tokenType();
    // Noted also after giving up, for pairing with the DOM parser's document.
    const bool noted = type == QXmlStreamReader::StartElement && m_order.noteElement(reader);
    if (m_gaveUp)
        return;
    if (type != QXmlStreamReader::Characters || reader.isCDATA()) {
        flushText();
        if (m_gaveUp)
            return;
    }
    switch (type) {
    case QXmlStreamReader::StartDocument: {
        // The DOM parser keeps the declaration as an instruction whose data it writes anew
        // in single quotes.
        if (reader.documentVersion().isEmpty())
            break;
        if (!isPlainDeclaration()) {
            giveUp();
            break;
        }
        QString data = QLatin1String("version='") + reader.documentVersion() + QLatin1Char('\'');
        if (!reader.documentEncoding().isEmpty())
            data += QLatin1String(" encoding='") + reader.documentEncoding() + QLatin1Char('\'');
        if (reader.isStandaloneDocument())
            data += QLatin1String(" standalone='yes'");
        m_document.appendChild(m_document.createProcessingInstruction(QStringLiteral("xml"), data));
        break;
    }
    case QXmlStreamReader::StartElement:
        startElement(reader, noted);
        break;
    case QXmlStreamReader::EndElement:
        // The stream reader may show an end tag without a start before it calls the file
        // not well-formed; what was built is thrown away then.
        if (!m_parent.isDocument())
            m_parent = m_parent.parentNode();
        break;
    case QXmlStreamReader::Characters:
        if (reader.isCDATA()) {
            const QString text = copied(reader.text());
            if (differsFromParser(text)) {
                giveUp();
                break;
            }
            m_parent.appendChild(m_document.createCDATASection(text));
        } else if (m_text.isNull()) {
            m_text = copied(reader.text());
        } else {
            m_text += reader.text();
        }
        break;
    case QXmlStreamReader::Comment: {
        const QString text = copied(reader.text());
        if (differsFromParser(text)) {
            giveUp();
            break;
        }
        m_parent.appendChild(m_document.createComment(text));
        break;
    }
    case QXmlStreamReader::ProcessingInstruction: {
        QString data = copied(reader.processingInstructionData());
        if (differsFromParser(data) || !isPlainName(reader.processingInstructionTarget())) {
            giveUp();
            break;
        }
        // Qt's parser gives an instruction without data an empty text, not a null one.
        if (data.isNull())
            data = QStringLiteral("");
        m_parent.appendChild(
            m_document.createProcessingInstruction(copied(reader.processingInstructionTarget()), data));
        break;
    }
    case QXmlStreamReader::DTD:
    case QXmlStreamReader::EntityReference:
        giveUp();
        break;
    default:
        break;
    }
}

void DomBuilder::startElement(const QXmlStreamReader& reader, bool noted)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    if (!reader.namespaceDeclarations().isEmpty() || !reader.namespaceUri().isEmpty()) {
        giveUp();
        return;
    }
    // Everything is looked at before the element is made: giving up drops the document.
    const QString name = sharedName(reader.name());
    QVarLengthArray<QString, 8> attributeNames;
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (m_gaveUp || !attribute.namespaceUri().isEmpty() || !attribute.prefix().isEmpty()) {
            giveUp();
            return;
        }
        // The parser keeps tabs and line ends in attribute values as they are; the stream
        // reader makes spaces of them, so a space may have been either.
        const QStringRef value = attribute.value();
        if (value.contains(QLatin1Char(' ')) || differsFromParser(value)) {
            giveUp();
            return;
        }
        attributeNames.append(sharedName(attribute.name()));
    }
    if (m_gaveUp)
        return;

    // As the parser makes them: in no namespace, so with a local name, unlike createElement().
    QDomElement element = m_document.createElementNS(QString(), name);
    for (int i = 0; i < attributes.size(); ++i)
        element.setAttributeNS(QString(), attributeNames.at(i), copied(attributes.at(i).value()));
    m_parent.appendChild(element);
    m_parent = element;
    if (noted)
        m_noted.append(element);
}

void DomBuilder::flushText()
{
    if (m_text.isNull())
        return;
    if (!isBlank(m_text)) {
        if (differsFromParser(m_text)) {
            giveUp();
            return;
        }
        // A clone shares the prototype's "#text" name, which createTextNode() allocates anew.
        QDomText text = m_textPrototype.cloneNode(false).toText();
        text.setData(m_text);
        m_parent.appendChild(text);
    }
    m_text = QString();
}

QString DomBuilder::sharedName(const QStringRef& name)
{
    // Looked up without copying the reader's text; copied once per distinct name. The key
    // views the value's characters, which the value keeps where they are.
    const auto found = m_names.constFind(QStringView(name));
    if (found != m_names.cend())
        return *found;
    if (!isPlainName(name)) {
        giveUp();
        return QString();
    }
    const QString copy = copied(name);
    m_names.insert(QStringView(copy), copy);
    return copy;
}

bool DomBuilder::differsFromParser(QStringView text) const
{
    // The parser keeps "\r\n" and "\r" as they are, where the stream reader makes "\n" of
    // them; and it cuts a character reference beyond 0xFFFF to 16 bits.
    for (const QChar c : text) {
        if (c == QLatin1Char('\n') && hasCarriageReturns())
            return true;
        if (c.isSurrogate() && hasCharacterReferences())
            return true;
    }
    return false;
}

// The markup asked about below is ASCII. In UTF-16 its characters are separated by zero
// bytes, which are skipped; a false alarm only sends the file to the DOM parser.

bool DomBuilder::hasCarriageReturns() const
{
    if (m_carriageReturns == Fact::Unknown)
        m_carriageReturns = m_content.contains('\r') ? Fact::Present : Fact::Absent;
    return m_carriageReturns == Fact::Present;
}

bool DomBuilder::hasCharacterReferences() const
{
    if (m_characterReferences == Fact::Unknown) {
        m_characterReferences = Fact::Absent;
        for (int i = m_content.indexOf('&'); i >= 0; i = m_content.indexOf('&', i + 1)) {
            int next = i + 1;
            while (next < m_content.size() && next < i + 3 && m_content.at(next) == '\0')
                ++next;
            if (next < m_content.size() && m_content.at(next) == '#') {
                m_characterReferences = Fact::Present;
                break;
            }
        }
    }
    return m_characterReferences == Fact::Present;
}

bool DomBuilder::isPlainDeclaration() const
{
    // The stream reader lets pass declarations the DOM parser refuses (an attribute twice,
    // say), and cannot tell standalone="no" from none.
    static const QRegularExpression plain(
        QStringLiteral("^(\\xEF\\xBB\\xBF|\\xFF\\xFE|\\xFE\\xFF)?<\\?xml[ \\t\\r\\n]+version[ \\t\\r\\n]*=[ "
                       "\\t\\r\\n]*(\"[^\"]*\"|'[^']*')"
                       "([ \\t\\r\\n]+encoding[ \\t\\r\\n]*=[ \\t\\r\\n]*(\"[^\"]*\"|'[^']*'))?"
                       "([ \\t\\r\\n]+standalone[ \\t\\r\\n]*=[ \\t\\r\\n]*(\"yes\"|'yes'))?[ \\t\\r\\n]*\\?>"));
    QByteArray start = m_content.left(512);
    start.replace('\0', QByteArray());
    return plain.match(QString::fromLatin1(start)).hasMatch();
}

bool DomBuilder::isPlainName(const QStringRef& name)
{
    // The stream reader also lets pass names with characters the DOM parser refuses. Plain
    // ASCII names are what configurations use, and both take them alike.
    const auto nameStart = [](QChar c) {
        return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
            || c == QLatin1Char('_');
    };
    const auto nameCharacter = [&nameStart](QChar c) {
        return nameStart(c) || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-')
            || c == QLatin1Char('.');
    };
    return !name.isEmpty() && nameStart(name.at(0)) && std::all_of(name.cbegin() + 1, name.cend(), nameCharacter);
}

void DomBuilder::giveUp()
{
    m_gaveUp = true;
    m_document = QDomDocument();
    m_textPrototype = QDomText();
    m_parent = QDomNode();
    m_text = QString();
    m_noted.clear();
}

QDomDocument DomBuilder::finish()
{
    if (m_gaveUp)
        return QDomDocument();
    flushText();
    m_order.pairWith(m_noted);
    m_noted.clear();
    return m_document;
}
