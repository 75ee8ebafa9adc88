#include "plot/DistributionCell.h"

#include "external/PlotMetaData.h"
#include "plot/AppliedLook.h"
#include "plot/AxisWindows.h"
#include "plot/DerivedTables.h"
#include "plot/GroupCurves.h"
#include "plot/ParameterCells.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"
#include "vtk/HighlightColor.h"
#include "vtk/vtkPlotSafeLine.h"
#include "vtk/vtkPlotStepLine.h"

#include <vtkAxis.h>
#include <vtkPen.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace Talmesh::plot
{

namespace
{

using Color = std::array<double, 3>;

/// At 0, 0.5 and 1.
constexpr int ecdfTicks = 3;

/// Colours of the further data sets in turn: the selected runs, then the others.
constexpr std::array<Color, 3> dataSetColors = {
    {highlightShade, {0.05, 0.6, 0.9}, {0.05, 0.9, 0.6}}};

/// Adds a curve, an empty one without its columns.
vtkPlot* addPlot(const PlotState& state, vtkChart* chart, vtkTable* table, int x, int y)
{
  vtkSmartPointer<vtkPlot> plot;
  if (state.metaData->getUseDensity())
    plot = vtkSmartPointer<vtkPlotSafeLine>::New();
  else
    plot = vtkSmartPointer<vtkPlotStepLine>::New();
  feedPlot(plot, table, x, y);
  makeUnselectable(plot);
  chart->AddPlot(plot);
  return plot;
}

/// Adds the curve of the data set with the ranks in slot `ranks`. Without its columns, for example
/// for a parameter that came after the last ranking, the curve is empty.
vtkPlot* addCurve(const PlotState& state, vtkChart* chart, std::size_t ranks,
                  const std::string& label)
{
  const bool density = state.metaData->getUseDensity();
  vtkTable* table = tableInSlot(state.derivedTables, density ? densitySlotOf(ranks) : ranks);
  const std::string x = (density ? locationsPrefix : sortedPrefix) + label;
  const std::string y = (density ? densityPrefix : rankPrefix) + label;
  return addPlot(state, chart, table, columnIndex(table, x), columnIndex(table, y));
}

void addCurves(const PlotState& state, vtkChart* chart, const std::string& label)
{
  setColor(addCurve(state, chart, ownRankSlot, label), state.options.look.foreground);
  const std::size_t slotCount = state.derivedTables.size();
  for (std::size_t dataSet = 1; densitySlotOf(rankSlot(dataSet)) < slotCount; ++dataSet)
  {
    const Color& color = dataSetColors[(dataSet - 1) % dataSetColors.size()];
    addCurve(state, chart, rankSlot(dataSet), label)
        ->GetPen()
        ->SetColorF(color[0], color[1], color[2]);
  }
}

void addGroupCurves(const PlotState& state, vtkChart* chart, std::size_t parameter)
{
  for (std::size_t group = 0; group < state.distributionGroups->size(); ++group)
  {
    const auto& color = (*state.distributionGroups)[group].color;
    addPlot(state, chart, groupCurve(state, group, parameter), 0, 1)
        ->SetColor(color[0], color[1], color[2], 255);
  }
}

void dressLeftAxis(const PlotState& state, vtkAxis* axis)
{
  const bool density = state.metaData->getUseDensity();
  const bool labelled = !density && state.options.look.labelsEcdfs;
  axis->SetLabelsVisible(labelled);
  axis->SetTitle(density ? "Density" : labelled ? "ECDF" : "Ecdf");
  if (!density)
    fixRange(axis, 0.0, 1.0);
  if (labelled)
    axis->SetNumberOfTicks(ecdfTicks);
}

std::string testTitle(const PlotState& state, std::size_t parameter)
{
  if (state.parameterTests)
    return parameter < state.parameterTests->size() ? (*state.parameterTests)[parameter].title
                                                    : std::string();
  return parameter < state.ksResults.size() ? pValueLabel(state.ksResults[parameter].pValue)
                                            : std::string();
}

} // namespace

std::string pValueLabel(double pValue)
{
  // A stream writes the sign bit of a NaN, which means nothing.
  if (std::isnan(pValue))
    return "p = nan";
  std::ostringstream text;
  text << "p = " << std::setprecision(2);
  if (pValue < 0.01 && pValue != 0.0)
    text << std::scientific << pValue;
  else
    text << std::fixed << pValue;
  return text.str();
}

void fillDistributionCell(PlotState& state, vtkChart* chart, std::size_t parameter,
                          const std::string& title)
{
  disablePanAndZoom(chart);
  if (state.distributionGroups)
    addGroupCurves(state, chart, parameter);
  else
    addCurves(state, chart, parameterLabel(state, parameter));
  dressParameterAxis(state, chart, vtkAxis::BOTTOM, title, true);
  chart->GetAxis(vtkAxis::BOTTOM)->SetBehavior(vtkAxis::AUTO);
  chart->SetTitle(testTitle(state, parameter));
  dressLeftAxis(state, chart->GetAxis(vtkAxis::LEFT));
}

double highestBound(vtkChart* chart)
{
  double highest = 0.0;
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (!plot->GetInput())
      continue;
    plot->Update();
    double bounds[4] = {0.0, 0.0, 0.0, 0.0};
    plot->GetBounds(bounds);
    highest = std::max(highest, bounds[3]);
  }
  return highest;
}

void scaleDensityAxis(vtkChart* chart, double maximum)
{
  if (std::isfinite(maximum) && maximum > 0.0)
    fixRange(chart->GetAxis(vtkAxis::LEFT), 0.0, maximum);
}

} // namespace Talmesh::plot
