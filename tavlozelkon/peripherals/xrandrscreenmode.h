#pragma once

#include "tavlozelkon_lib_export.h"

#include <QByteArray>

/*
 * Asks an X server for the current mode of its default screen through the RandR
 * extension. Xlib and libXrandr are loaded at run time, never linked, so the wizard
 * starts on machines that lack them (Windows-based targets are configured from anywhere)
 * and the query simply fails there.
 */
class TAVLOZELKON_LIB_EXPORT XrandrScreenMode
{
public:
    XrandrScreenMode() = delete;

    // Fills width, height and rate (and rotation, a RandR rotation bit, when given) from
    // the X display displayName, e.g. ":0". False, touching nothing, when any of the
    // first three is null, the display cannot be opened, either library or one of its
    // functions is missing, or the server reports no usable mode.
    static bool query(const QByteArray& displayName, int* width, int* height, int* rate, int* rotation = nullptr);
};
