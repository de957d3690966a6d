#include "attributeorder.h"

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QXmlStreamReader>
#include <algorithm>

namespace {
// Pre-order without recursion, so that no depth of document can exhaust the stack.
void collectElements(const QDomNode& top, QList<QDomElement>& elements)
{
    QDomNode node = top.firstChild();
    while (!node.isNull()) {
        if (node.isElement()) {
            elements.append(node.toElement());
            if (node.hasChildNodes()) {
                node = node.firstChild();
                continue;
            }
        }
        while (node.nextSibling().isNull() && node.parentNode() != top)
            node = node.parentNode();
        node = node.nextSibling();
    }
}
} // namespace

const QStringList& AttributeOrder::rootAttributes()
{
    static const QStringList names { QStringLiteral("version"), QStringLiteral("creator"),
                                     QStringLiteral("creator_version") };
    return names;
}

void AttributeOrder::clear()
{
    m_loaded.clear();
}

void AttributeOrder::record(const QDomDocument& document, const QByteArray& content)
{
    m_loaded.clear();

    struct Start
    {
        QString name;
        QStringList attributes;
    };
    QList<Start> starts;
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(true);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        Start start { reader.qualifiedName().toString(), {} };
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes)
            start.attributes.append(attribute.qualifiedName().toString());
        starts.append(start);
    }

    // Both parsers see the same elements in the same pre-order; if they ever disagree the
    // pairing below would be wrong, and ordering by name is the safer fallback.
    QList<QDomElement> elements;
    collectElements(document, elements);
    if (elements.size() != starts.size())
        return;
    for (int i = 0; i < elements.size(); ++i) {
        if (elements.at(i).nodeName() != starts.at(i).name) {
            m_loaded.clear();
            return;
        }
        if (!starts.at(i).attributes.isEmpty())
            m_loaded.insert(Position(elements.at(i).lineNumber(), elements.at(i).columnNumber()),
                            starts.at(i).attributes);
    }
}

QList<QDomAttr> AttributeOrder::ordered(const QDomElement& element, bool isDocumentElement) const
{
    const QDomNamedNodeMap map = element.attributes();
    QList<QDomAttr> attributes;
    attributes.reserve(map.count());
    for (int i = 0; i < map.count(); ++i)
        attributes.append(map.item(i).toAttr());
    if (attributes.size() < 2)
        return attributes;

    // Elements created in this run have no parser position (-1) and nothing recorded.
    const QStringList loaded = element.lineNumber() < 0
        ? QStringList()
        : m_loaded.value(Position(element.lineNumber(), element.columnNumber()));
    const QStringList& fixed = isDocumentElement ? rootAttributes() : QStringList();

    const auto rank = [&](const QString& name) {
        int index = fixed.indexOf(name);
        if (index >= 0)
            return index;
        index = loaded.indexOf(name);
        if (index >= 0)
            return fixed.size() + index;
        return fixed.size() + loaded.size();
    };
    std::sort(attributes.begin(), attributes.end(), [&](const QDomAttr& a, const QDomAttr& b) {
        const int rankA = rank(a.nodeName());
        const int rankB = rank(b.nodeName());
        if (rankA != rankB)
            return rankA < rankB;
        return a.nodeName() < b.nodeName();
    });
    return attributes;
}
