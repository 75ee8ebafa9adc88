#include "plot/PlotContainer.h"

void PlotContainer::shrinkToColumnSelection() {}
void PlotContainer::drawMulitPlot(vtkContextScene*) {}
void PlotContainer::drawSelectionCdfPlot(vtkContextScene*) {}
