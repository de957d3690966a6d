#pragma once

#include <QDomElement>
#include <QDomNodeList>
#include <QList>
#include <QString>

/*
 * Finds the elements of one name below an element, at any depth and in document order,
 * the way the document's cursor searches. Callers walk long record lists one index at a
 * time and append records one at a time; searching the whole section afresh for each
 * would make both quadratic in the number of records, so the last list asked for and the
 * last few counts are kept.
 *
 * The list is Qt's own live node list, which Qt rebuilds after any change to the tree,
 * whoever makes it. The counts are kept up to date by elementAppended() alone, so the
 * owner reports its own appends and calls forgetCounts() after anything else that may
 * have changed the tree.
 */
class ElementSearch
{
public:
    // The first match in document order; a null element when there is none. Stops there,
    // so it costs only the part of the subtree before the match.
    static QDomElement first(const QDomElement& top, const QString& name);

    QDomNodeList matches(const QDomElement& top, const QString& name);
    int count(const QDomElement& top, const QString& name);

    // An element called name was appended as a child of parent.
    void elementAppended(const QDomElement& parent, const QString& name);
    void forgetCounts();
    // Also drops the list, and with it the last reference to nodes it may keep alive.
    void clear();

private:
    struct Count
    {
        QDomElement top;
        QString name;
        int count;
    };

    static bool isWithin(const QDomNode& node, const QDomNode& top);
    // first() for a search that runs long.
    static QDomElement firstByChild(const QDomElement& top, const QString& name);

    QDomElement m_listTop;
    QString m_listName;
    QDomNodeList m_list;
    // Most recently used first. A saver appending records to a section while filling
    // each record with values needs two or three at a time.
    QList<Count> m_counts;
};
