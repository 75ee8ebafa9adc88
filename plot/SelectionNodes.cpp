#include "plot/SelectionNodes.h"

#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkInformationObjectBaseKey.h>
#include <vtkNew.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <algorithm>

namespace Talmesh::plot
{

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

} // namespace Talmesh::plot
