#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>

/*
 * How ConfigFile::validate() tells its verdict to a person. The document has no widgets of
 * its own: the wizard's library puts up its message box here (ValidationBox), and a
 * program without a window, which reports problems its own way, is told nothing.
 */
class TAVLOZELKON_LIB_EXPORT ValidationNotice
{
public:
    ValidationNotice() = delete;

    using Handler = void (*)(const QString& title, const QString& text);

    // A null handler tells nobody.
    static void setHandler(Handler handler);
    static void tell(const QString& title, const QString& text);
};
