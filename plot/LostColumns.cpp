#include "plot/LostColumns.h"

#include "plot/TableColumns.h"

#include <vtkChart.h>
#include <vtkContextMapper2D.h>
#include <vtkDataObject.h>
#include <vtkInformation.h>
#include <vtkPlotPoints.h>
#include <vtkTable.h>

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

/// Whether the columns named as x and y are there.
bool hasXY(vtkPlot* plot)
{
  for (int axis = plot->GetUseIndexForXSeries() ? 1 : 0; axis < 2; ++axis)
  {
    vtkInformation* named = plot->GetData()->GetInputArrayInformation(axis);
    const char* name = named->Get(vtkDataObject::FIELD_NAME());
    if (name && !hasNumbers(plot->GetInput(), name))
      return false;
  }
  return true;
}

std::vector<std::string> numericColumns(vtkTable* table)
{
  std::vector<std::string> names;
  for (int i = 0; i < table->GetNumberOfColumns(); ++i)
  {
    const std::string name = columnName(table, i);
    if (hasNumbers(table, name))
      names.push_back(name);
  }
  return names;
}

void keepColors(vtkPlot* plot)
{
  auto* points = vtkPlotPoints::SafeDownCast(plot);
  if (points && points->GetScalarVisibility() &&
      !hasNumbers(plot->GetInput(), points->GetColorArrayName()))
    points->ScalarVisibilityOff();
}

} // namespace

bool hasNumbers(vtkTable* table, const std::string& name)
{
  auto* column = vtkDataArray::SafeDownCast(columnNamed(table, name));
  return column && column->GetNumberOfTuples() == table->GetNumberOfRows();
}

void LostColumns::hidePlots(vtkChart* chart)
{
  std::map<vtkPlot*, Seen> still;
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (!plot || !plot->GetInput() || !plot->GetVisible())
      continue;
    const bool stacks = plot->IsA("vtkPlotBar") || plot->IsA("vtkPlotStacked");
    if (!hasXY(plot) || (stacks && !hasSeries(plot)))
      plot->SetVisible(false);
    else if (stacks)
      still[plot] = seen[plot];
    keepColors(plot);
  }
  // A new plot may come to lie where another one was.
  seen.swap(still);
}

bool LostColumns::hasSeries(vtkPlot* plot)
{
  vtkTable* table = plot->GetInput();
  Seen& before = seen[plot];
  if (before.table != table)
    before = {vtkWeakPointer<vtkTable>(table), numericColumns(table)};
  return std::all_of(before.columns.begin(), before.columns.end(),
                     [table](const std::string& name) { return hasNumbers(table, name); });
}

} // namespace Talmesh::plot
