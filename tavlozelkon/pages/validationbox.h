#pragma once

#include "tavlozelkon_lib_export.h"

class QString;

/*
 * The wizard's way of telling the validation verdict: an information box with an OK
 * button. The summary page installs it, since validating is its button's work.
 */
class TAVLOZELKON_LIB_EXPORT ValidationBox
{
public:
    ValidationBox() = delete;

    static void install();
    static void show(const QString& title, const QString& text);
};
