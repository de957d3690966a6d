#include "emptyvalueholders.h"

#include <QDomDocument>

EmptyValueHolders::EmptyValueHolders(const QDomElement& root)
{
    // Iterative, so that no nesting depth can exhaust the stack.
    QList<QDomElement> pending;
    for (QDomElement section = root.firstChildElement(); !section.isNull(); section = section.nextSiblingElement())
        pending.append(section);
    while (!pending.isEmpty()) {
        const QDomElement parent = pending.takeLast();
        for (QDomElement element = parent.firstChildElement(); !element.isNull();
             element = element.nextSiblingElement()) {
            if (element.hasChildNodes()) {
                pending.append(element);
            } else {
                QDomText holder = element.ownerDocument().createTextNode(QString());
                element.appendChild(holder);
                m_holders.append(holder);
            }
        }
    }
}

void EmptyValueHolders::removeUnused()
{
    for (QDomText& holder : m_holders) {
        if (holder.data().isEmpty() && !holder.parentNode().isNull())
            holder.parentNode().removeChild(holder);
    }
    m_holders.clear();
}
