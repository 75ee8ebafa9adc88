#include "plot/FitParameterPage.h"
#include "plot/MultiPlotPage.h"
#include "plot/PlotContainer.h"
#include "plot/SelectionPage.h"

void PlotContainer::drawMulitPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawMultiPlotPage(*d, scene);
}

void PlotContainer::drawSelectionCdfPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawSelectionPage(*d, scene);
}

void PlotContainer::drawFitParameterDistributionPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawFitParameterPage(*d, scene);
}
