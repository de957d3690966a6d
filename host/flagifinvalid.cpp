#include "flagifinvalid.h"

#include <QLineEdit>
#include <QValidator>

bool flagIfInvalid(QLineEdit* edit)
{
    if (!edit)
        return true;
    QString text = edit->text();
    int position = 0;
    const QValidator* validator = edit->validator();
    const bool invalid = text.isEmpty() || (validator && validator->validate(text, position) != QValidator::Acceptable);
    edit->setStyleSheet(invalid ? QStringLiteral("QLineEdit { border: 2px solid #d32f2f; background: #fdecea; }")
                                : QString());
    edit->setProperty("invalid", invalid);
    return invalid;
}
