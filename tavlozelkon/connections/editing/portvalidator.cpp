#include "portvalidator.h"

PortValidator::PortValidator(QObject* parent)
    : QIntValidator(0, 65536, parent)
{
}

PortValidator::~PortValidator() = default;

QValidator::State PortValidator::validate(QString& input, int& pos) const
{
    const State state = QIntValidator::validate(input, pos);
    if (state != Intermediate)
        return state;
    bool isNumber = false;
    const qlonglong value = locale().toLongLong(input, &isNumber);
    return isNumber && value > top() ? Invalid : Intermediate;
}
