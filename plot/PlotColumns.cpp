#include "plot/PlotColumns.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/TableColumns.h"

#include <vtkMath.h>

#include <cmath>

namespace Talmesh::plot
{

namespace
{

/// Longer lists of plotted columns come from a wrong index, not from a person.
constexpr int longestColumnList = 1 << 16;
constexpr int exampleRows = 400;

void put(std::vector<int>& columns, int column, std::size_t position)
{
  if (position < columns.size())
    columns[position] = column;
  else
    columns.resize(position + 1, column);
}

} // namespace

bool setPlotColumns(PlotState& state, int x, int y, int index)
{
  if (x < 0 || y < 0 || index < 0 || index >= longestColumnList)
    return false;
  put(state.metaData->xColumns, x, static_cast<std::size_t>(index));
  put(state.metaData->yColumns, y, static_cast<std::size_t>(index));
  return true;
}

void addColumn(PlotState& state, const std::vector<double>& values, const std::string& name)
{
  const bool fits = state.table->GetNumberOfColumns() == 0 ||
                    static_cast<vtkIdType>(values.size()) == state.table->GetNumberOfRows();
  if (!fits)
    return;
  state.table->AddColumn(makeColumn(name, values));
  tableChanged(state);
}

vtkSmartPointer<vtkTable> exampleTable()
{
  const float pi = static_cast<float>(vtkMath::Pi());
  std::vector<double> xs;
  std::vector<double> ys;
  std::vector<double> zs;
  for (int i = 0; i < exampleRows; ++i)
  {
    const float x = static_cast<float>(i) / static_cast<float>(exampleRows);
    const float y =
        x * x + 0.4F * std::cos(6.0F * pi * x) + 0.16F * std::cos(18.0F * pi * x) - 0.7F;
    const float z = std::sin(y) * std::cos(x);
    xs.push_back(x);
    ys.push_back(y);
    zs.push_back(z);
  }
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(makeFloatColumn("x", xs));
  table->AddColumn(makeFloatColumn("y", ys));
  table->AddColumn(makeFloatColumn("z", zs));
  return table;
}

bool setSimpleTable(PlotState& state, const std::vector<double>& x, const std::vector<double>& y,
                    const std::vector<double>& error)
{
  replaceTable(state, vtkSmartPointer<vtkTable>::New());
  if (x.size() != y.size())
  {
    if (state.chartXY)
      state.chartXY->SetTitle("SimpleXYPlot: x and y sizes differ.");
    return false;
  }
  const bool withError = error.size() == x.size();
  state.table->AddColumn(makeFloatColumn("x", x));
  state.table->AddColumn(makeFloatColumn("y", y));
  if (withError)
    state.table->AddColumn(makeFloatColumn("error", error));
  state.metaData->setPlotStyle(withError ? scatterWithErrorBars : xyPlot);
  setFirst(state.metaData->zColumns, withError ? 2 : 0);
  setFirst(state.metaData->xColumns, 0);
  setFirst(state.metaData->yColumns, 1);
  return true;
}

} // namespace Talmesh::plot
