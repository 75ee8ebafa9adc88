#include "plot/Clustering.h"
#include "plot/ColumnReduction.h"
#include "plot/ColumnScaling.h"
#include "plot/KsComparison.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/Quartiles.h"
#include "plot/RankedTables.h"
#include "plot/SelectionFlags.h"

bool PlotContainer::getDiagnosticsShown() const
{
  return d->diagnosticsShown;
}

void PlotContainer::setDiagnosticsShown(bool show)
{
  d->diagnosticsShown = show;
}

void PlotContainer::generateRankedParameters(vtkSmartPointer<vtkTable> source,
                                             std::size_t tableIndex)
{
  Talmesh::plot::generateRankedParameters(*d, source, tableIndex);
}

void PlotContainer::ksTestSelection(unsigned long first, unsigned long second)
{
  Talmesh::plot::testKolmogorovSmirnov(*d, first, second);
}

void PlotContainer::generateQuartiles()
{
  Talmesh::plot::generateQuartiles(*d);
}

void PlotContainer::clusterTimeSeries(int clusters, int mode)
{
  Talmesh::plot::clusterTimeSeries(*d, clusters, mode);
}

void PlotContainer::selectionsFromClusters(std::string const& prefix,
                                           std::vector<ParameterSelection*>& selections)
{
  Talmesh::plot::appendClusterSelections(*d, prefix, selections);
}

void PlotContainer::scaleColumn(double* factors, int column)
{
  Talmesh::plot::scaleColumn(*d, factors, column);
}

void PlotContainer::scaleRelativeToMaxWithinTrajectory(int column)
{
  Talmesh::plot::scaleToRunMaximum(*d, column);
}

void PlotContainer::scaleColumnByColumn(int column, int byColumn, bool divide)
{
  Talmesh::plot::scaleColumnByColumn(*d, column, byColumn, divide);
}

void PlotContainer::shrinkToColumnSelection()
{
  Talmesh::plot::reduceToUsedColumns(*d);
  if (vtkSmartPointer<vtkIntArray> flags = Talmesh::plot::selectionFlags(*d))
    Talmesh::plot::appendFlagColumn(*d, flags);
}
