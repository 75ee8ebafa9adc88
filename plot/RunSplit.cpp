#include "plot/RunSplit.h"

#include "external/ColumnNames.h"
#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/RowCopies.h"
#include "vtk/SelectionColumns.h"
#include "vtk/vtkCombinedFilterAndSelectedRows.h"

#include <vtkAnnotationLink.h>
#include <vtkDataSetAttributes.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>

#include <algorithm>
#include <initializer_list>
#include <new>
#include <string>
#include <vector>

namespace Talmesh::plot
{

namespace
{

/// Output ports of an annotation link.
enum LinkPort
{
  annotationsPort = 0,
  selectionPort = 2
};

using Names = std::vector<std::string>;

bool isMarker(const std::string& name)
{
  return name == ComplementSelectionColumn || name == ReducedSelectionColumn ||
         name == RemainderSelectionColumn;
}

/// Takes the markers of the selection before from the end of the plot table, so that they are
/// neither held beside the new ones nor copied into both parts. Those with columns behind them
/// stay, or these would change their places, and are cleared.
/// @return the names of the columns taken, in their order
Names takeMarkers(vtkTable* table)
{
  Names taken;
  for (int last = static_cast<int>(table->GetNumberOfColumns()) - 1;
       isMarker(columnName(table, last)); --last)
  {
    taken.insert(taken.begin(), columnName(table, last));
    // By its place: the table would take away the first column of its name.
    table->GetRowData()->RemoveArray(last);
  }
  for (int column = 0; column < table->GetNumberOfColumns(); ++column)
  {
    auto* markers = vtkDataArray::SafeDownCast(table->GetColumn(column));
    if (!markers || !isMarker(columnName(table, column)))
      continue;
    markers->Fill(0.0);
    markers->Modified();
    table->Modified();
  }
  return taken;
}

/// Markers of the selection before that are away while runs are split. The filter writes none when
/// nothing is selected, and none when it fails: plots keep those that they had seen unless the
/// columns are there.
class MarkersAway
{
public:
  explicit MarkersAway(vtkTable* plotTable)
      : table(plotTable)
      , taken(takeMarkers(plotTable))
  {
  }
  ~MarkersAway()
  {
    try
    {
      restore();
    }
    catch (const std::bad_alloc&)
    {
      // Without memory for them the next split that succeeds makes them.
    }
  }
  MarkersAway(const MarkersAway&) = delete;
  MarkersAway& operator=(const MarkersAway&) = delete;

private:
  void restore()
  {
    const auto rows = static_cast<std::size_t>(table->GetNumberOfRows());
    for (const std::string& name : taken)
      if (!columnNamed(table, name))
        table->AddColumn(makeIdColumn(name.c_str(), std::vector<vtkIdType>(rows, 0)));
  }

  vtkSmartPointer<vtkTable> table;
  Names taken;
};

/// The number of runs with a row that one of the columns marks. A selection covers some rows of
/// every run, so that the numbers of rows do not tell it.
std::size_t markedRuns(const PlotState& state, std::initializer_list<const char*> columns)
{
  const vtkIdType stride = std::max(state.metaData->getStride(), 1);
  const vtkIdType rows = state.table->GetNumberOfRows();
  std::vector<bool> marked(static_cast<std::size_t>(rows / stride + 1), false);
  for (const char* name : columns)
    if (auto* marks = vtkIdTypeArray::SafeDownCast(columnNamed(state.table, name)))
      for (vtkIdType row = 0; row < std::min(rows, marks->GetNumberOfTuples()); ++row)
        if (marks->GetTypedComponent(row, 0) != 0)
          marked[static_cast<std::size_t>(row / stride)] = true;
  return static_cast<std::size_t>(std::count(marked.begin(), marked.end(), true));
}

} // namespace

int timeColumnOf(const PlotState& state)
{
  for (int column = 0; column < state.table->GetNumberOfColumns(); ++column)
  {
    if (labelsTime(columnName(state.table, column)))
      return column;
  }
  return firstOf(state.metaData->parameterColumns) - timeBeforeParameters;
}

RunSplit splitRuns(PlotState& state, vtkAnnotationLink* link)
{
  const MarkersAway away(state.table);
  const int time = timeColumnOf(state);
  if (time < 0)
    // The filter would only complain.
    return {vtkSmartPointer<vtkTable>::New(), nullptr, 0, 0};
  const std::vector<int>& parameters = state.metaData->parameterColumns;
  vtkNew<vtkCombinedFilterAndSelectedRows> filter;
  filter->ParameterColumns = parameters;
  filter->SetParaCount(static_cast<vtkIdType>(parameters.size()));
  filter->SetAnnotationLayersConnection(link->GetOutputPort(annotationsPort));
  filter->SetSelectionConnection(link->GetOutputPort(selectionPort));
  filter->SetInputData(0, state.table);
  filter->AddOriginalRowIdsArrayOff();
  filter->SetTimeColumnIndex(time);
  filter->SetStride(state.metaData->getStride());
  filter->Update();
  RunSplit split;
  split.selected = vtkSmartPointer<vtkTable>::New();
  split.selected->ShallowCopy(filter->GetOutput(0));
  split.remaining = filter->GetOutput(1);
  split.selectedRuns = markedRuns(state, {RemainderSelectionColumn});
  split.remainingRuns = markedRuns(state, {ComplementSelectionColumn, ReducedSelectionColumn});
  return split;
}

} // namespace Talmesh::plot
