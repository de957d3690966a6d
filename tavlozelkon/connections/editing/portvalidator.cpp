#include "portvalidator.h"

PortValidator::PortValidator(int top, QObject* parent)
    : QIntValidator(0, top, parent)
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
