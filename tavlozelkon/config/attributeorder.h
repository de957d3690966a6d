#pragma once

#include "tavlozelkon_lib_export.h"

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QStringList>

class QDomAttr;
class QDomDocument;
class QXmlStreamReader;

/*
 * The order in which a configuration file's elements carried their attributes. Qt's DOM
 * keeps attributes in a hash seeded at random per process, so without this record the
 * same document would be written differently from run to run and every save of an
 * unchanged file would show up as a change.
 *
 * Only elements with two or more attributes need a record. They are keyed by the identity
 * of their node, which stays with the element however the tree is edited afterwards and
 * which copies of it (importNode(), cloneNode()) do not share.
 */
class TAVLOZELKON_LIB_EXPORT AttributeOrder
{
public:
    // Attributes of the document element that always come first, in this order.
    static const QStringList& rootAttributes();

    void clear();
    // Recording is done alongside the one streaming pass that reads a file anyway (see
    // ParseGuard::check()): note every start element of the file in document order, then
    // pair the notes with the elements they describe. Returns whether the element was
    // noted, which it is when it has two or more attributes.
    bool noteElement(const QXmlStreamReader& reader);
    // The elements noteElement() returned true for, in the same order.
    void pairWith(const QList<QDomElement>& noted);
    // A document the same bytes were parsed into, whose elements are in the same pre-order.
    void pairWith(const QDomDocument& document);

    // The element's attributes: on the document element rootAttributes() first; then those
    // recorded at load time in their file order; then any added since, by name.
    QList<QDomAttr> ordered(const QDomElement& element, bool isDocumentElement) const;

private:
    struct Note
    {
        int index;
        QString name;
        QStringList attributes;
    };

    struct Entry
    {
        // Held so that the node cannot be freed and its address given to another node while
        // the entry exists. It keeps a removed element alive until the next load or clear;
        // typical files have only the root with more than one attribute.
        QDomElement element;
        QStringList attributes;
    };

    QHash<const void*, Entry> m_loaded;
    // Only elements with two or more attributes; index counts all elements in document order.
    QList<Note> m_notes;
    int m_notedElements = 0;
};
