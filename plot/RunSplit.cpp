#include "plot/RunSplit.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/SelectionColumns.h"
#include "vtk/vtkCombinedFilterAndSelectedRows.h"

#include <vtkAnnotationLink.h>
#include <vtkNew.h>

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

bool namesTime(const std::string& name)
{
  for (const char* word : {"Value", "Time", "Period"})
  {
    if (name.find(word) != std::string::npos)
      return true;
  }
  return false;
}

/// The filter writes no markers when nothing is selected; those of the selection before would stay
/// highlighted.
void clearMarkers(vtkTable* table)
{
  for (const char* name :
       {ComplementSelectionColumn, ReducedSelectionColumn, RemainderSelectionColumn})
  {
    if (auto* markers = vtkDataArray::SafeDownCast(columnNamed(table, name)))
    {
      markers->Fill(0.0);
      markers->Modified();
      table->Modified();
    }
  }
}

} // namespace

int timeColumnOf(const PlotState& state)
{
  for (int column = 0; column < state.table->GetNumberOfColumns(); ++column)
  {
    if (namesTime(columnName(state.table, column)))
      return column;
  }
  return firstOf(state.metaData->parameterColumns) - 2;
}

RunSplit splitRuns(PlotState& state, vtkAnnotationLink* link)
{
  clearMarkers(state.table);
  const std::vector<int>& parameters = state.metaData->parameterColumns;
  vtkNew<vtkCombinedFilterAndSelectedRows> filter;
  filter->ParameterColumns = parameters;
  filter->SetParaCount(static_cast<vtkIdType>(parameters.size()));
  filter->SetAnnotationLayersConnection(link->GetOutputPort(annotationsPort));
  filter->SetSelectionConnection(link->GetOutputPort(selectionPort));
  filter->SetInputData(0, state.table);
  filter->AddOriginalRowIdsArrayOff();
  filter->SetTimeColumnIndex(timeColumnOf(state));
  filter->SetStride(state.metaData->getStride());
  filter->Update();
  RunSplit split;
  split.selected = vtkSmartPointer<vtkTable>::New();
  split.selected->ShallowCopy(filter->GetOutput(0));
  split.remaining = filter->GetOutput(1);
  return split;
}

} // namespace Talmesh::plot
