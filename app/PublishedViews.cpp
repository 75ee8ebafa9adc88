#include "app/CircuitSensitivity.h"
#include "app/IndomethacinStudy.h"
#include "app/PuromycinStudy.h"
#include "app/StatisticsViews.h"
#include "external/LinePlotData.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <vtkTable.h>
#include <vtkVariant.h>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t sensitivitySamples = 1024;
constexpr int curvePoints = 200;

/// Stores the style without announcing it: the chart is built by the call that follows.
void storeStyle(PlotContainer& container, plotStyles style)
{
  container.getMetaData()->blockSignals(true);
  container.setPlotStyle(style);
  container.getMetaData()->blockSignals(false);
}

std::vector<double> valuesOf(vtkTable* table, vtkIdType column)
{
  std::vector<double> values;
  for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
    values.push_back(table->GetValue(row, column).ToDouble());
  return values;
}

std::string drawRates(const Study&, PlotContainer& container)
{
  container.setPlotData(puromycinMeans());
  const vtkSmartPointer<vtkTable> curve = puromycinCurve(curvePoints);
  std::vector<double> concentrations = valuesOf(curve, 0);
  std::vector<double> fit = valuesOf(curve, 1);
  LinePlotData series;
  series.xName = "concentration";
  series.xValues = &concentrations;
  series.series[{UndefinedType, "fit"}] = &fit;
  container.setLinePlotDataAsAdditionalData(&series);
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
  container.redraw();
  return {};
}

std::string drawFit(const Study&, PlotContainer& container)
{
  container.setPlotData(indomethacinFitTable());
  container.getMetaData()->parameterColumns = {2, 3, 4, 5};
  storeStyle(container, fitParameterDistribution);
  container.redraw();
  return {};
}

std::string drawResiduals(PlotContainer& container, bool scaled, bool sideBySide)
{
  IndomethacinResiduals study = indomethacinResiduals();
  container.setXLabel("Time [h]");
  container.setYLabel(sideBySide ? "Concentration [ug/ml]" : "Residual");
  container.setResidualPlot(&study.run, study.settings.get(), study.predictions, scaled,
                            sideBySide);
  return {};
}

std::string drawSensitivity(PlotContainer& container, bool atTimePoint)
{
  const auto result = circuitSensitivity(sensitivitySamples);
  storeStyle(container, atTimePoint ? reservedStyle1 : reservedStyle2);
  container.setSobolPostprocessResult(result.get(), atTimePoint, false,
                                      result->timePoints->size() - 1, 0);
  return {};
}

std::string drawPrior(const Study&, PlotContainer& container)
{
  const std::vector<NamedDistribution> priors = circuitPriors();
  container.setDistribution(priors.front().distribution.get());
  return {};
}

} // namespace

const std::vector<GalleryView>& publishedViews()
{
  static const std::vector<GalleryView> views = {
      {"scatterWithErrorBars", drawRates},
      {"fitParameterDistribution", drawFit},
      {"residuals", [](const Study&, PlotContainer& container)
       { return drawResiduals(container, false, false); }},
      {"residuals-scaled", [](const Study&, PlotContainer& container)
       { return drawResiduals(container, true, false); }},
      {"residuals-sideBySide", [](const Study&, PlotContainer& container)
       { return drawResiduals(container, false, true); }},
      {"sensitivity-overTime",
       [](const Study&, PlotContainer& container) { return drawSensitivity(container, false); }},
      {"sensitivity-atTimePoint",
       [](const Study&, PlotContainer& container) { return drawSensitivity(container, true); }},
      {"distribution", drawPrior}};
  return views;
}

} // namespace Talmesh::app
