#include "editingmessagebox.h"

QMessageBox::StandardButton EditingMessageBox::exec(QWidget* page, QMessageBox::Icon icon, const QString& text,
                                                    QMessageBox::StandardButtons buttons)
{
    const Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;
    QMessageBox box(icon, page->windowTitle(), text, buttons, page, flags);
    // The constructor adds title and close-button hints; the box is shown with these alone.
    box.setWindowFlags(flags);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}
