#include "pagescreenshotter.h"

#include "mainwindow.h"

#include "pages/configpage.h"

#include "accordion.h"
#include "accordionitem.h"

#include <QApplication>
#include <QDir>
#include <QLayout>
#include <QPixmap>

PageScreenshotter::PageScreenshotter(MainWindow* window)
    : m_window(window)
{
}

QStringList PageScreenshotter::fileNames()
{
    return { QStringLiteral("01-title.png"),       QStringLiteral("02-regional.png"),
             QStringLiteral("03-management.png"),  QStringLiteral("04-peripherals.png"),
             QStringLiteral("05-connections.png"), QStringLiteral("06-summary.png") };
}

bool PageScreenshotter::write(const QString& directory)
{
    m_error.clear();
    QDir dir(directory);
    if (!dir.mkpath(QStringLiteral("."))) {
        m_error = tr("Cannot create the folder \"%1\".").arg(QDir::toNativeSeparators(dir.absolutePath()));
        return false;
    }

    // Scroll areas fit their pages only in a window that is shown; this one need not be seen.
    if (!m_window->isVisible()) {
        m_window->setAttribute(Qt::WA_DontShowOnScreen);
        m_window->show();
    }
    const QStringList names = fileNames();
    for (int index = 0; index < MainWindow::PageCount; ++index) {
        m_window->showPage(index);
        if (auto* page = qobject_cast<ConfigPage*>(m_window->page(index))) {
            const QList<AccordionItem*> items = page->accordion()->items();
            for (AccordionItem* item : items) {
                if (!item->isHidden()) {
                    page->accordion()->selectItem(item);
                    break;
                }
            }
        }
        // Opening a frame changed the page's size; let the layouts follow before the grab.
        QApplication::sendPostedEvents();
        m_window->layout()->activate();
        QApplication::sendPostedEvents();
        const QString path = dir.absoluteFilePath(names.at(index));
        if (!m_window->grab().save(path, "PNG")) {
            m_error = tr("Cannot write \"%1\".").arg(QDir::toNativeSeparators(path));
            return false;
        }
    }
    return true;
}
