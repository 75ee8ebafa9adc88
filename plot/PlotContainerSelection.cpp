#include "external/ParameterSelection.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/RunSelection.h"
#include "plot/SelectionFlags.h"

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
