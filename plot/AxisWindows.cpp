#include "plot/AxisWindows.h"

#include "external/PlotMetaData.h"
#include "plot/DrawnRows.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/LogScales.h"

#include <vtkAxis.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Talmesh::plot
{

namespace
{

bool allFinite(const CoordinateWindow& window)
{
  return std::isfinite(window.xMin) && std::isfinite(window.xMax) && std::isfinite(window.yMin) &&
         std::isfinite(window.yMax);
}

/// An axis can only turn logarithmic once its range allows it, and from then on takes ends as
/// logarithms: the range is given in plain units first, then exactly as it was recorded.
void restoreRange(vtkAxis* axis, double minimum, double maximum, bool recordedAsLog)
{
  const double plainMinimum = recordedAsLog ? std::pow(10.0, minimum) : minimum;
  const double plainMaximum = recordedAsLog ? std::pow(10.0, maximum) : maximum;
  if (!std::isfinite(plainMinimum) || !std::isfinite(plainMaximum))
    return;
  axis->SetBehavior(vtkAxis::FIXED);
  setDataRange(axis, plainMinimum, plainMaximum);
  if (axis->GetLogScaleActive() == recordedAsLog)
  {
    axis->SetMinimum(minimum);
    axis->SetMaximum(maximum);
  }
}

/// A window that came without its scales was recorded on the axis that the data would give.
bool wouldBeLogarithmic(vtkTable* table, int column, bool logarithmic)
{
  double range[2];
  return logarithmic && finiteRange(plottableColumn(table, column), range) && hasLogarithms(range);
}

/// Keys of columns of a summary are no columns of the plot table.
constexpr int firstOfSummary = -2;

int ofSummary(int column)
{
  return firstOfSummary - column;
}

bool isAmong(const std::vector<int>& columns, int column)
{
  return std::find(columns.begin(), columns.end(), column) != columns.end();
}

template <typename Map>
void forgetKeys(Map& map, const std::vector<int>& columns)
{
  for (auto entry = map.begin(); entry != map.end();)
  {
    const ReducedMetaData& key = entry->first;
    // A summary may be of any columns.
    const bool drawn = key.yColumn <= firstOfSummary || isAmong(columns, key.xColumn) ||
                       isAmong(columns, key.yColumn);
    entry = drawn ? map.erase(entry) : std::next(entry);
  }
}

} // namespace

ReducedMetaData currentKey(const PlotState& state)
{
  if (drawsSummary(state))
    return {ofSummary(state.summary.x), ofSummary(state.summary.y),
            static_cast<int>(state.metaData->getPlotStyle())};
  return {firstOf(state.metaData->xColumns), firstOf(state.metaData->yColumns),
          static_cast<int>(state.metaData->getPlotStyle())};
}

const CoordinateWindow* rememberedWindow(const PlotState& state)
{
  const auto found = state.coordinateWindows.find(currentKey(state));
  if (found == state.coordinateWindows.end() || !allFinite(found->second))
    return nullptr;
  return &found->second;
}

void setDataRange(vtkAxis* axis, double minimum, double maximum)
{
  // Not SetUnscaledRange: a logarithmic axis that gets two ends in this way forgets that it may
  // show values below 0 when it is linear again.
  const bool logarithmic = axis->GetLogScale();
  axis->SetLogScale(false);
  axis->SetRange(minimum, maximum);
  axis->SetLogScale(logarithmic);
}

void fixRange(vtkAxis* axis, double minimum, double maximum)
{
  if (!std::isfinite(minimum) || !std::isfinite(maximum))
    return;
  axis->SetBehavior(vtkAxis::FIXED);
  setDataRange(axis, minimum, maximum);
}

void restoreBottomAxis(const PlotState& state, vtkAxis* axis, const CoordinateWindow& window,
                       bool logarithmic)
{
  const auto scales = state.windowScales.find(currentKey(state));
  const DrawnRows drawn = drawnRows(state);
  const bool recordedAsLog = scales != state.windowScales.end()
                                 ? scales->second.xLog
                                 : wouldBeLogarithmic(drawn.table, drawn.x, logarithmic);
  axis->SetLogScale(logarithmic);
  restoreRange(axis, window.xMin, window.xMax, recordedAsLog);
}

void restoreLeftAxis(const PlotState& state, vtkAxis* axis, const CoordinateWindow& window)
{
  const auto scales = state.windowScales.find(currentKey(state));
  const DrawnRows drawn = drawnRows(state);
  const bool recordedAsLog = scales != state.windowScales.end()
                                 ? scales->second.yLog
                                 : wouldBeLogarithmic(drawn.table, drawn.y, axis->GetLogScale());
  restoreRange(axis, window.yMin, window.yMax, recordedAsLog);
}

void rememberWindow(PlotState& state, vtkAxis* bottom, vtkAxis* left)
{
  const ReducedMetaData key = currentKey(state);
  state.coordinateWindows[key] = {bottom->GetMinimum(), left->GetMinimum(), bottom->GetMaximum(),
                                  left->GetMaximum(), true};
  state.windowScales[key] = {bottom->GetLogScaleActive(), left->GetLogScaleActive()};
}

void forgetWindows(PlotState& state, const std::vector<int>& columns)
{
  forgetKeys(state.coordinateWindows, columns);
  forgetKeys(state.windowScales, columns);
}

} // namespace Talmesh::plot
