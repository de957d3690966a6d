#pragma once

#include <QCoreApplication>
#include <QString>

class QFileDialog;
class QWidget;

/*
 * Asks the user which configuration file to open or where to save one. The main window
 * goes through this class rather than calling QFileDialog itself, so that a test can
 * answer with a path of its own.
 */
class FileChooser
{
    Q_DECLARE_TR_FUNCTIONS(FileChooser)

public:
    FileChooser() = default;
    virtual ~FileChooser();
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;

    // An empty text when the user cancelled.
    virtual QString openFileName(QWidget* parent, const QString& startPath);
    virtual QString saveFileName(QWidget* parent, const QString& startPath);

    // The dialogs as they are shown, for the default implementation and its tests.
    static QFileDialog* createOpenDialog(QWidget* parent, const QString& startPath);
    static QFileDialog* createSaveDialog(QWidget* parent, const QString& startPath);
    static QString nameFilter();
    static QString suffix() { return QStringLiteral("tavlocfg"); }
};
