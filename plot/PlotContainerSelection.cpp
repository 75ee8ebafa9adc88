#include "external/ParameterSelection.h"
#include "plot/Clustering.h"
#include "plot/KsComparison.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/Quartiles.h"
#include "plot/RankedTables.h"
#include "plot/RunSelection.h"
#include "plot/SelectionFlags.h"

#include <utility>

vtkAnnotationLink* PlotContainer::getAnnotationLink() const
{
  return d->annotationLink;
}

vtkIntArray* PlotContainer::getCurrentSelection() const
{
  const vtkSmartPointer<vtkIntArray> flags = Talmesh::plot::selectionFlags(*d);
  if (flags)
    flags->Register(nullptr);
  return flags;
}

void PlotContainer::selectionFromFlagColumn()
{
  Talmesh::plot::selectFlaggedRows(*d);
}

void PlotContainer::setSelection(ParameterSelection* runs, int offset)
{
  if (runs)
    Talmesh::plot::selectRuns(*d, runs->runs, offset);
}

ParameterSelection* PlotContainer::getSelection()
{
  return Talmesh::plot::selectedRuns(*d).release();
}

void PlotContainer::setExternalSelection(ParameterSelection* runs)
{
  if (!runs)
    return;
  const vtkSmartPointer<vtkTable> chosen = Talmesh::plot::tableOfRuns(*d, runs->runs);
  if (!chosen)
    return;
  const std::size_t tablesBefore = d->derivedTables.size();
  try
  {
    d->derivedTables.push_back(chosen);
    generateRankedParameters(chosen, d->derivedTables.size());
  }
  catch (...)
  {
    d->derivedTables.resize(tablesBefore);
    throw;
  }
  dirty();
  drawOrReport();
}

const std::vector<vtkSmartPointer<vtkTable>>& PlotContainer::getDerivedTables() const
{
  return d->derivedTables;
}

vtkTable* PlotContainer::getQuartileTable() const
{
  return d->quartileTable;
}

vtkIntArray* PlotContainer::getClusterMembership() const
{
  return d->clusterMembership;
}

const std::vector<PlotContainer::KsStatistics>& PlotContainer::getKsResults() const
{
  return d->ksResults;
}

const std::vector<TestedSamples>& PlotContainer::getTestedSamples() const
{
  return d->testedSamples;
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

void PlotContainer::refreshQuartiles()
{
  Talmesh::plot::refreshQuartiles(*d);
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
