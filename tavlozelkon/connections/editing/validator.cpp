#include "validator.h"

#include "connectionnamevalidator.h"

QValidator* Validator::connectionName(QObject* parent)
{
    return new ConnectionNameValidator(parent);
}
