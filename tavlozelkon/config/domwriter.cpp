#include "domwriter.h"

#include "attributeorder.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSet>
#include <QTextCodec>
#include <QTextStream>
#include <algorithm>

namespace {

struct Context
{
    QTextStream& stream;
    const AttributeOrder& order;
    QDomElement documentElement;
    int indent;
};

void writeIndentation(const Context& context, int depth)
{
    // Written from one string of spaces rather than from a new one per line.
    static const QString spaces(64, QLatin1Char(' '));
    int width = context.indent < 1 ? 0 : depth * context.indent;
    for (; width > spaces.size(); width -= spaces.size())
        context.stream << spaces;
    context.stream << spaces.leftRef(width);
}

// Qt's escaping: "<" and "&" always; '"' where asked; ">" only after "]]"; carriage returns
// (and in attribute values newlines and tabs) as character references so that they survive
// re-parsing; characters the output encoding cannot hold as character references.
QString encodeText(const QString& text, const QTextStream& stream, bool encodeQuotes, bool attributeValue,
                   bool encodeCarriageReturns)
{
    const QTextCodec* codec = stream.codec();
    // Asking the codec costs a conversion per character; a Unicode encoding holds every
    // character but half of a surrogate pair, for which the codec is still asked.
    const int mib = codec ? codec->mibEnum() : 0;
    const bool unicode = mib == 106 || (mib >= 1013 && mib <= 1015) || (mib >= 1017 && mib <= 1019);
    // Most values need nothing escaped; they are written as they are, without a copy.
    if (!codec || unicode) {
        const auto plain = [](QChar c) {
            switch (c.unicode()) {
            case u'<':
            case u'"':
            case u'&':
            case u'>':
            case u'\r':
            case u'\n':
            case u'\t':
                return false;
            default:
                return !c.isSurrogate();
            }
        };
        if (std::all_of(text.cbegin(), text.cend(), plain))
            return text;
    }
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        switch (c.unicode()) {
        case u'<':
            result += QLatin1String("&lt;");
            break;
        case u'"':
            result += encodeQuotes ? QLatin1String("&quot;") : QLatin1String("\"");
            break;
        case u'&':
            result += QLatin1String("&amp;");
            break;
        case u'>':
            if (i >= 2 && text.at(i - 1) == QLatin1Char(']') && text.at(i - 2) == QLatin1Char(']'))
                result += QLatin1String("&gt;");
            else
                result += c;
            break;
        case u'\r':
            if (attributeValue || encodeCarriageReturns)
                result += QLatin1String("&#xd;");
            else
                result += c;
            break;
        case u'\n':
            result += attributeValue ? QLatin1String("&#xa;") : QLatin1String("\n");
            break;
        case u'\t':
            result += attributeValue ? QLatin1String("&#x9;") : QLatin1String("\t");
            break;
        default:
            if (!codec || (unicode && !c.isSurrogate()) || codec->canEncode(c))
                result += c;
            else
                result += QLatin1String("&#x") + QString::number(c.unicode(), 16) + QLatin1Char(';');
            break;
        }
    }
    return result;
}

bool isXmlDeclaration(const QDomNode& node)
{
    return node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml");
}

void saveAttributes(const QDomElement& element, Context& context)
{
    QTextStream& s = context.stream;
    QSet<QString> declaredPrefixes;
    const QList<QDomAttr> attributes = context.order.ordered(element, element == context.documentElement);
    for (const QDomAttr& attribute : attributes) {
        s << ' ';
        const QString value = encodeText(attribute.value(), s, true, true, false);
        if (attribute.namespaceURI().isNull()) {
            s << attribute.name() << "=\"" << value << '"';
            continue;
        }
        const QString prefix = attribute.prefix();
        s << prefix << ':' << attribute.localName() << "=\"" << value << '"';
        // An attribute in another namespace than its element's brings its own declaration,
        // once per prefix.
        if (attribute.parentNode().prefix() != prefix && !declaredPrefixes.contains(prefix)) {
            declaredPrefixes.insert(prefix);
            s << " xmlns:" << prefix << "=\"" << encodeText(attribute.namespaceURI(), s, true, true, false) << '"';
        }
    }
}

void writeLineEndAfter(const QDomNode& node, Context& context)
{
    const QDomNode next = node.nextSibling();
    if (!(!next.isNull() && next.isText()) && context.indent != -1)
        context.stream << '\n';
}

// The start tag; an element without children is complete after it.
void openElement(const QDomElement& element, Context& context, int depth)
{
    QTextStream& s = context.stream;
    const QDomNode previous = element.previousSibling();
    if (!(!previous.isNull() && previous.isText()))
        writeIndentation(context, depth);

    s << '<' << element.nodeName();
    if (!element.namespaceURI().isNull()) {
        s << (element.prefix().isEmpty() ? QStringLiteral(" xmlns") : QStringLiteral(" xmlns:") + element.prefix());
        s << "=\"" << encodeText(element.namespaceURI(), s, true, false, false) << '"';
    }
    saveAttributes(element, context);

    if (element.hasChildNodes()) {
        s << '>';
        if (!element.firstChild().isText() && context.indent != -1)
            s << '\n';
    } else {
        s << "/>";
        writeLineEndAfter(element, context);
    }
}

void closeElement(const QDomElement& element, Context& context, int depth)
{
    QTextStream& s = context.stream;
    if (!element.lastChild().isText())
        writeIndentation(context, depth);
    s << "</" << element.nodeName() << '>';
    writeLineEndAfter(element, context);
}

// Every node but an element with children.
void saveLeaf(const QDomNode& node, Context& context, int depth)
{
    QTextStream& s = context.stream;
    switch (node.nodeType()) {
    case QDomNode::ElementNode:
        openElement(node.toElement(), context, depth);
        break;
    case QDomNode::TextNode: {
        const QDomNode parent = node.parentNode();
        s << encodeText(node.nodeValue(), s, !(!parent.isNull() && parent.isElement()), false, true);
        break;
    }
    case QDomNode::CDATASectionNode:
        s << "<![CDATA[" << node.nodeValue() << "]]>";
        break;
    case QDomNode::CommentNode: {
        const QDomNode previous = node.previousSibling();
        if (!(!previous.isNull() && previous.isText()))
            writeIndentation(context, depth);
        const QString value = node.nodeValue();
        s << "<!--" << value;
        // A comment must not end in "--->".
        if (value.endsWith(QLatin1Char('-')))
            s << ' ';
        s << "-->";
        const QDomNode next = node.nextSibling();
        if (!(!next.isNull() && next.isText()))
            s << '\n';
        break;
    }
    case QDomNode::ProcessingInstructionNode:
        s << "<?" << node.nodeName() << ' ' << node.nodeValue() << "?>\n";
        break;
    case QDomNode::EntityReferenceNode:
        s << '&' << node.nodeName() << ';';
        break;
    default:
        // Document types, entities and notations carry no attributes, so Qt's own output
        // for them is already stable.
        node.save(s, context.indent);
        break;
    }
}

// A node and everything below it, depth-first without recursion, so that no depth of
// document can exhaust the stack.
void saveNode(const QDomNode& top, Context& context, int depth)
{
    QDomNode node = top;
    for (;;) {
        if (node.isElement() && node.hasChildNodes()) {
            openElement(node.toElement(), context, depth);
            node = node.firstChild();
            ++depth;
            continue;
        }
        saveLeaf(node, context, depth);
        while (node != top && node.nextSibling().isNull()) {
            node = node.parentNode();
            --depth;
            closeElement(node.toElement(), context, depth);
        }
        if (node == top)
            return;
        node = node.nextSibling();
    }
}

} // namespace

DomWriter::DomWriter(const AttributeOrder* order)
    : m_order(order)
{
}

void DomWriter::save(const QDomDocument& document, QTextStream& stream, int indent) const
{
    // The text encoding follows the XML declaration, as Qt's save does.
    QTextCodec* codec = nullptr;
    const QDomNode first = document.firstChild();
    if (isXmlDeclaration(first)) {
        static const QRegularExpression encoding(QStringLiteral("encoding\\s*=\\s*((\"([^\"]*)\")|('([^']*)'))"));
        const QRegularExpressionMatch match = encoding.match(first.nodeValue());
        QString name = match.captured(3);
        if (name.isEmpty())
            name = match.captured(5);
        if (!name.isEmpty())
            codec = QTextCodec::codecForName(name.toLatin1());
    }
    if (!codec)
        codec = QTextCodec::codecForName("UTF-8");
    stream.setCodec(codec);

    const AttributeOrder noOrder;
    Context context { stream, m_order ? *m_order : noOrder, document.documentElement(), indent };
    bool doctypeWritten = false;
    for (QDomNode node = first; !node.isNull(); node = node.nextSibling()) {
        if (!doctypeWritten && !isXmlDeclaration(node)) {
            // The document type goes right after the declaration.
            const QDomDocumentType doctype = document.doctype();
            if (!doctype.isNull() && !doctype.name().isEmpty())
                doctype.save(stream, indent);
            doctypeWritten = true;
        }
        saveNode(node, context, 0);
    }
    stream.flush();
}

QString DomWriter::toString(const QDomDocument& document, int indent) const
{
    QString text;
    QTextStream stream(&text, QIODevice::WriteOnly);
    save(document, stream, indent);
    return text;
}
