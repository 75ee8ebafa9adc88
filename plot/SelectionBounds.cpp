#include "plot/SelectionBounds.h"

#include "plot/PlotState.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "vtk/CombinedSelection.h"

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

/// Whether the lists of a selection are row numbers.
bool listsRows(vtkSelection* selection)
{
  for (unsigned int i = 0; i < selection->GetNumberOfNodes(); ++i)
  {
    vtkSelectionNode* node = selection->GetNode(i);
    if (node->GetFieldType() != vtkSelectionNode::ROW ||
        node->GetContentType() != vtkSelectionNode::INDICES)
      return false;
  }
  return true;
}

/// A selection of row numbers that names the same rows of the table, null if VTK finds none.
vtkSmartPointer<vtkSelection> asRows(vtkSelection* selection, vtkTable* table)
{
  const auto copy = combineSelections(selection, nullptr);
  return listsRows(selection) ? copy.selection : toRowIndices(copy.selection, table);
}

void cutLists(vtkSelection* selection, vtkIdType rows)
{
  for (unsigned int i = 0; i < selection->GetNumberOfNodes(); ++i)
  {
    vtkSelectionNode* node = selection->GetNode(i);
    if (auto* ids = vtkIdTypeArray::SafeDownCast(node->GetSelectionList()))
      node->SetSelectionList(cut(ids, rows));
  }
}

/// Keeps the container from reacting to one selection, also when an observer of the link throws.
/// What an observer selects in answer to it is another one.
class Overlooked
{
public:
  Overlooked(vtkSelectionUpdateCallback* by, vtkSelection* selection)
      : callback(by)
      , before(by->Overlooked)
  {
    callback->Overlooked = selection;
  }
  ~Overlooked() { callback->Overlooked = before; }
  Overlooked(const Overlooked&) = delete;
  Overlooked& operator=(const Overlooked&) = delete;

private:
  /// An observer may end the container.
  vtkSmartPointer<vtkSelectionUpdateCallback> callback;
  vtkSelection* before;
};

} // namespace

void cutSelectionToTable(PlotState& state)
{
  const vtkSmartPointer<vtkAnnotationLink> link = state.annotationLink;
  vtkSelection* selection = link->GetCurrentSelection();
  const vtkIdType rows = state.table->GetNumberOfRows();
  if (!selection || rows == 0 || (listsRows(selection) && fits(selection, rows)))
    return;
  const vtkSmartPointer<vtkSelection> inside = asRows(selection, state.table);
  if (!inside)
    return;
  cutLists(inside, rows);
  const Overlooked overlooked(state.selectionUpdateCallback, inside);
  link->SetCurrentSelection(inside);
}

} // namespace Talmesh::plot
