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
} // namespace

DomBuilder::DomBuilder(AttributeOrder& order, const QByteArray& content)
    : m_order(order)
{
    // The markup in question is ASCII; dropping zero bytes finds it in UTF-16 too, and any
    // false alarm only sends the file to the DOM parser.
    QByteArray declaration = content.left(512);
    declaration.replace('\0', QByteArray());
    const int end = declaration.indexOf("?>");
    m_declaresStandalone = end > 0 && declaration.left(end).contains("standalone");
    m_hasCarriageReturns = content.contains('\r');
    m_hasCharacterReferences = content.contains("&#") || content.contains(QByteArray("&\0#", 3))
        || content.contains(QByteArray("\0&\0#", 4));

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
        if (m_declaresStandalone && !reader.isStandaloneDocument()) {
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
            const QString text = reader.text().toString();
            if (differsFromParser(text)) {
                giveUp();
                break;
            }
            m_parent.appendChild(m_document.createCDATASection(text));
        } else if (m_text.isNull()) {
            m_text = reader.text().toString();
        } else {
            m_text += reader.text();
        }
        break;
    case QXmlStreamReader::Comment: {
        flushText();
        const QString text = reader.text().toString();
        if (differsFromParser(text)) {
            giveUp();
            break;
        }
        m_parent.appendChild(m_document.createComment(text));
        break;
    }
    case QXmlStreamReader::ProcessingInstruction: {
        flushText();
        QString data = reader.processingInstructionData().toString();
        if (differsFromParser(data)) {
            giveUp();
            break;
        }
        // The parser gives an instruction without data empty data, not none.
        if (data.isNull())
            data = QStringLiteral("");
        m_parent.appendChild(
            m_document.createProcessingInstruction(reader.processingInstructionTarget().toString(), data));
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
        if (value.contains(QLatin1Char(' ')) || differsFromParser(value.toString())) {
            giveUp();
            return;
        }
    }

    // As the parser makes them: in no namespace, so with a local name, unlike createElement().
    QDomElement element = m_document.createElementNS(QString(), sharedName(reader.name()));
    for (const QXmlStreamAttribute& attribute : attributes)
        element.setAttributeNS(QString(), sharedName(attribute.name()), attribute.value().toString());
    m_parent.appendChild(element);
    m_parent = element;
    if (noted)
        m_noted.append(element);
}

void DomBuilder::flushText()
{
    if (m_text.isNull())
        return;
    if (!isBlank(m_text) && differsFromParser(m_text)) {
        giveUp();
        return;
    }
    if (!isBlank(m_text)) {
        // A clone shares the prototype's "#text" name, which createTextNode() allocates anew.
        QDomText text = m_textPrototype.cloneNode(false).toText();
        text.setData(m_text);
        m_parent.appendChild(text);
    }
    m_text = QString();
}

QString DomBuilder::sharedName(const QStringRef& name)
{
    // Looked up without copying the reader's text; copied once per distinct name.
    const auto found = m_names.constFind(QString::fromRawData(name.unicode(), name.size()));
    if (found != m_names.cend())
        return *found;
    return *m_names.insert(name.toString());
}

bool DomBuilder::differsFromParser(const QString& text) const
{
    // The parser keeps "\r\n" and "\r" as they are, where the stream reader makes "\n" of
    // them; and it cuts a character reference beyond 0xFFFF to 16 bits.
    const auto differs = [this](QChar c) {
        return (m_hasCarriageReturns && c == QLatin1Char('\n')) || (m_hasCharacterReferences && c.isSurrogate());
    };
    return (m_hasCarriageReturns || m_hasCharacterReferences) && std::any_of(text.cbegin(), text.cend(), differs);
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
