#include "displaycheck.h"

#include <QStringList>

bool DisplayCheck::available(const QString& qpaPlatform, const QString& display, const QString& waylandDisplay)
{
    const QStringList plugins = qpaPlatform.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    // Qt 5 on Linux starts the X11 plugin unless told otherwise; a Wayland-only session
    // is given the benefit of the doubt.
    if (plugins.isEmpty())
        return !display.isEmpty() || !waylandDisplay.isEmpty();
    for (const QString& plugin : plugins) {
        const QString name = plugin.section(QLatin1Char(':'), 0, 0).trimmed();
        if (name == QLatin1String("xcb")) {
            if (!display.isEmpty())
                return true;
        } else if (name.startsWith(QLatin1String("wayland"))) {
            if (!waylandDisplay.isEmpty())
                return true;
        } else {
            return true;
        }
    }
    return false;
}

bool DisplayCheck::availableHere()
{
    return available(qEnvironmentVariable("QT_QPA_PLATFORM"), qEnvironmentVariable("DISPLAY"),
                     qEnvironmentVariable("WAYLAND_DISPLAY"));
}

QString DisplayCheck::missingText()
{
    return tr("Zelkon needs a display to show its window, and none was found (DISPLAY is not set). Render the "
              "pages to PNG files without one with --screenshots DIR, or start scripts/run-wizard.sh with "
              "ZELKON_USE_XVFB=1 to run the window on a virtual display.");
}
