#pragma once

#include "parseguard.h"
#include "tavlozelkon_lib_export.h"

#include <QString>

class AttributeOrder;
class QByteArray;
class QDomDocument;

/*
 * Reads a configuration file into a DOM document in one streaming pass: the pass that
 * ParseGuard makes to refuse hostile files also builds the tree, so the bytes are parsed
 * once instead of once by the guard and once more by Qt's DOM parser. The tree is the one
 * QDomDocument::setContent(bytes, true) would build, node for node, but more compact:
 * every element of one name shares a single name string, and every text node shares the
 * "#text" name of one prototype, where Qt's parser allocates them per node.
 *
 * What real configurations never hold (a document type, entity references, namespaces,
 * standalone="no") is handed to Qt's parser instead, after the same guard, so that such a
 * file still loads exactly as before.
 */
class TAVLOZELKON_LIB_EXPORT ConfigReader
{
public:
    ConfigReader() = delete;

    enum class Route { Streamed, DomParser };

    struct Result
    {
        // Whether the file could be opened, and if not the system's reason.
        bool opened = true;
        QString openError;
        // The bytes hold nothing but white space (only looked at when they did not parse).
        bool blank = false;
        // The guard's verdict; a file Qt's parser rejected is NotWellFormed with its words.
        ParseGuard::Result parse;
        Route route = Route::Streamed;

        bool accepted() const { return opened && parse.accepted(); }
    };

    // Replaces what document holds by the parsed bytes when they are accepted and leaves it
    // as it was otherwise. order, when given, receives the file's attribute order.
    static Result read(const QByteArray& content, QDomDocument& document, AttributeOrder* order = nullptr);
    // The same for a file, refused unread when it is larger than ParseGuard allows.
    static Result readFile(const QString& path, QDomDocument& document, AttributeOrder* order = nullptr);
    // The guard followed by Qt's own parser.
    static Result readWithDomParser(const QByteArray& content, QDomDocument& document, AttributeOrder* order = nullptr);
};
