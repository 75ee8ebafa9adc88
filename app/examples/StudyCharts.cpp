#include "app/examples/StudyCharts.h"

#include "app/examples/CircuitSensitivity.h"
#include "app/examples/IndomethacinStudy.h"
#include "app/examples/PuromycinStudy.h"
#include "app/import/TranslatedText.h"
#include "external/LinePlotData.h"
#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlotPoints.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <QSignalBlocker>

#include <algorithm>
#include <limits>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr int curvePoints = 200;
constexpr float markerSize = 6.0F; ///< pixels
/// Keeps the ends of upright labels off the tick marks.
constexpr float uprightLabelOffset = 12.0F; ///< pixels

/// Stores the style without announcing it: the chart is built by the call that follows.
void storeStyle(PlotContainer& container, plotStyles style)
{
  const QSignalBlocker silence(container.getMetaData());
  container.setPlotStyle(style);
}

std::vector<double> valuesOf(vtkTable* table, vtkIdType column)
{
  std::vector<double> values;
  for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
    values.push_back(table->GetValue(row, column).ToDouble());
  return values;
}

vtkSmartPointer<vtkTable> twoColumns(const char* firstName, const std::vector<double>& first,
                                     const char* secondName, const std::vector<double>& second)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(plot::makeColumn(firstName, first));
  table->AddColumn(plot::makeColumn(secondName, second));
  return table;
}

/// All subjects' concentrations over time.
vtkSmartPointer<vtkTable> indomethacinObservations()
{
  std::vector<double> times;
  std::vector<double> concentrations;
  for (const std::vector<double>& subject : indomethacinConcentrations())
  {
    times.insert(times.end(), indomethacinTimes().begin(), indomethacinTimes().end());
    concentrations.insert(concentrations.end(), subject.begin(), subject.end());
  }
  return twoColumns("Time [h]", times, "Concentration [ug/ml]", concentrations);
}

/// The fitted decay between the first and the last sample, as a decoration line.
vtkSmartPointer<vtkTable> indomethacinCurve()
{
  const double first = indomethacinTimes().front();
  const double last = indomethacinTimes().back();
  std::vector<double> times;
  for (int i = 0; i < curvePoints; ++i)
    times.push_back(first + (last - first) * i / (curvePoints - 1));
  const std::vector<double> best = fitIndomethacin().back().parameters;
  return twoColumns("fit", twoCompartmentDecay(best, times), "Time [h]", times);
}

void addPuromycinCurve(PlotContainer& container)
{
  const vtkSmartPointer<vtkTable> curve = puromycinCurve(curvePoints);
  std::vector<double> concentrations = valuesOf(curve, 0);
  std::vector<double> fit = valuesOf(curve, 1);
  LinePlotData series;
  series.xName = "concentration";
  series.xValues = &concentrations;
  series.series[{UndefinedType, "fit"}] = &fit;
  container.setLinePlotDataAsAdditionalData(&series);
}

/// Part of the axes that stays empty beyond the data, so that no marker is cut.
constexpr double padding = 0.03;

void padAxis(vtkAxis* axis, double low, double high)
{
  const double room = padding * (high - low);
  plot::fixRange(axis, low - room, high + room);
}

void padTimeAxis(vtkChartXY* chart)
{
  padAxis(chart->GetAxis(vtkAxis::BOTTOM), 0.0, indomethacinTimes().back());
}

/// From the lowest to the highest value of all columns but the first.
void padValueAxis(vtkChartXY* chart, vtkTable* table)
{
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (int column = 1; column < static_cast<int>(table->GetNumberOfColumns()); ++column)
  {
    double range[2];
    if (!plot::finiteRange(plot::plottableColumn(table, column), range))
      continue;
    low = std::min(low, range[0]);
    high = std::max(high, range[1]);
  }
  padAxis(chart->GetAxis(vtkAxis::LEFT), low, high);
}

/// The container marks the points of the first series only.
void markEverySeries(vtkChartXY* chart)
{
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    auto* points = vtkPlotPoints::SafeDownCast(chart->GetPlot(i));
    if (!points || points->IsA("vtkPlotLine"))
      continue;
    points->SetMarkerStyle(vtkPlotPoints::SQUARE);
    points->SetMarkerSize(markerSize);
  }
}

void fillFit(PlotContainer& container)
{
  container.setDecorations(nullptr, false);
  container.setPlotData(indomethacinFitTable());
  container.getMetaData()->parameterColumns = {2, 3, 4, 5};
  storeStyle(container, fitParameterDistribution);
}

void fillCourse(PlotContainer& container)
{
  container.setPlotData(indomethacinObservations());
  container.setDecorations(indomethacinCurve(), true);
  PlotMetaData& settings = *container.getMetaData();
  settings.xColumns = {0};
  settings.yColumns = {1};
  settings.pointSize = 7.0;
  settings.title = "Indomethacin in plasma: six subjects and the fitted decay";
  settings.xLabel = "Time [h]";
  settings.yLabel = "Concentration [ug/ml]";
  settings.color = {31, 84, 150, 255};
  storeStyle(container, xyPlot);
}

void drawResiduals(PlotContainer& container, bool scaled, bool sideBySide)
{
  IndomethacinResiduals study = indomethacinResiduals();
  container.setResidualPlot(&study.run, study.settings.get(), study.predictions, scaled,
                            sideBySide);
  vtkChartXY* chart = container.getChartXY();
  markEverySeries(chart);
  padTimeAxis(chart);
  padValueAxis(chart, container.getTable());
}

void fillRates(PlotContainer& container)
{
  container.setDecorations(nullptr, false);
  container.setPlotData(puromycinMeans());
  addPuromycinCurve(container);
  PlotMetaData& settings = *container.getMetaData();
  settings.xColumns = {0, 0};
  settings.yColumns = {1, 1};
  settings.zColumns = {2};
  settings.markerStyle = 4;
  settings.pointSize = 8.0;
  settings.title = "Puromycin: initial rate, standard error and Michaelis-Menten fit";
  settings.xLabel = "Substrate concentration [ppm]";
  settings.yLabel = "Initial rate [counts/min^2]";
  storeStyle(container, scatterWithErrorBars);
}

} // namespace

ChartSteps indomethacinFit()
{
  return {fillFit, {}};
}

ChartSteps indomethacinCourse(bool logarithmic)
{
  return {fillCourse, [logarithmic](PlotContainer& container)
          {
            container.setLogScaleY(logarithmic);
            padTimeAxis(container.getChartXY());
          }};
}

ChartSteps indomethacinResidualChart(bool scaled, bool sideBySide)
{
  const auto fill = [scaled, sideBySide](PlotContainer& container)
  {
    container.setDecorations(nullptr, false);
    container.setXLabel("Time [h]");
    if (sideBySide)
      container.setYLabel("Concentration [ug/ml]");
    else
      container.setYLabel(scaled ? "Residual / standard deviation" : "Residual [ug/ml]");
  };
  return {fill, [scaled, sideBySide](PlotContainer& container)
          { drawResiduals(container, scaled, sideBySide); }};
}

ChartSteps puromycinRateChart()
{
  return {fillRates, {}};
}

ChartSteps sensitivityChart(std::shared_ptr<SobolPostProcessResult> result,
                            const SensitivityView& view)
{
  const auto fill = [view](PlotContainer& container)
  {
    container.setDecorations(nullptr, false);
    storeStyle(container, view.atTimePoint ? reservedStyle1 : reservedStyle2);
  };
  return {fill, [result = std::move(result), view](PlotContainer& container)
          {
            container.setSobolPostprocessResult(result.get(), view.atTimePoint, view.total,
                                                view.position, view.position);
            if (view.atTimePoint)
              container.getChartXY()->GetAxis(vtkAxis::BOTTOM)->SetLabelOffset(uprightLabelOffset);
          }};
}

ChartSteps priorDensity(const NamedDistribution& prior)
{
  const auto fill = [](PlotContainer& container) { container.setDecorations(nullptr, false); };
  return {fill, [prior](PlotContainer& container)
          {
            container.setDistribution(prior.distribution.get());
            container.setPlotTitle(
                withValues(translated("StudyCharts", "Prior density of %1"), {prior.name}));
            container.setXLabel(prior.name);
          }};
}

} // namespace Talmesh::app
