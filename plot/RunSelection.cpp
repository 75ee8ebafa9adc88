#include "plot/RunSelection.h"

#include "external/ColumnNames.h"
#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "plot/RunLayout.h"
#include "plot/SelectionFlags.h"
#include "plot/StyleTable.h"
#include "plot/TableColumns.h"
#include "vtk/RowCopies.h"
#include "vtk/RowSelections.h"
#include "vtk/SelectionColumns.h"

#include <vtkIdTypeArray.h>
#include <vtkSelection.h>

#include <algorithm>
#include <limits>

namespace Talmesh::plot
{

namespace
{

constexpr int noColumn = -1;

int indexColumn(vtkTable* table)
{
  for (int column = 0; column < table->GetNumberOfColumns(); ++column)
  {
    if (labelsRunIndex(columnName(table, column)))
      return column;
  }
  return noColumn;
}

vtkDoubleArray* runsOfRows(vtkTable* table)
{
  return vtkDoubleArray::SafeDownCast(columnNamed(table, selectionPairToString(runIndexItem())));
}

vtkIdTypeArray* acceptedRows(const PlotState& state)
{
  if (!currentStyle(state).selectsAcceptedRuns)
    return nullptr;
  return vtkIdTypeArray::SafeDownCast(columnNamed(state.table, Talmesh::RemainderSelectionColumn));
}

/// The conversion to int is undefined for a value that int cannot hold.
bool fitsInt(double index)
{
  return index > std::numeric_limits<int>::min() - 1.0 &&
         index < std::numeric_limits<int>::max() + 1.0;
}

void insertRun(std::set<int>& runs, double index)
{
  if (fitsInt(index))
    runs.insert(static_cast<int>(index));
}

template <typename Flags>
std::set<int> runsOfFlaggedRows(vtkDoubleArray* runsOfRows, Flags* flags)
{
  const vtkIdType rows = std::min(runsOfRows->GetNumberOfTuples(), flags->GetNumberOfTuples());
  std::set<int> runs;
  for (vtkIdType row = 0; row < rows; ++row)
  {
    if (flags->GetTypedComponent(row, 0) != 0)
      insertRun(runs, runsOfRows->GetTypedComponent(row, 0));
  }
  return runs;
}

vtkIdType positionInRun(int offset, int stride)
{
  const int position = offset % stride;
  return position < 0 ? position + stride : position;
}

} // namespace

void selectRuns(PlotState& state, const std::set<int>& runs, int offset)
{
  const int stride = state.metaData->getStride();
  const int column = indexColumn(state.table);
  auto* runsOfRows = doubleColumn(state.table, column == noColumn ? 0 : column);
  if (!runsOfRows || stride < 1)
    return;
  const vtkIdType rows = state.table->GetNumberOfRows();
  const vtkIdType position = positionInRun(offset, stride);
  vtkNew<vtkIdTypeArray> selected;
  RunCursor cursor(runsOfRows, rows, stride);
  for (const int run : runs)
  {
    while (!cursor.atEnd() && run > cursor.run())
      cursor.toNextRun();
    // A last run that is cut short may end above the position.
    if (!cursor.atEnd() && cursor.run() == run && cursor.row() + position < rows)
      selected->InsertNextValue(cursor.row() + position);
  }
  state.annotationLink->SetCurrentSelection(wrapRowSelection(selected));
}

std::vector<PlacedRun> wholeRuns(const PlotState& state)
{
  std::vector<PlacedRun> runs;
  vtkDoubleArray* indices = runsOfRows(state.table);
  if (!indices)
    return runs;
  const RunLayout layout = {std::min(state.table->GetNumberOfRows(), indices->GetNumberOfTuples()),
                            state.metaData->getStride()};
  for (vtkIdType run = 0; run < layout.runs(); ++run)
  {
    const vtkIdType row = layout.firstRow(run);
    const double index = indices->GetTypedComponent(row, 0);
    if (fitsInt(index))
      runs.push_back({static_cast<int>(index), row});
  }
  return runs;
}

std::unique_ptr<ParameterSelection> selectedRuns(const PlotState& state)
{
  vtkDoubleArray* runs = runsOfRows(state.table);
  if (!runs)
    return nullptr;
  auto selection = std::make_unique<ParameterSelection>();
  if (vtkIdTypeArray* accepted = acceptedRows(state))
    selection->runs = runsOfFlaggedRows(runs, accepted);
  else if (const vtkSmartPointer<vtkIntArray> flags = selectionFlags(state))
    selection->runs = runsOfFlaggedRows(runs, flags.Get());
  else
    return nullptr;
  selection->sourceName = state.metaData->sourceName;
  selection->sourceId = state.metaData->sourceId;
  return selection;
}

vtkSmartPointer<vtkTable> tableOfRuns(const PlotState& state, const std::set<int>& runs)
{
  const int stride = state.metaData->getStride();
  int column = indexColumn(state.table);
  if (column == noColumn)
    column = firstOf(state.metaData->parameterColumns) - runIndexBeforeParameters;
  auto* runsOfRows = doubleColumn(state.table, column);
  if (!runsOfRows || stride < 1)
    return nullptr;
  std::vector<vtkIdType> rows;
  RunCursor cursor(runsOfRows, state.table->GetNumberOfRows(), stride);
  for (const int run : runs)
  {
    while (!cursor.atEnd() && cursor.run() != run)
      cursor.toNextRun();
    if (!cursor.atEnd())
      rows.push_back(cursor.row());
  }
  auto table = vtkSmartPointer<vtkTable>::New();
  Talmesh::copyColumnStructure(state.table, table);
  Talmesh::appendRows(state.table, rows, table);
  return table;
}

} // namespace Talmesh::plot
