#pragma once

#include "tavlozelkon_lib_export.h"

class QObject;
class QValidator;

// Factories of the input validators the editor pages share.
namespace Validator {
// A new ConnectionNameValidator owned by parent.
TAVLOZELKON_LIB_EXPORT QValidator* connectionName(QObject* parent);
} // namespace Validator
