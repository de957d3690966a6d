#pragma once

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QPair>
#include <QStringList>

class QByteArray;
class QDomAttr;
class QDomDocument;

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
    // Reads content (the bytes document was just parsed from) once more, in document order.
    void record(const QDomDocument& document, const QByteArray& content);

    // The element's attributes: on the document element rootAttributes() first; then those
    // recorded at load time in their file order; then any added since, by name.
    QList<QDomAttr> ordered(const QDomElement& element, bool isDocumentElement) const;

private:
    using Position = QPair<int, int>;
    QHash<Position, QStringList> m_loaded;
};
