#include "vtk/LostColumns.h"

#include "vtk/PointInputs.h"

#include <vtkChart.h>
#include <vtkContextMapper2D.h>
#include <vtkDataArray.h>
#include <vtkDataObject.h>
#include <vtkDataSetAttributes.h>
#include <vtkInformation.h>
#include <vtkPlotPoints.h>
#include <vtkTable.h>

#include <algorithm>

namespace Talmesh
{

namespace
{

using Names = std::unordered_set<std::string>;

bool isNumeric(vtkAbstractArray* column, vtkTable* table)
{
  auto* numbers = vtkDataArray::SafeDownCast(column);
  return numbers && numbers->GetNumberOfTuples() == table->GetNumberOfRows();
}

/// Clients may change columns without a word to the table.
std::vector<double> identityOf(vtkTable* table)
{
  std::vector<double> identity;
  for (int i = 0; i < table->GetNumberOfColumns(); ++i)
    addColumn(identity, table->GetColumn(i));
  return identity;
}

/// Of columns of one name, the first is the one that is found.
Names numericColumns(vtkTable* table)
{
  Names numeric;
  Names others;
  for (int i = 0; i < table->GetNumberOfColumns(); ++i)
  {
    const char* given = table->GetColumn(i)->GetName();
    const std::string name = given ? given : "";
    if (name.empty() || numeric.count(name) > 0 || others.count(name) > 0)
      continue;
    (isNumeric(table->GetColumn(i), table) ? numeric : others).insert(name);
  }
  return numeric;
}

/// Whether the columns named as x and y are there.
bool hasXY(vtkPlot* plot, const Names& numeric)
{
  for (int axis = plot->GetUseIndexForXSeries() ? 1 : 0; axis < 2; ++axis)
  {
    vtkInformation* named = plot->GetData()->GetInputArrayInformation(axis);
    const char* name = named->Get(vtkDataObject::FIELD_NAME());
    if (name && numeric.count(name) == 0)
      return false;
  }
  return true;
}

void keepColors(vtkPlot* plot, const Names& numeric)
{
  auto* points = vtkPlotPoints::SafeDownCast(plot);
  if (points && points->GetScalarVisibility() && numeric.count(points->GetColorArrayName()) == 0)
    points->ScalarVisibilityOff();
}

} // namespace

bool hasNumbers(vtkTable* table, const std::string& name)
{
  return table && !name.empty() &&
         isNumeric(table->GetRowData()->GetAbstractArray(name.c_str()), table);
}

void LostColumns::hidePlots(vtkChart* chart)
{
  std::map<vtkPlot*, Seen> stillSeen;
  std::map<vtkTable*, Listed> stillListed;
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (!plot || !plot->GetInput() || !plot->GetVisible())
      continue;
    const Names& numeric = listNumeric(plot->GetInput(), stillListed);
    const bool stacks = plot->IsA("vtkPlotBar") || plot->IsA("vtkPlotStacked");
    if (!hasXY(plot, numeric) || (stacks && !hasSeries(plot, numeric)))
      plot->SetVisible(false);
    else if (stacks)
      stillSeen[plot] = seen[plot];
    keepColors(plot, numeric);
  }
  // A new plot or table may come to lie where another one was.
  seen.swap(stillSeen);
  listed.swap(stillListed);
}

/// Once for each table of a chart.
const LostColumns::Names& LostColumns::listNumeric(vtkTable* table,
                                                   std::map<vtkTable*, Listed>& still)
{
  const auto known = still.find(table);
  if (known != still.end())
    return known->second.columns;
  Listed& now = still[table];
  const auto before = listed.find(table);
  if (before != listed.end())
    now = std::move(before->second);
  std::vector<double> identity = identityOf(table);
  if (identity != now.identity)
  {
    now.columns = numericColumns(table);
    now.identity = std::move(identity);
  }
  return now.columns;
}

bool LostColumns::hasSeries(vtkPlot* plot, const Names& numeric)
{
  vtkTable* table = plot->GetInput();
  Seen& before = seen[plot];
  if (before.table != table)
    before = {vtkWeakPointer<vtkTable>(table), numeric};
  return std::all_of(before.columns.begin(), before.columns.end(),
                     [&numeric](const std::string& name) { return numeric.count(name) > 0; });
}

} // namespace Talmesh
