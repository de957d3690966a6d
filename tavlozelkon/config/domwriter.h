#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>

class AttributeOrder;
class QDomDocument;
class QTextStream;

/*
 * Writes a DOM document as text exactly as QDomDocument::save() lays it out (declaration,
 * indentation, line breaks, escaping, encoding taken from the XML declaration) except for
 * the order of attributes, which comes from an AttributeOrder instead of Qt's per-process
 * hash order. Keeping Qt's layout means files written by earlier versions and by this one
 * differ only where the content does.
 */
class TAVLOZELKON_LIB_EXPORT DomWriter
{
public:
    // Without an order only the document element's fixed attributes are placed; all
    // other attributes go by name.
    explicit DomWriter(const AttributeOrder* order = nullptr);

    void save(const QDomDocument& document, QTextStream& stream, int indent) const;
    QString toString(const QDomDocument& document, int indent) const;

private:
    const AttributeOrder* m_order;
};
