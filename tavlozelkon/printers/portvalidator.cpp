#include "portvalidator.h"

PortValidator::PortValidator(QObject* parent)
    : QIntValidator(0, 65535, parent)
{
}

PortValidator::~PortValidator() = default;

QValidator::State PortValidator::validate(QString& input, int& position) const
{
    const State state = QIntValidator::validate(input, position);
    if (state == Intermediate && locale().toLongLong(input) > top())
        return Invalid;
    return state;
}
