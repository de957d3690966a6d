#pragma once

#include "tavlohost_export.h"

class QLineEdit;

// Flags edit with a red style when it is empty or its validator does not accept its
// text, clears the flag otherwise. Returns true when the edit was invalid.
TAVLOHOST_EXPORT bool flagIfInvalid(QLineEdit* edit);
