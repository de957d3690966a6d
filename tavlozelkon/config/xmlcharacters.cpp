#include "xmlcharacters.h"

#include <QDomNamedNodeMap>

namespace {
bool holdsUnwritable(const QDomNode& node)
{
    if (!XmlCharacters::isWritable(node.nodeName()) || !XmlCharacters::isWritable(node.nodeValue()))
        return true;
    const QDomNamedNodeMap attributes = node.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        if (!XmlCharacters::isWritable(attribute.nodeName()) || !XmlCharacters::isWritable(attribute.nodeValue()))
            return true;
    }
    return false;
}
} // namespace

bool XmlCharacters::isWritable(const QString& text)
{
    const int size = text.size();
    for (int i = 0; i < size; ++i) {
        const ushort c = text.at(i).unicode();
        if (c >= 0x20 && c < 0xD800)
            continue;
        if (c == 0x09 || c == 0x0A || c == 0x0D)
            continue;
        if (c >= 0xE000 && c <= 0xFFFD)
            continue;
        // A surrogate is fine only as the first half of a pair followed by its second half.
        if (QChar::isHighSurrogate(c) && i + 1 < size && QChar::isLowSurrogate(text.at(i + 1).unicode())) {
            ++i;
            continue;
        }
        return false;
    }
    return true;
}

QDomNode XmlCharacters::firstUnwritable(const QDomNode& top)
{
    // Pre-order without recursion, so that no depth of document can exhaust the stack.
    QDomNode node = top;
    while (!node.isNull()) {
        if (holdsUnwritable(node))
            return node;
        if (node.hasChildNodes()) {
            node = node.firstChild();
            continue;
        }
        while (node != top && node.nextSibling().isNull())
            node = node.parentNode();
        if (node == top)
            break;
        node = node.nextSibling();
    }
    return QDomNode();
}
