#include "SelectionBuilders.h"

#include <vtkDoubleArray.h>
#include <vtkInformation.h>

#include "VtkTestSupport.h"

vtkSmartPointer<vtkSelectionNode> makeRowNode(const std::vector<vtkIdType>& rows, bool inverse)
{
  auto node = vtkSmartPointer<vtkSelectionNode>::New();
  node->SetContentType(vtkSelectionNode::INDICES);
  node->SetFieldType(vtkSelectionNode::ROW);
  node->SetSelectionList(makeIds(rows));
  if (inverse)
    node->GetProperties()->Set(vtkSelectionNode::INVERSE(), 1);
  return node;
}

vtkSmartPointer<vtkSelection> makeRowSelection(const std::vector<vtkIdType>& rows, bool inverse)
{
  auto selection = vtkSmartPointer<vtkSelection>::New();
  selection->AddNode(makeRowNode(rows, inverse));
  return selection;
}

vtkSmartPointer<vtkAnnotation> makeAnnotation(vtkSelection* selection, Says enabled, Says hidden)
{
  auto annotation = vtkSmartPointer<vtkAnnotation>::New();
  annotation->SetSelection(selection);
  if (enabled != Says::Nothing)
    annotation->GetInformation()->Set(vtkAnnotation::ENABLE(), enabled == Says::Yes);
  if (hidden != Says::Nothing)
    annotation->GetInformation()->Set(vtkAnnotation::HIDE(), hidden == Says::Yes);
  return annotation;
}

vtkSmartPointer<vtkAnnotationLayers>
makeLayers(const std::vector<vtkSmartPointer<vtkAnnotation>>& annotations)
{
  auto layers = vtkSmartPointer<vtkAnnotationLayers>::New();
  for (const auto& annotation : annotations)
    layers->AddAnnotation(annotation);
  return layers;
}

std::vector<NodeText> describe(vtkSelection* selection)
{
  std::vector<NodeText> nodes;
  for (unsigned int i = 0; selection && i < selection->GetNumberOfNodes(); ++i)
  {
    vtkSelectionNode* node = selection->GetNode(i);
    NodeText text{node->GetContentType(),
                  node->GetFieldType(),
                  node->GetProperties()->Get(vtkSelectionNode::INVERSE()),
                  {}};
    auto* list = vtkIdTypeArray::SafeDownCast(node->GetSelectionList());
    for (vtkIdType j = 0; list && j < list->GetNumberOfValues(); ++j)
      text.ids.push_back(list->GetValue(j));
    nodes.push_back(text);
  }
  return nodes;
}

vtkSmartPointer<vtkTable> makeThreeRuns()
{
  auto table = makeTable({{"Time", {0, 1, 2, 0, 1, 2, 0, 1, 2}}});
  table->AddColumn(makeColumn<vtkIdTypeArray>("row", {0, 1, 2, 3, 4, 5, 6, 7, 8}));
  return table;
}
