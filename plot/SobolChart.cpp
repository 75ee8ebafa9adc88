#include "plot/SobolChart.h"

#include "external/ColumnNames.h"
#include "external/PlotMetaData.h"
#include "plot/AppliedLook.h"
#include "plot/AxisWindows.h"
#include "plot/ChartLifetime.h"
#include "plot/PlotState.h"
#include "plot/PlotTexts.h"
#include "plot/StyleTable.h"
#include "plot/TableColumns.h"
#include "vtk/LostColumns.h"

#include <vtkAxis.h>
#include <vtkChartLegend.h>
#include <vtkColorSeries.h>
#include <vtkDataArray.h>
#include <vtkPlotBar.h>
#include <vtkPlotStacked.h>
#include <vtkTextProperty.h>

#include <algorithm>
#include <cmath>

namespace Talmesh::plot
{

namespace
{

void dressLeftAxis(vtkAxis* axis, bool total)
{
  axis->SetBehavior(vtkAxis::FIXED);
  if (total)
  {
    axis->SetMinimum(0.0);
    axis->SetTitle("Total Sensitivity");
  }
  else
  {
    axis->SetRange(0.0, 1.0);
    axis->SetTitle("Sensitivity");
  }
}

/// Names of the columns before the last one that VTK can stack: it reads every series over the
/// whole length of the table, and finds it as the first column of its name.
std::vector<std::string> seriesNames(vtkTable* table)
{
  std::vector<std::string> names;
  for (int column = 0; column + 1 < table->GetNumberOfColumns(); ++column)
  {
    const std::string name = columnName(table, column);
    if (plottableColumn(table, column) && !name.empty() && hasNumbers(table, name))
      names.push_back(name);
  }
  return names;
}

/// Without any series the plot stays without input, because VTK reports that as an error.
template <typename StackingPlot>
void feedSeries(StackingPlot* plot, vtkTable* table)
{
  const std::vector<std::string> names = seriesNames(table);
  if (names.empty())
    return;
  plot->SetInputData(table);
  for (std::size_t i = 0; i < names.size(); ++i)
    plot->SetInputArray(static_cast<int>(i) + 1, names[i]);
}

/// VTK sorts the points by time, which NaN breaks, and does not finish an axis with infinite ends.
bool isTimeAxis(vtkDataArray* time, vtkTable* table)
{
  if (!time || time->GetNumberOfTuples() != table->GetNumberOfRows())
    return false;
  for (vtkIdType i = 0; i < time->GetNumberOfTuples(); ++i)
  {
    if (!std::isfinite(time->GetComponent(i, 0)))
      return false;
  }
  return true;
}

template <typename StackingPlot>
void dressSeries(const PlotLook& look, StackingPlot* plot, vtkChartXY* chart)
{
  const vtkSmartPointer<vtkColorSeries> colors = seriesColors(look);
  plot->SetColorSeries(colors);
  // A single series is painted in the plot's own colour, but the legend shows the scheme's.
  const vtkColor3ub first = colors->GetColor(0);
  plot->SetColor(first[0], first[1], first[2], 255);
  chart->GetLegend()->SetInline(false);
  chart->SetShowLegend(true);
}

/// Upright labels take their length from the height of the plot, so long ones are written smaller.
int labelFontSize(vtkStringArray* names)
{
  constexpr int normalSize = 12;
  constexpr int smallestSize = 8;
  constexpr std::size_t normalLength = 28;
  std::size_t longest = normalLength;
  for (vtkIdType i = 0; i < names->GetNumberOfValues(); ++i)
    longest = std::max(longest, names->GetValue(i).size());
  return std::max(smallestSize, static_cast<int>(normalSize * normalLength / longest));
}

void labelCategories(vtkAxis* axis, vtkStringArray* names)
{
  vtkNew<vtkDoubleArray> positions;
  for (vtkIdType i = 0; i < names->GetNumberOfValues(); ++i)
    positions->InsertNextValue(static_cast<double>(i));
  axis->SetCustomTickPositions(positions, names);
  axis->GetLabelProperties()->SetOrientation(90.0);
  axis->GetLabelProperties()->SetJustificationToRight();
  axis->GetLabelProperties()->SetVerticalJustificationToCentered();
  axis->SetTitle("Species");
}

} // namespace

void addSobolBands(PlotState& state, bool total)
{
  vtkChartXY* chart = state.chartXY;
  auto* bands = vtkPlotStacked::SafeDownCast(chart->AddPlot(vtkChart::STACKED));
  dressLeftAxis(chart->GetAxis(vtkAxis::LEFT), total);
  chart->GetAxis(vtkAxis::BOTTOM)->SetTitle(timeItemName);
  if (isTimeAxis(vtkDataArray::SafeDownCast(columnNamed(state.table, derivedTimeName)),
                 state.table))
  {
    bands->SetInputArray(0, derivedTimeName);
    feedSeries(bands, state.table);
  }
  dressSeries(state.options.look, bands, chart);
}

void addSobolBars(PlotState& state, bool total)
{
  vtkChartXY* chart = state.chartXY;
  auto* bars = vtkPlotBar::SafeDownCast(chart->AddPlot(vtkChart::BAR));
  vtkAxis* bottom = chart->GetAxis(vtkAxis::BOTTOM);
  fixRange(bottom, -1.0, static_cast<double>(state.table->GetNumberOfRows() + 1));
  if (auto* names = vtkStringArray::SafeDownCast(columnNamed(state.table, "Name")))
    labelCategories(bottom, names);
  dressLeftAxis(chart->GetAxis(vtkAxis::LEFT), total);
  bars->SetUseIndexForXSeries(true);
  feedSeries(bars, state.table);
  dressSeries(state.options.look, bars, chart);
}

void dressSobolChart(const PlotLook& look, vtkChart* chart)
{
  dressInLook(look, chart);
  vtkAxis* names = chart->GetAxis(vtkAxis::BOTTOM);
  if (names->GetLabelProperties()->GetOrientation() != 0.0)
    dressText(look, names->GetLabelProperties(), labelFontSize(names->GetTickLabels()));
}

void buildSobolChart(PlotState& state, bool total)
{
  freeChartsSetAside();
  releaseChartXY(state);
  state.chartXY = makeXYChart(state);
  state.currentChart = state.chartXY;
  state.sobolChart = state.chartXY;
  state.tableOfResults = state.table;
  // Its rows are none that the selection speaks of, and a selection would replace it.
  state.chartXY->SetAnnotationLink(nullptr);
  if (const auto add = currentStyle(state).addSobolIndices)
    add(state, total);
  dressSobolChart(state.options.look, state.chartXY);
  state.chartXY->Update();
  setPlotTitle(state, state.metaData->title);
}

} // namespace Talmesh::plot
