#include "busyfeedback.h"

#include <QApplication>
#include <QStatusBar>

BusyFeedback::BusyFeedback(QStatusBar* statusBar, const QString& message)
    : m_statusBar(statusBar)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (m_statusBar) {
        m_statusBar->showMessage(message);
        m_statusBar->repaint();
    }
}

BusyFeedback::~BusyFeedback()
{
    // The message goes first, so that nothing looks idle while the cursor still waits.
    if (m_statusBar)
        m_statusBar->clearMessage();
    QApplication::restoreOverrideCursor();
}
