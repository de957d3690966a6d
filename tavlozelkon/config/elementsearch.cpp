#include "elementsearch.h"

namespace {
const int MaxCounts = 4;
// Nodes visited through the DOM interface before a search goes to Qt's node lists.
const int HandleWalkBudget = 256;
// Children of the top searched one by one at most; more, such as the records of a long
// list, are searched as one, since each list costs more than the few nodes of a record.
const int MaxChildSearches = 64;
} // namespace

QDomElement ElementSearch::first(const QDomElement& top, const QString& name)
{
    // Pre-order below top, without recursion, so that no depth of document exhausts the stack.
    // Most searches end within a few nodes: a value of a record, a section near the start.
    // One that goes on is handed to Qt's own node lists, which walk the tree without the
    // DOM interface's handles, several times faster; that matters when a large document
    // is searched for a section it does not have.
    int budget = HandleWalkBudget;
    QDomNode node = top.firstChild();
    while (!node.isNull()) {
        if (--budget == 0)
            return firstByChild(top, name);
        if (node.isElement() && node.nodeName() == name)
            return node.toElement();
        if (node.hasChildNodes()) {
            node = node.firstChild();
            continue;
        }
        while (node.nextSibling().isNull()) {
            node = node.parentNode();
            if (node == top)
                return QDomElement();
        }
        node = node.nextSibling();
    }
    return QDomElement();
}

QDomElement ElementSearch::firstByChild(const QDomElement& top, const QString& name)
{
    // A child comes before its own descendants and after those of the children before it,
    // so the subtrees after the one holding the first match are never walked. A section
    // found near the start of a large document then costs the sections before it only.
    if (top.childNodes().count() > MaxChildSearches)
        return top.elementsByTagName(name).item(0).toElement();
    for (QDomNode child = top.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (!child.isElement()) {
            // An entity reference may hold elements, and has no node list of its own.
            if (child.hasChildNodes())
                return top.elementsByTagName(name).item(0).toElement();
            continue;
        }
        const QDomElement element = child.toElement();
        if (element.tagName() == name)
            return element;
        if (element.hasChildNodes()) {
            const QDomElement match = element.elementsByTagName(name).item(0).toElement();
            if (!match.isNull())
                return match;
        }
    }
    return QDomElement();
}

QDomNodeList ElementSearch::matches(const QDomElement& top, const QString& name)
{
    if (m_listTop != top || m_listName != name) {
        m_listTop = top;
        m_listName = name;
        m_list = top.elementsByTagName(name);
    }
    return m_list;
}

int ElementSearch::count(const QDomElement& top, const QString& name)
{
    for (int i = 0; i < m_counts.size(); ++i) {
        if (m_counts.at(i).top == top && m_counts.at(i).name == name) {
            m_counts.move(i, 0);
            return m_counts.first().count;
        }
    }
    const int count = top.elementsByTagName(name).count();
    m_counts.prepend({ top, name, count });
    if (m_counts.size() > MaxCounts)
        m_counts.removeLast();
    return count;
}

void ElementSearch::elementAppended(const QDomElement& parent, const QString& name)
{
    for (Count& entry : m_counts) {
        if (entry.name == name && isWithin(parent, entry.top))
            ++entry.count;
    }
}

void ElementSearch::forgetCounts()
{
    m_counts.clear();
}

void ElementSearch::clear()
{
    forgetCounts();
    m_listTop = QDomElement();
    m_listName.clear();
    m_list = QDomNodeList();
}

bool ElementSearch::isWithin(const QDomNode& node, const QDomNode& top)
{
    for (QDomNode ancestor = node; !ancestor.isNull(); ancestor = ancestor.parentNode()) {
        if (ancestor == top)
            return true;
    }
    return false;
}
