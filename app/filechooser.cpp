#include "filechooser.h"

#include <QFileDialog>
#include <QScopedPointer>

FileChooser::~FileChooser() = default;

QString FileChooser::nameFilter()
{
    return tr("Zelkon configuration (*.tavlocfg)");
}

QFileDialog* FileChooser::createOpenDialog(QWidget* parent, const QString& startPath)
{
    auto* dialog = new QFileDialog(parent, tr("Open Configuration"), startPath);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({ nameFilter(), tr("All files (*)") });
    return dialog;
}

QFileDialog* FileChooser::createSaveDialog(QWidget* parent, const QString& startPath)
{
    auto* dialog = new QFileDialog(parent, tr("Save Configuration"), startPath);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(nameFilter());
    dialog->setDefaultSuffix(suffix());
    return dialog;
}

QString FileChooser::openFileName(QWidget* parent, const QString& startPath)
{
    QScopedPointer<QFileDialog> dialog(createOpenDialog(parent, startPath));
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return QString();
    return dialog->selectedFiles().constFirst();
}

QString FileChooser::saveFileName(QWidget* parent, const QString& startPath)
{
    QScopedPointer<QFileDialog> dialog(createSaveDialog(parent, startPath));
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return QString();
    return dialog->selectedFiles().constFirst();
}
