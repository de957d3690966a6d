#pragma once

#include <QCoreApplication>
#include <QString>

/*
 * Whether the window system Qt is about to use can be reached, decided from the
 * environment before the application object exists: without a display Qt aborts the
 * process with a message about reinstalling, which tells an administrator on a server
 * nothing of what to do instead.
 */
class DisplayCheck
{
    Q_DECLARE_TR_FUNCTIONS(DisplayCheck)

public:
    DisplayCheck() = delete;

    // qpaPlatform as QT_QPA_PLATFORM holds it (empty for Qt's default, several plugins
    // separated by ';', each optionally followed by ":options"). Plugins that need no
    // display server (offscreen, eglfs, vnc ...) always count.
    static bool available(const QString& qpaPlatform, const QString& display, const QString& waylandDisplay);
    // The same, read from this process's environment.
    static bool availableHere();
    // One line that says what is missing and what to use instead.
    static QString missingText();
};
