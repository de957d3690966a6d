#pragma once

#include <QIntValidator>

/*
 * Port numbers 0 to 65535. QIntValidator lets a number above its top through while
 * typing when it has no more digits than the top ("70000" against 65535), leaving it to
 * be refused on acceptance; the printer form does not check the port when it saves, so
 * such a number is refused here at once.
 */
class PortValidator : public QIntValidator
{
    Q_OBJECT
    Q_DISABLE_COPY(PortValidator)

public:
    explicit PortValidator(QObject* parent = nullptr);
    ~PortValidator() override;

    State validate(QString& input, int& position) const override;
};
