#include "plot/ColumnReduction.h"
#include "plot/MultiPlotPage.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/SelectionPage.h"

void PlotContainer::drawMulitPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawMultiPlotPage(*d, scene);
}

void PlotContainer::drawSelectionCdfPlot(vtkContextScene* scene)
{
  Talmesh::plot::drawSelectionPage(*d, scene);
}

void PlotContainer::shrinkToColumnSelection()
{
  Talmesh::plot::reduceToUsedColumns(*d);
  if (vtkSmartPointer<vtkIntArray> flags = Talmesh::plot::selectionFlags(*d))
    Talmesh::plot::appendFlagColumn(*d, flags);
}
