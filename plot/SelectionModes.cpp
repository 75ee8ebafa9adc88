#include "plot/SelectionModes.h"

#include "plot/SelectionFlags.h"
#include "plot/SelectionNodes.h"

#include <vtkAnnotationLink.h>
#include <vtkContextScene.h>
#include <vtkTable.h>

namespace Talmesh::plot
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

} // namespace Talmesh::plot
