#include "vtk/PlottedRows.h"

#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkDataSetAttributes.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkPlot.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTable.h>

#include <algorithm>

namespace Talmesh
{

namespace
{

/// Whether the chart's way, to take the first list for row numbers, is right.
bool isOneListOfRows(vtkSelection* selection)
{
  if (selection->GetNumberOfNodes() != 1)
    return selection->GetNumberOfNodes() == 0;
  vtkSelectionNode* node = selection->GetNode(0);
  return node->GetContentType() == vtkSelectionNode::INDICES &&
         node->GetProperties()->Get(vtkSelectionNode::INVERSE()) == 0;
}

bool speaksOfSinglePlots(vtkSelection* selection)
{
  for (unsigned int i = 0; i < selection->GetNumberOfNodes(); ++i)
  {
    if (selection->GetNode(i)->GetProperties()->Has(vtkSelectionNode::COMPOSITE_INDEX()))
      return true;
  }
  return false;
}

/// VTK reports an error at each search for pedigree ids in a table that has none.
bool canBeFound(vtkSelection* selection, vtkTable* table)
{
  for (unsigned int i = 0; i < selection->GetNumberOfNodes(); ++i)
  {
    if (selection->GetNode(i)->GetContentType() == vtkSelectionNode::PEDIGREEIDS &&
        !table->GetRowData()->GetPedigreeIds())
      return false;
  }
  return true;
}

void cut(vtkPlot* plot)
{
  vtkIdTypeArray* ids = plot->GetSelection();
  if (!ids)
    return;
  const vtkIdType rows = plot->GetInput()->GetNumberOfRows();
  const auto isInside = [rows](vtkIdType id) { return id >= 0 && id < rows; };
  const vtkIdType* const begin = ids->GetPointer(0);
  const vtkIdType* const end = begin + ids->GetNumberOfValues();
  if (std::all_of(begin, end, isInside))
    return;
  vtkNew<vtkIdTypeArray> inside;
  std::for_each(begin, end,
                [&](vtkIdType id)
                {
                  if (isInside(id))
                    inside->InsertNextValue(id);
                });
  plot->SetSelection(inside);
}

} // namespace

void showRowsOfPlot(vtkPlot* plot, vtkAnnotationLink* link)
{
  vtkSelection* selection = link->GetCurrentSelection();
  if (!plot->GetInput() || !plot->GetSelectable() || !selection)
    return;
  if (isOneListOfRows(selection) || speaksOfSinglePlots(selection))
    cut(plot);
  else if (canBeFound(selection, plot->GetInput()))
  {
    plot->SetSelection(listSelectedRows(link, plot->GetInput()));
    cut(plot);
  }
  else
    plot->SetSelection(nullptr);
}

} // namespace Talmesh
