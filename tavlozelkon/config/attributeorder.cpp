#include "attributeorder.h"

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QXmlStreamReader>
#include <algorithm>
#include <utility>

namespace {
// A node's identity: the private object that every handle to the node shares.
class NodeIdentity : public QDomNode
{
public:
    explicit NodeIdentity(const QDomNode& node)
        : QDomNode(node)
    {
    }
    const void* key() const { return impl; }
};

const void* identity(const QDomNode& node)
{
    return NodeIdentity(node).key();
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
    m_notes.clear();
    m_notedElements = 0;
}

bool AttributeOrder::noteElement(const QXmlStreamReader& reader)
{
    const int index = m_notedElements++;
    const QXmlStreamAttributes attributes = reader.attributes();
    if (attributes.size() < 2)
        return false;
    Note note { index, reader.qualifiedName().toString(), {} };
    note.attributes.reserve(attributes.size());
    for (const QXmlStreamAttribute& attribute : attributes)
        note.attributes.append(attribute.qualifiedName().toString());
    m_notes.append(note);
    return true;
}

void AttributeOrder::pairWith(const QList<QDomElement>& noted)
{
    m_loaded.clear();
    const QList<Note> notes = std::exchange(m_notes, {});
    m_notedElements = 0;
    // If the two ever disagree the pairing would be wrong, and ordering by name is the
    // safer fallback.
    if (noted.size() != notes.size())
        return;
    for (int i = 0; i < notes.size(); ++i) {
        if (noted.at(i).nodeName() != notes.at(i).name) {
            m_loaded.clear();
            return;
        }
        m_loaded.insert(identity(noted.at(i)), Entry { noted.at(i), notes.at(i).attributes });
    }
}

void AttributeOrder::pairWith(const QDomDocument& document)
{
    QList<QDomElement> noted;
    noted.reserve(m_notes.size());
    // Pre-order without recursion, so that no depth of document can exhaust the stack.
    int index = 0;
    auto note = m_notes.cbegin();
    QDomNode node = document.firstChild();
    while (!node.isNull()) {
        if (node.isElement()) {
            if (note != m_notes.cend() && note->index == index) {
                noted.append(node.toElement());
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
    if (index != m_notedElements)
        noted.clear();
    pairWith(noted);
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

    // Elements created in this run have nothing recorded.
    const auto entry = m_loaded.constFind(identity(element));
    const QStringList loaded = entry == m_loaded.cend() ? QStringList() : entry->attributes;
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
