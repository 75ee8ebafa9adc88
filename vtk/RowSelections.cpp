#include "vtk/RowSelections.h"

#include "vtk/CombinedSelection.h"

#include <vtkAnnotationLink.h>
#include <vtkContextScene.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkInformationObjectBaseKey.h>
#include <vtkNew.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTable.h>

#include <algorithm>

namespace Talmesh
{

namespace
{

bool isSelected(bool before, bool hit, int mode)
{
  switch (mode)
  {
  case vtkContextScene::SELECTION_ADDITION:
    return before || hit;
  case vtkContextScene::SELECTION_SUBTRACTION:
    return before && !hit;
  case vtkContextScene::SELECTION_TOGGLE:
    return before != hit;
  default:
    return hit;
  }
}

vtkSmartPointer<vtkIdTypeArray> listOf(const std::vector<bool>& rows)
{
  auto list = vtkSmartPointer<vtkIdTypeArray>::New();
  for (std::size_t row = 0; row < rows.size(); ++row)
  {
    if (rows[row])
      list->InsertNextValue(static_cast<vtkIdType>(row));
  }
  return list;
}

} // namespace

vtkSmartPointer<vtkSelection> makeRowSelection(const std::vector<vtkIdType>& rows)
{
  vtkNew<vtkIdTypeArray> list;
  list->SetNumberOfValues(static_cast<vtkIdType>(rows.size()));
  std::copy(rows.begin(), rows.end(), list->GetPointer(0));
  return wrapRowSelection(list);
}

vtkSmartPointer<vtkSelection> wrapRowSelection(vtkIdTypeArray* rows)
{
  // VTK looks into the list of a node of indices without asking whether it has one.
  if (!rows)
    return makeRowSelection({});
  vtkNew<vtkSelectionNode> node;
  node->SetFieldType(vtkSelectionNode::ROW);
  node->SetContentType(vtkSelectionNode::INDICES);
  node->SetSelectionList(rows);
  auto selection = vtkSmartPointer<vtkSelection>::New();
  selection->AddNode(node);
  return selection;
}

vtkSmartPointer<vtkSelection> copySelection(vtkSelection* selection)
{
  auto copy = vtkSmartPointer<vtkSelection>::New();
  if (selection)
    copy->DeepCopy(selection);
  for (unsigned int i = 0; i < copy->GetNumberOfNodes(); ++i)
    copy->GetNode(i)->GetProperties()->Remove(vtkSelectionNode::PROP());
  return copy;
}

std::vector<bool> markedRows(vtkSelection* selection, vtkTable* table)
{
  const vtkIdType rows = table->GetNumberOfRows();
  const auto copy = combineSelections(selection, nullptr);
  const auto indices = toRowIndices(copy.selection, table);
  return indices ? selectedRows(indices, rows).marked
                 : std::vector<bool>(static_cast<std::size_t>(rows), false);
}

std::vector<bool> combineRows(const std::vector<bool>& before, const std::vector<bool>& hit,
                              int mode)
{
  std::vector<bool> after(before.size());
  for (std::size_t row = 0; row < after.size(); ++row)
    after[row] = isSelected(before[row], row < hit.size() && hit[row], mode);
  return after;
}

void selectRows(vtkAnnotationLink* link, vtkTable* table, const std::vector<bool>& hit, int mode)
{
  // The announcement may end whatever holds the link.
  const vtkSmartPointer<vtkAnnotationLink> kept = link;
  const std::vector<bool> before = markedRows(link->GetCurrentSelection(), table);
  link->SetCurrentSelection(wrapRowSelection(listOf(combineRows(before, hit, mode))));
}

vtkSmartPointer<vtkIdTypeArray> listSelectedRows(vtkAnnotationLink* link, vtkTable* table)
{
  return listOf(markedRows(link->GetCurrentSelection(), table));
}

} // namespace Talmesh
