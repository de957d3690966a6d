#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class MainWindow;

/*
 * Renders the main window once per page, with the page's first settings item open, into
 * PNG files ("01-title.png" ... "06-summary.png"), for documentation and for checking the
 * layout on machines without a display. Nothing is shown on screen.
 */
class PageScreenshotter
{
    Q_DECLARE_TR_FUNCTIONS(PageScreenshotter)

public:
    explicit PageScreenshotter(MainWindow* window);
    PageScreenshotter(const PageScreenshotter&) = delete;
    PageScreenshotter& operator=(const PageScreenshotter&) = delete;

    static QStringList fileNames();

    // Writes every page into directory, creating it when needed. False with errorText()
    // when a file could not be written.
    bool write(const QString& directory);
    QString errorText() const { return m_error; }

private:
    MainWindow* m_window;
    QString m_error;
};
