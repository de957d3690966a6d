#pragma once

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QPair>
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
 * Loaded elements are keyed by the position the parser gave them, which stays with the
 * element however the tree is edited afterwards.
 */
class AttributeOrder
{
public:
    // Attributes of the document element that always come first, in this order.
    static const QStringList& rootAttributes();

    void clear();
    // Recording is done alongside the one streaming pass that reads a file anyway (see
    // ParseGuard::check()), so that a file is not parsed a second time for it: note every
    // start element of the file in document order, then pair the notes with the document
    // the same bytes were parsed into.
    void noteElement(const QXmlStreamReader& reader);
    void pairWith(const QDomDocument& document);

    // The element's attributes: on the document element rootAttributes() first; then those
    // recorded at load time in their file order; then any added since, by name.
    QList<QDomAttr> ordered(const QDomElement& element, bool isDocumentElement) const;

private:
    using Position = QPair<int, int>;

    struct Note
    {
        int index;
        QString name;
        QStringList attributes;
    };

    QHash<Position, QStringList> m_loaded;
    // Only elements with attributes; index counts all elements in document order.
    QList<Note> m_notes;
    int m_notedElements = 0;
};
