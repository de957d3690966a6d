#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QString>

class QStatusBar;

/*
 * Shows that the window is busy while the GUI thread waits for something, such as the
 * device's settings tool: a wait cursor and a status message from construction to
 * destruction. Nothing is painted while the thread waits, so the message is painted
 * at once rather than when the event loop next runs.
 */
class BusyFeedback
{
    Q_DECLARE_TR_FUNCTIONS(BusyFeedback)

public:
    BusyFeedback(QStatusBar* statusBar, const QString& message);
    ~BusyFeedback();
    BusyFeedback(const BusyFeedback&) = delete;
    BusyFeedback& operator=(const BusyFeedback&) = delete;

private:
    QPointer<QStatusBar> m_statusBar;
};
