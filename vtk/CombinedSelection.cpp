#include "vtk/CombinedSelection.h"

#include <vtkAnnotation.h>
#include <vtkAnnotationLayers.h>
#include <vtkConvertSelection.h>
#include <vtkDataArray.h>
#include <vtkDoubleArray.h>
#include <vtkExecutive.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkNew.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTable.h>

#include <algorithm>
#include <limits>

namespace Talmesh
{
namespace
{
// VTK drops rows when it unites with a node that lists nothing, and looks into the missing list
// when it converts one.
bool listsNothing(vtkSelectionNode* node)
{
  switch (node->GetContentType())
  {
  case vtkSelectionNode::GLOBALIDS:
  case vtkSelectionNode::PEDIGREEIDS:
  case vtkSelectionNode::VALUES:
  case vtkSelectionNode::INDICES:
    return node->GetSelectionList() == nullptr;
  default:
    return false;
  }
}

// VTK leaves out ids that a list already has, but looks them up in an index that it does not renew
// after it has added to the list.
void unite(vtkSelection* combined, vtkSelectionNode* node)
{
  for (unsigned int i = 0; i < combined->GetNumberOfNodes(); ++i)
  {
    if (vtkAbstractArray* list = combined->GetNode(i)->GetSelectionList())
      list->ClearLookup();
  }
  combined->Union(node);
}

void addRow(SelectedRows& rows, vtkIdType row)
{
  rows.listed.push_back(row);
  rows.marked[static_cast<std::size_t>(row)] = true;
}

void addListedRows(SelectedRows& rows, vtkIdTypeArray* list, vtkIdType rowCount)
{
  for (vtkIdType i = 0; i < list->GetNumberOfValues(); ++i)
  {
    const vtkIdType row = list->GetValue(i);
    if (row >= 0 && row < rowCount)
      addRow(rows, row);
  }
}

void addUnlistedRows(SelectedRows& rows, vtkIdTypeArray* list, vtkIdType rowCount)
{
  std::vector<bool> isListed(static_cast<std::size_t>(rowCount), false);
  for (vtkIdType i = 0; i < list->GetNumberOfValues(); ++i)
  {
    const vtkIdType row = list->GetValue(i);
    if (row >= 0 && row < rowCount)
      isListed[static_cast<std::size_t>(row)] = true;
  }
  for (vtkIdType row = 0; row < rowCount; ++row)
  {
    if (!isListed[static_cast<std::size_t>(row)])
      addRow(rows, row);
  }
}

} // namespace

bool contributes(vtkAnnotation* annotation)
{
  vtkInformation* info = annotation->GetInformation();
  if (!info->Has(vtkAnnotation::ENABLE()))
    return true;
  const int enabled = info->Get(vtkAnnotation::ENABLE());
  if (enabled == 0)
    return false;
  const bool hidden =
      info->Has(vtkAnnotation::HIDE()) != 0 && info->Get(vtkAnnotation::HIDE()) == 1;
  return !(enabled == 1 && hidden);
}

CombinedSelection combineSelections(vtkSelection* selection, vtkAnnotationLayers* annotations)
{
  CombinedSelection combined;
  combined.selection = vtkSmartPointer<vtkSelection>::New();
  if (selection)
  {
    // Selections copied shallowly share their nodes, and both uniting and converting write to them.
    combined.selection->DeepCopy(selection);
    for (unsigned int i = combined.selection->GetNumberOfNodes(); i-- > 0;)
    {
      if (listsNothing(combined.selection->GetNode(i)))
        combined.selection->RemoveNode(i);
    }
    ++combined.sources;
  }
  const unsigned int count = annotations ? annotations->GetNumberOfAnnotations() : 0;
  for (unsigned int a = 0; a < count; ++a)
  {
    vtkAnnotation* annotation = annotations->GetAnnotation(a);
    if (!contributes(annotation))
      continue;
    ++combined.sources;
    vtkSelection* annotated = annotation->GetSelection();
    const unsigned int nodes = annotated ? annotated->GetNumberOfNodes() : 0;
    for (unsigned int i = 0; i < nodes; ++i)
    {
      if (!listsNothing(annotated->GetNode(i)))
        unite(combined.selection, annotated->GetNode(i));
    }
  }
  return combined;
}

vtkSmartPointer<vtkSelection> toRowIndices(vtkSelection* combined, vtkTable* table)
{
  // vtkConvertSelection::ToSelectionType() would do, but it hides whether the conversion failed.
  vtkNew<vtkTable> data;
  data->ShallowCopy(table);
  vtkNew<vtkConvertSelection> convert;
  convert->SetInputData(0, combined);
  convert->SetInputData(1, data);
  convert->SetOutputType(vtkSelectionNode::INDICES);
  convert->SetInputFieldType(vtkSelectionNode::ROW);
  if (!convert->GetExecutive()->Update())
    return nullptr;
  return convert->GetOutput();
}

SelectedRows selectedRows(vtkSelection* indices, vtkIdType rowCount)
{
  SelectedRows rows;
  rows.marked.assign(static_cast<std::size_t>(rowCount), false);
  for (unsigned int i = 0; i < indices->GetNumberOfNodes(); ++i)
  {
    vtkSelectionNode* node = indices->GetNode(i);
    auto* list = vtkArrayDownCast<vtkIdTypeArray>(node->GetSelectionList());
    if (node->GetFieldType() != vtkSelectionNode::ROW || !list)
      continue;
    if (node->GetProperties()->Get(vtkSelectionNode::INVERSE()) == 0)
      addListedRows(rows, list, rowCount);
    else
      addUnlistedRows(rows, list, rowCount);
  }
  return rows;
}

std::vector<double> rowTimes(vtkAbstractArray* column, vtkIdType rowCount)
{
  std::vector<double> times(static_cast<std::size_t>(rowCount),
                            std::numeric_limits<double>::quiet_NaN());
  auto* values = vtkArrayDownCast<vtkDataArray>(column);
  const vtkIdType known = values ? std::min(rowCount, values->GetNumberOfTuples()) : 0;
  auto* doubles = vtkArrayDownCast<vtkDoubleArray>(column);
  if (doubles && doubles->GetNumberOfComponents() == 1)
    std::copy_n(doubles->GetPointer(0), known, times.begin());
  else
  {
    for (vtkIdType row = 0; row < known; ++row)
      times[static_cast<std::size_t>(row)] = values->GetComponent(row, 0);
  }
  return times;
}
} // namespace Talmesh
