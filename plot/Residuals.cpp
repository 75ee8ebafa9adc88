#include "plot/Residuals.h"

#include "external/ColumnNames.h"
#include "external/FitRun.h"
#include "external/FitSettings.h"
#include "external/PlotMetaData.h"
#include "external/Standardize.h"
#include "plot/AppliedLook.h"
#include "plot/ChartLifetime.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/PlotTexts.h"
#include "plot/PointAppearance.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkPlotPoints.h>

#include <algorithm>
#include <limits>
#include <string>

namespace Talmesh::plot
{

namespace
{

constexpr double pointSize = 3.0; ///< pixels

double valueAt(const std::vector<double>& values, std::size_t position)
{
  return position < values.size() ? values[position] : std::numeric_limits<double>::quiet_NaN();
}

const std::vector<double>& rowAt(const std::vector<std::vector<double>>& rows, std::size_t position)
{
  static const std::vector<double> none;
  return position < rows.size() ? rows[position] : none;
}

/// Adds single-precision columns of one length, as a table demands it.
class ColumnWriter
{
public:
  ColumnWriter(vtkTable* target, std::size_t rowCount)
      : table(target)
      , rows(rowCount)
  {
  }

  void add(const std::string& name, const std::vector<double>& values) const
  {
    std::vector<double> filled = values;
    filled.resize(rows, std::numeric_limits<double>::quiet_NaN());
    table->AddColumn(makeFloatColumn(name, filled));
  }

private:
  vtkTable* table;
  std::size_t rows;
};

bool isTimeCourse(const FitSettings& settings)
{
  return settings.dataKind() == FitSettings::timeCourse;
}

std::size_t rowCount(const FitRun& run, const FitSettings& settings)
{
  std::size_t rows = isTimeCourse(settings) ? run.timePoints.size() : 0;
  for (const std::vector<double>& observations : settings.observations)
    rows = std::max(rows, observations.size());
  return rows;
}

std::vector<double> firstOnes(std::size_t count, std::vector<double> values)
{
  values.resize(std::min(count, values.size()));
  return values;
}

std::vector<double> scaledBy(double factor, std::vector<double> values)
{
  for (double& value : values)
    value *= factor;
  return values;
}

/// @param observations already scaled
/// @param errors null for plain residuals
std::vector<double> residuals(const std::vector<double>& observations,
                              const std::vector<double>& predictions,
                              const std::vector<double>* errors)
{
  std::vector<double> values;
  for (std::size_t i = 0; i < observations.size(); ++i)
  {
    const double residual = observations[i] - valueAt(predictions, i);
    values.push_back(errors ? residual / valueAt(*errors, i) : residual);
  }
  return values;
}

/// " name j", the end of a column name.
std::string columnSuffix(const FitSettings& settings, std::size_t output)
{
  const std::string name =
      output < settings.outputs.size() ? settings.outputs[output].second : std::string();
  return " " + name + " " + std::to_string(output);
}

/// One plot of column `y` over "Time", which is column 0, or over the row index.
void addSeries(PlotState& state, int type, int y, bool timeCourse)
{
  vtkPlot* plot = state.chartXY->AddPlot(type);
  if (timeCourse)
    feedPlot(plot, state.table, 0, y);
  else
    feedPlotByIndex(plot, state.table, y);
  setColor(plot, firstSeriesColor(state.options.look, {200, 30, 30, 255}));
}

void addAllSeries(PlotState& state, std::size_t outputs, bool timeCourse, bool sideBySide)
{
  int column = timeCourse ? 1 : 0;
  for (std::size_t output = 0; output < outputs; ++output)
  {
    if (sideBySide)
      addSeries(state, vtkChart::LINE, column++, timeCourse);
    addSeries(state, vtkChart::POINTS, column++, timeCourse);
  }
}

} // namespace

double observationScale(const FitRun& run, const FitSettings& settings)
{
  if (settings.standardize)
    return 1.0;
  const auto fitted = run.parameters.find("Global Scale");
  if (settings.globalScaleFitted && fitted != run.parameters.end())
    return fitted->second;
  return settings.globalScale;
}

void normalizePredictions(const FitSettings& settings, Predictions& predictions)
{
  for (std::vector<double>& row : predictions)
  {
    if (settings.standardize)
    {
      standardize(row);
    }
    else if (settings.normalizeToReference && settings.referenceIndex >= 0 &&
             static_cast<std::size_t>(settings.referenceIndex) < row.size())
    {
      const double factor = 1.0 / row[static_cast<std::size_t>(settings.referenceIndex)];
      for (double& value : row)
        value *= factor;
    }
  }
}

vtkSmartPointer<vtkTable> residualTable(const FitRun& run, const FitSettings& settings,
                                        const Predictions& predictions, ResidualOptions options)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  const ColumnWriter writer(table, rowCount(run, settings));
  if (isTimeCourse(settings))
    writer.add(derivedTimeName, run.timePoints);
  const double scale = observationScale(run, settings);
  for (std::size_t j = 0; j < settings.observations.size(); ++j)
  {
    const std::string suffix = columnSuffix(settings, j);
    const std::vector<double> observations = scaledBy(scale, settings.observations[j]);
    const std::vector<double>& predicted = rowAt(predictions, j);
    if (options.sideBySide)
    {
      writer.add("Prediction" + suffix, firstOnes(observations.size(), predicted));
      writer.add("Observation" + suffix, observations);
    }
    else
    {
      const std::vector<double>* errors = options.scaled ? &rowAt(settings.errors, j) : nullptr;
      writer.add("Residual" + suffix, residuals(observations, predicted, errors));
    }
  }
  return table;
}

void drawResiduals(PlotState& state, std::size_t outputs, bool timeCourse, ResidualOptions options)
{
  reuseChartXY(state, currentScene(state));
  // Residuals lie around zero.
  forgetLogScaleY(state);
  // The chart may be a new one, which knows nothing of the titles set so far.
  state.chartXY->GetAxis(vtkAxis::BOTTOM)->SetTitle(state.metaData->xLabel);
  state.chartXY->GetAxis(vtkAxis::LEFT)->SetTitle(state.metaData->yLabel);
  addAllSeries(state, outputs, timeCourse, options.sideBySide);
  // The axis measures its labels in the scene; without one VTK warns, and scales when painting.
  if (state.chartXY->GetScene())
    state.chartXY->GetAxis(vtkAxis::LEFT)->AutoScale();
  setMarkerStyle(state, vtkPlotPoints::SQUARE);
  setPointSize(state, pointSize);
  state.chartXY->Update();
  setPlotTitle(state, options.scaled ? "Scaled Residuals" : "Residuals");
}

} // namespace Talmesh::plot
