#include "plot/SelectionFlags.h"

#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/CombinedSelection.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLayers.h>
#include <vtkIdTypeArray.h>
#include <vtkSelection.h>

#include <algorithm>

namespace Talmesh::plot
{

std::vector<int> columnsOfAll(const PlotState& state)
{
  std::vector<int> columns;
  for (int column = 0; column < static_cast<int>(state.table->GetNumberOfColumns()); ++column)
  {
    if (state.options.showsSelectionMarks || !isSelectionMark(columnName(state.table, column)))
      columns.push_back(column);
  }
  return columns;
}

vtkSmartPointer<vtkIntArray> selectionFlags(const PlotState& state)
{
  vtkAnnotationLayers* layers = state.annotationLink->GetAnnotationLayers();
  vtkSelection* current = state.annotationLink->GetCurrentSelection();
  if (!layers && !current)
    return nullptr;
  const auto combined = Talmesh::combineSelections(current, layers);
  const auto indices = Talmesh::toRowIndices(combined.selection, state.table);
  if (!indices)
    return nullptr;
  const vtkIdType rows = state.table->GetNumberOfRows();
  const std::vector<bool> marked = Talmesh::selectedRows(indices, rows).marked;
  auto flags = vtkSmartPointer<vtkIntArray>::New();
  flags->SetName(selectionFlagColumn);
  flags->SetNumberOfValues(rows);
  std::copy(marked.begin(), marked.end(), flags->GetPointer(0));
  return flags;
}

void selectFlaggedRows(PlotState& state)
{
  const int last = static_cast<int>(state.table->GetNumberOfColumns()) - 1;
  auto* flags = vtkIntArray::SafeDownCast(columnAt(state.table, last));
  if (!flags)
    return;
  const vtkIdType rows = std::min(state.table->GetNumberOfRows(), flags->GetNumberOfTuples());
  vtkNew<vtkIdTypeArray> flagged;
  for (vtkIdType row = 0; row < rows; ++row)
  {
    if (flags->GetTypedComponent(row, 0) == 1)
      flagged->InsertNextValue(row);
  }
  state.annotationLink->SetCurrentSelection(wrapRowSelection(flagged));
}

} // namespace Talmesh::plot
