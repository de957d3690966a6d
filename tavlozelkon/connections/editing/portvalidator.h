#pragma once

#include <QIntValidator>

/*
 * Digits of a port from 0 to 65536 (one above the largest TCP port, the bound the pages
 * have always accepted). Unlike QIntValidator, which lets a number with as many digits as
 * the top pass as intermediate, a keystroke that goes above the top is refused at once.
 */
class PortValidator : public QIntValidator
{
    Q_OBJECT
    Q_DISABLE_COPY(PortValidator)

public:
    explicit PortValidator(QObject* parent = nullptr);
    ~PortValidator() override;

    State validate(QString& input, int& pos) const override;
};
