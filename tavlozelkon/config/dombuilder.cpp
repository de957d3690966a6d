#include "dombuilder.h"

#include "attributeorder.h"

#include <QByteArray>
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
    if (reader.tokenType() == QXmlStreamReader::StartElement) {
        // Noted also after giving up, for pairing with the DOM parser's document.
        const bool noted = m_order.noteElement(reader);
        if (!m_gaveUp)
            startElement(reader, noted);
        return;
    }
    if (m_gaveUp)
        return;
    switch (reader.tokenType()) {
    case QXmlStreamReader::StartDocument: {
        // The DOM parser keeps the declaration as an instruction whose data it writes anew
        // in single quotes. Qt 5's stream reader cannot tell standalone="no" from none.
        if (reader.documentVersion().isEmpty())
            break;
        if (!reader.isStandaloneDocument() && declaresStandalone()) {
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
    case QXmlStreamReader::EndElement:
        flushText();
        m_parent = m_parent.parentNode();
        break;
    case QXmlStreamReader::Characters:
        if (reader.isCDATA()) {
            flushText();
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
        flushText();
        const QString text = copied(reader.text());
        if (differsFromParser(text)) {
            giveUp();
            break;
        }
        m_parent.appendChild(m_document.createComment(text));
        break;
    }
    case QXmlStreamReader::ProcessingInstruction: {
        flushText();
        QString data = copied(reader.processingInstructionData());
        if (differsFromParser(data)) {
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
    flushText();
    const QXmlStreamAttributes attributes = reader.attributes();
    if (!reader.namespaceDeclarations().isEmpty() || !reader.namespaceUri().isEmpty()) {
        giveUp();
        return;
    }
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (!attribute.namespaceUri().isEmpty() || !attribute.prefix().isEmpty()) {
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
    }

    // As the parser makes them: in no namespace, so with a local name, unlike createElement().
    QDomElement element = m_document.createElementNS(QString(), sharedName(reader.name()));
    for (const QXmlStreamAttribute& attribute : attributes)
        element.setAttributeNS(QString(), sharedName(attribute.name()), copied(attribute.value()));
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

bool DomBuilder::declaresStandalone() const
{
    QByteArray declaration = m_content.left(512);
    declaration.replace('\0', QByteArray());
    const int end = declaration.indexOf("?>");
    return end > 0 && declaration.left(end).contains("standalone");
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
