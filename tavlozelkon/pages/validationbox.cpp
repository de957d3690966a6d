#include "validationbox.h"

#include "config/validationnotice.h"

#include <QMessageBox>

void ValidationBox::install()
{
    ValidationNotice::setHandler(&ValidationBox::show);
}

void ValidationBox::show(const QString& title, const QString& text)
{
    QMessageBox::information(nullptr, title, text, QMessageBox::Ok);
}
