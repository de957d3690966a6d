#pragma once

#include <QMessageBox>

// The message boxes of the connection pages: modal, titled with the window title of the
// page that shows them, and of a fixed size.
namespace EditingMessageBox {
QMessageBox::StandardButton exec(QWidget* page, QMessageBox::Icon icon, const QString& text,
                                 QMessageBox::StandardButtons buttons);
} // namespace EditingMessageBox
