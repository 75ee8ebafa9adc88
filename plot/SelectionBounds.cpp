#include "plot/SelectionBounds.h"

#include "plot/PlotState.h"
#include "plot/vtkSelectionUpdateCallback.h"

#include <vtkIdTypeArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

namespace Talmesh::plot
{

namespace
{

bool fits(vtkIdTypeArray* ids, vtkIdType rows)
{
  for (vtkIdType i = 0; i < ids->GetNumberOfValues(); ++i)
  {
    if (ids->GetValue(i) < 0 || ids->GetValue(i) >= rows)
      return false;
  }
  return true;
}

bool fits(vtkSelection* selection, vtkIdType rows)
{
  for (unsigned int i = 0; i < selection->GetNumberOfNodes(); ++i)
  {
    auto* ids = vtkIdTypeArray::SafeDownCast(selection->GetNode(i)->GetSelectionList());
    if (ids && !fits(ids, rows))
      return false;
  }
  return true;
}

vtkSmartPointer<vtkIdTypeArray> cut(vtkIdTypeArray* ids, vtkIdType rows)
{
  auto inside = vtkSmartPointer<vtkIdTypeArray>::New();
  inside->SetName(ids->GetName());
  for (vtkIdType i = 0; i < ids->GetNumberOfValues(); ++i)
  {
    if (ids->GetValue(i) >= 0 && ids->GetValue(i) < rows)
      inside->InsertNextValue(ids->GetValue(i));
  }
  return inside;
}

} // namespace

void cutSelectionToTable(PlotState& state)
{
  vtkSelection* selection = state.annotationLink->GetCurrentSelection();
  const vtkIdType rows = state.table->GetNumberOfRows();
  if (!selection || fits(selection, rows))
    return;
  vtkNew<vtkSelection> inside;
  inside->DeepCopy(selection);
  for (unsigned int i = 0; i < inside->GetNumberOfNodes(); ++i)
  {
    vtkSelectionNode* node = inside->GetNode(i);
    if (auto* ids = vtkIdTypeArray::SafeDownCast(node->GetSelectionList()))
      node->SetSelectionList(cut(ids, rows));
  }
  PlotContainer* container = state.selectionUpdateCallback->Container;
  state.selectionUpdateCallback->Container = nullptr;
  state.annotationLink->SetCurrentSelection(inside);
  state.selectionUpdateCallback->Container = container;
}

} // namespace Talmesh::plot
