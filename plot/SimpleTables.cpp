#include "plot/SimpleTables.h"

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

constexpr int exampleRows = 400;

} // namespace

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
