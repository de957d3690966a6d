#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>

/*
 * Every absolute path of the machine that the library looks at (launchers, package
 * lists, display preferences, the time zone table) is resolved here, so that a host can
 * let the wizard behave as on another device by pointing it at a copy of that device's
 * tree. The default root is the real one, "/".
 */
class TAVLOZELKON_LIB_EXPORT MachineRoot
{
public:
    MachineRoot() = delete;

    // The directory that stands for "/"; an empty text restores the real root.
    static void setRoot(const QString& directory);
    static QString root();

    // absolutePath ("/usr/bin/view-runner") as seen under the current root.
    static QString path(const QString& absolutePath);
    static bool exists(const QString& absolutePath);
};
