#pragma once

#include <QObject>

/*
 * Installed on the application, it waits for the first paint of any widget, lets that
 * paint and its flush to the screen finish, then writes marker() on standard output and
 * ends the process at once: what a start-up measurement times is the way to the first
 * painted window, not the way out.
 */
class FirstPaintProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(FirstPaintProbe)

public:
    FirstPaintProbe() = default;

    static const char* marker() { return "first-paint"; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_seen = false;
};
