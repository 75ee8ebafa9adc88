#include "plot/vtkSelectionUpdateCallback.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/ContainerAccess.h"
#include "plot/DerivedTables.h"
#include "plot/KsComparison.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/Redraw.h"
#include "plot/RunSplit.h"
#include "plot/SelectionBounds.h"
#include "plot/SettingsSignals.h"
#include "vtk/KeptMemory.h"

#include <vtkAnnotationLink.h>
#include <vtkObjectFactory.h>
#include <vtkSmartPointer.h>

#include <exception>
#include <functional>
#include <iostream>

vtkStandardNewMacro(vtkSelectionUpdateCallback);

namespace
{

/// Appends a further data set and ranks its parameters.
/// @return the slot of its rank table
std::size_t addDataSet(PlotContainer& container, const vtkSmartPointer<vtkTable>& data)
{
  auto& tables = stateOf(container).derivedTables;
  tables.push_back(data);
  const std::size_t rankTable = tables.size();
  container.generateRankedParameters(data, rankTable);
  return rankTable;
}

void compareRuns(PlotContainer& container, vtkAnnotationLink* link)
{
  const Talmesh::plot::RunSplit split = Talmesh::plot::splitRuns(stateOf(container), link);
  if (split.selected->GetNumberOfRows() < 1 || !split.remaining)
    return;
  const std::size_t selected = addDataSet(container, split.selected);
  const std::size_t remaining = addDataSet(container, split.remaining);
  container.ksTestSelection(selected, remaining);
  Talmesh::plot::alignResults(stateOf(container), selected);
  const auto& tables = container.getDerivedTables();
  Talmesh::plot::noteSamples(stateOf(container),
                             {split.selected, tables[selected], split.selectedRuns},
                             {split.remaining, tables[remaining], split.remainingRuns});
}

/// VTK's event dispatch, from which the callback is called, must not be left by an exception.
void reportFailure(PlotContainer& container, const std::function<void()>& step)
{
  try
  {
    step();
  }
  catch (const std::exception& problem)
  {
    Talmesh::plot::unblockSettings(stateOf(container));
    std::cerr << "void vtkSelectionUpdateCallback::Execute(vtkObject*, unsigned long, void*): "
              << problem.what() << std::endl;
  }
}

/// Comparisons of a selection that is gone are not kept either.
bool isRefused(PlotContainer& container)
{
  Talmesh::plot::PlotState& state = stateOf(container);
  reportFailure(container, [&] { state.steps.reactionOwed = !Talmesh::plot::mayDraw(state); });
  if (!state.steps.reactionOwed)
    return false;
  state.derivedTables.resize(Talmesh::plot::ownSlots);
  state.ksResults.clear();
  state.testedSamples.clear();
  return true;
}

} // namespace

void vtkSelectionUpdateCallback::Execute(vtkObject* caller, unsigned long, void*)
{
  auto* link = vtkAnnotationLink::SafeDownCast(caller);
  if (!link || !this->Container ||
      (this->Overlooked && link->GetCurrentSelection() == this->Overlooked))
    return;
  // Who watches the selection may end the container, and with it the link that holds this callback.
  const vtkSmartPointer<vtkSelectionUpdateCallback> kept = this;
  PlotContainer& container = *this->Container;
  // A reaction would cut the selection to rows that it does not speak of, and draw another chart.
  if (!Talmesh::plot::showsSelectableRows(stateOf(container)))
    return;
  if (link == container.getAnnotationLink())
    reportFailure(container, [&] { Talmesh::plot::cutSelectionToTable(stateOf(container)); });
  if (!this->Container || container.getMetaData()->parameterColumns.empty())
    return;
  if (isRefused(container))
    return;
  reportFailure(container,
                [&]
                {
                  const Talmesh::KeptMemory ofPartsBefore;
                  stateOf(container).derivedTables.resize(Talmesh::plot::ownSlots);
                  compareRuns(container, link);
                });
  if (this->Container)
    reportFailure(container, [&] { container.redraw(); });
}
