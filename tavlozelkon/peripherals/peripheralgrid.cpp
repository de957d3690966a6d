#include "peripheralgrid.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace PeripheralGrid {

QGridLayout* createCheckBoxGrid(QWidget* frame, const QList<QCheckBox*>& boxes)
{
    auto* grid = new QGridLayout(frame);
    addBlank(grid, 0, 0);
    for (int row = 0; row < boxes.size(); ++row)
        grid->addWidget(boxes.at(row), row, 1, 1, 3);
    addBlank(grid, 0, 5);
    return grid;
}

void addBlank(QGridLayout* grid, int row, int column)
{
    grid->addWidget(new QLabel(grid->parentWidget()), row, column);
}

} // namespace PeripheralGrid
