#pragma once

#include <QString>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QWidget;

// Pieces that every connection editor page builds the same way.
namespace SessionEditorParts {
// The type's icon at 32 by 32 followed by the header label, which takes the rest of the row.
QHBoxLayout* headerRow(const QString& type, QLabel* header);

// Gives a port edit room for the sample text in its own font.
void setMinimumWidthFor(QLineEdit* edit, const QString& sample);

// True when the field holds any text (blanks count). An empty one gets the focus and a
// white background, and a Critical box tells that the field named label is mandatory.
bool checkFilled(QWidget* editor, QLineEdit* field, const QString& label);
} // namespace SessionEditorParts
