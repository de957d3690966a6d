#pragma once

#include <QList>

class QCheckBox;
class QGridLayout;
class QWidget;

/*
 * The grid the small peripheral frames share: blank cells in columns 0 and 5 of the first
 * row hold the columns in place, and the frame's controls sit in the columns between.
 */
namespace PeripheralGrid {
// A grid on frame with one check box per row, spanning columns 1 to 3.
QGridLayout* createCheckBoxGrid(QWidget* frame, const QList<QCheckBox*>& boxes);
// An empty label at (row, column), so that the column keeps its place.
void addBlank(QGridLayout* grid, int row, int column);
} // namespace PeripheralGrid
