#pragma once

#include <QDomNode>
#include <QString>

/*
 * The characters an XML 1.0 file can hold. A DOM document accepts any text, including
 * NUL, most control characters and unpaired UTF-16 surrogates; written out, such a file
 * is rejected by every strict reader, or the encoder silently replaces the character.
 */
class XmlCharacters
{
public:
    XmlCharacters() = delete;

    static bool isWritable(const QString& text);
    // The first node at or below top whose name, value or attribute values hold a
    // character a file cannot hold; a null node when there is none.
    static QDomNode firstUnwritable(const QDomNode& top);
};
