#include "app/session/SessionTable.h"

#include "app/session/DumpedTable.h"
#include "plot/BinaryDump.h"
#include "plot/BorrowedColumn.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"

#include <unordered_set>

namespace Talmesh::app
{

namespace
{

/// Adds the columns of the study's items. The container's table has those that it shows; the others
/// come from the study.
void addItems(plot::PlotState& dumped, const Study& study, vtkTable* shown)
{
  const LinePlotTable& runs = *study.runs;
  const auto rows = static_cast<vtkIdType>(runs.numberOfTrajectories * runs.pointsPerTrajectory);
  for (std::size_t i = 0; i < runs.items.size() && i < runs.values.size(); ++i)
  {
    const std::string label = selectionPairToString(runs.items[i]);
    vtkSmartPointer<vtkAbstractArray> column = plot::columnNamed(shown, label);
    if (!column)
      column = plot::borrowColumn(label, runs.values[i], rows, study.runs);
    dumped.table->AddColumn(column);
    dumped.columnItems.push_back(runs.items[i]);
  }
}

bool isKept(const std::string& name)
{
  return !name.empty() && !plot::isSelectionMark(name);
}

void addFurtherColumns(vtkTable* dumped, vtkTable* shown)
{
  for (int i = 0; i < shown->GetNumberOfColumns(); ++i)
  {
    const std::string name = plot::columnName(shown, i);
    if (isKept(name) && plot::columnIndex(dumped, name) < 0)
      dumped->AddColumn(shown->GetColumn(i));
  }
}

} // namespace

std::string repeatedItem(const Study& study)
{
  std::unordered_set<std::string> names;
  if (study.runs)
    for (const TypedConcentrationName& item : study.runs->items)
      if (!names.insert(selectionPairToString(item)).second)
        return selectionPairToString(item);
  return {};
}

QByteArray dumpStudy(const Study& study, PlotContainer& container, vtkTable* shown)
{
  plot::PlotState dumped;
  dumped.table = vtkSmartPointer<vtkTable>::New();
  if (study.runs)
    addItems(dumped, study, shown);
  addFurtherColumns(dumped.table, shown);
  if (const auto flags = plot::selectionFlags(stateOf(container)))
    dumped.table->AddColumn(flags);
  if (dumped.table->GetNumberOfColumns() > mostSessionColumns)
    return {};
  return plot::writeDump(dumped);
}

DumpedPlaces::DumpedPlaces(vtkTable* shown)
{
  int next = 0;
  for (int i = 0; i < shown->GetNumberOfColumns(); ++i)
    places.push_back(isKept(plot::columnName(shown, i)) ? next++ : -1);
}

int DumpedPlaces::of(int column) const
{
  const bool exists = column >= 0 && column < static_cast<int>(places.size());
  return exists ? places[static_cast<std::size_t>(column)] : -1;
}

} // namespace Talmesh::app
