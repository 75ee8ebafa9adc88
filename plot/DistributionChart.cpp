#include "plot/DistributionChart.h"

#include "external/Distribution.h"
#include "external/ScientificFormat.h"
#include "plot/AppliedLook.h"
#include "plot/AxisWindows.h"
#include "plot/ChartLifetime.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/PlotTexts.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkPlot.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace Talmesh::plot
{

namespace
{

constexpr int curvePoints = 50;
/// Part of the density range that stays empty above the curve.
constexpr double headroom = 1.05;

vtkSmartPointer<vtkTable> curveTable(const std::vector<double>& x, const std::vector<double>& pdf)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(makeFloatColumn("x", x));
  table->AddColumn(makeFloatColumn("pdf", pdf));
  return table;
}

vtkSmartPointer<vtkTable> spike(double value)
{
  return curveTable({0.5 * value, 0.98 * value, value, value / 0.98, 2.0 * value},
                    {0.0, 0.0, 1.0, 0.0, 0.0});
}

int labelDecimals(double width)
{
  if (width >= 100.0)
    return 0;
  return width >= 10.0 ? 1 : 2;
}

std::string scientific(double value)
{
  const QString text = QString::number(value, 'f', 2);
  return Talmesh::getScientificFormat(text, 2, 10, false).toStdString();
}

void dressAxes(vtkChartXY* chart, const DensityCurve& curve)
{
  vtkAxis* left = chart->GetAxis(vtkAxis::LEFT);
  fixRange(left, 0.0, std::min(headroom * curve.maximum, std::numeric_limits<double>::max()));
  left->SetTicksVisible(false);
  left->SetLabelsVisible(false);
  left->SetTitle("");
  left->SetMargins(0, 0);
  vtkAxis* bottom = chart->GetAxis(vtkAxis::BOTTOM);
  bottom->SetTitle("");
  bottom->SetNumberOfTicks(3);
  bottom->SetNotation(vtkAxis::FIXED_NOTATION);
  bottom->SetPrecision(labelDecimals(curve.range.second - curve.range.first));
}

} // namespace

DensityCurve densityCurve(const Distribution& distribution)
{
  DensityCurve curve;
  curve.range = distribution.range(1);
  const auto [low, high] = curve.range;
  if (distribution.kind() == Distribution::PointMass)
  {
    curve.table = spike(low);
    return curve;
  }
  std::vector<double> xs;
  std::vector<double> densities;
  const double step = (high - low) / (curvePoints - 1);
  for (int i = 0; i < curvePoints; ++i)
  {
    const double x = i * step + low;
    const double density = distribution.density(x);
    xs.push_back(x);
    densities.push_back(density);
    if (std::isfinite(density) && density > curve.maximum)
      curve.maximum = density;
  }
  curve.table = curveTable(xs, densities);
  return curve;
}

RangeEnds drawDensityCurve(PlotState& state, const DensityCurve& curve)
{
  const auto [low, high] = curve.range;
  replaceTable(state, curve.table);
  state.tableOfResults = state.table;
  vtkChartXY* chart = reuseChartXY(state, currentScene(state));
  // Densities are shown from zero on.
  forgetLogScaleY(state);
  vtkPlot* area = chart->AddPlot(vtkChart::STACKED);
  // VTK sorts the points by x and does not finish painting an infinite axis.
  if (isBounded(plottableColumn(state.table, 0)))
    feedPlot(area, state.table, 0, 1);
  setColor(area, firstSeriesColor(state.options.look, {30, 30, 230, 255}));
  dressAxes(chart, curve);
  chart->SetInteractive(false);
  chart->Update();
  setPlotTitle(state, "");
  return {{low, high}, {scientific(low), scientific(high)}};
}

} // namespace Talmesh::plot
