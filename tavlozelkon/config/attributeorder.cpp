#include "attributeorder.h"

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QXmlStreamReader>
#include <algorithm>
#include <utility>

const QStringList& AttributeOrder::rootAttributes()
{
    static const QStringList names { QStringLiteral("version"), QStringLiteral("creator"),
                                     QStringLiteral("creator_version") };
    return names;
}

void AttributeOrder::clear()
{
    m_loaded.clear();
    m_notes.clear();
    m_notedElements = 0;
}

void AttributeOrder::noteElement(const QXmlStreamReader& reader)
{
    const int index = m_notedElements++;
    const QXmlStreamAttributes attributes = reader.attributes();
    if (attributes.isEmpty())
        return;
    Note note { index, reader.qualifiedName().toString(), {} };
    note.attributes.reserve(attributes.size());
    for (const QXmlStreamAttribute& attribute : attributes)
        note.attributes.append(attribute.qualifiedName().toString());
    m_notes.append(note);
}

void AttributeOrder::pairWith(const QDomDocument& document)
{
    m_loaded.clear();
    const QList<Note> notes = std::exchange(m_notes, {});
    const int notedElements = std::exchange(m_notedElements, 0);

    // Both parsers see the same elements in the same pre-order; if they ever disagree the
    // pairing would be wrong, and ordering by name is the safer fallback. Pre-order without
    // recursion, so that no depth of document can exhaust the stack.
    int index = 0;
    auto note = notes.cbegin();
    QDomNode node = document.firstChild();
    while (!node.isNull()) {
        if (node.isElement()) {
            if (note != notes.cend() && note->index == index) {
                const QDomElement element = node.toElement();
                if (element.nodeName() != note->name) {
                    m_loaded.clear();
                    return;
                }
                m_loaded.insert(Position(element.lineNumber(), element.columnNumber()), note->attributes);
                ++note;
            }
            ++index;
            if (node.hasChildNodes()) {
                node = node.firstChild();
                continue;
            }
        }
        while (node.nextSibling().isNull() && !node.parentNode().isNull() && !node.parentNode().isDocument())
            node = node.parentNode();
        node = node.nextSibling();
    }
    if (index != notedElements || note != notes.cend())
        m_loaded.clear();
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
