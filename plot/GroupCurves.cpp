#include "plot/GroupCurves.h"

#include "external/PlotMetaData.h"
#include "plot/DerivedTables.h"
#include "plot/PlotState.h"
#include "plot/RankedTables.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"
#include "stats/ParallelParts.h"
#include "stats/RankedDensity.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <utility>

namespace Talmesh::plot
{

namespace
{

using Values = std::vector<double>;

/// A curve as two columns of as many numbers.
struct Curve
{
  Values x;
  Values y;
};

void makeAscending(Values& values)
{
  values.erase(std::remove_if(values.begin(), values.end(), [](double v) { return std::isnan(v); }),
               values.end());
  std::sort(values.begin(), values.end());
}

const Values& valuesOf(const DistributionGroup& group, std::size_t parameter)
{
  static const Values none;
  return parameter < group.values.size() ? group.values[parameter] : none;
}

bool isFinite(double value)
{
  return std::isfinite(value);
}

/// Smallest and largest finite value of all groups; NaN without any.
std::pair<double, double> extentOf(const PlotState& state, std::size_t parameter)
{
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  std::pair<double, double> extent(none, none);
  for (const DistributionGroup& group : *state.distributionGroups)
  {
    const Values& values = valuesOf(group, parameter);
    const auto smallest = std::find_if(values.begin(), values.end(), isFinite);
    if (smallest == values.end())
      continue;
    extent.first = std::fmin(extent.first, *smallest);
    extent.second =
        std::fmax(extent.second, *std::find_if(values.rbegin(), values.rend(), isFinite));
  }
  return extent;
}

stats::ParameterSupport supportOf(const PlotState& state, std::size_t parameter)
{
  const std::pair<double, double> extent = extentOf(state, parameter);
  const bool areKnown = state.parameterBounds.size() == state.metaData->parameterColumns.size() &&
                        parameter < state.parameterBounds.size();
  return stats::parameterSupport({extent.first, extent.second},
                                 areKnown ? state.parameterBounds[parameter] : extent);
}

/// An infinite value counts, but has no place.
Curve distributionFunction(const Values& sorted, const std::pair<double, double>& extent)
{
  Curve curve;
  for (std::size_t i = 0; i < sorted.size(); ++i)
  {
    if (!isFinite(sorted[i]) || (i + 1 < sorted.size() && sorted[i + 1] == sorted[i]))
      continue;
    curve.x.push_back(sorted[i]);
    curve.y.push_back(static_cast<double>(i + 1) / static_cast<double>(sorted.size()));
  }
  if (extent.first == extent.second && curve.x.size() == 1)
  {
    // A single step needs an axis of some length around it.
    const double value = extent.first;
    const double margin = 0.05 * (value == 0.0 ? 1.0 : std::abs(value));
    curve.x = {value - margin, value, value + margin};
    curve.y = {0.0, 1.0, 1.0};
  }
  return curve;
}

/// Too few values for a kernel estimate are marked one by one, in which a repeated value would hide
/// those behind it.
Curve density(const Values& sorted, const stats::ParameterSupport& support)
{
  Values counted;
  std::copy_if(sorted.begin(), sorted.end(), std::back_inserter(counted), isFinite);
  if (counted.size() < stats::smallestKernelSample)
    counted.erase(std::unique(counted.begin(), counted.end()), counted.end());
  stats::DoubleBuffer densities(stats::densityLocations);
  stats::DoubleBuffer locations(stats::densityLocations);
  stats::estimateDensity(counted, support, estimateKernelDensity, densities, locations);
  return {Values(locations.begin(), locations.end()), Values(densities.begin(), densities.end())};
}

/// The different values of a parameter in all groups, ascending, unless they are enough for a
/// kernel estimate: none then.
Values fewLevels(const PlotState& state, std::size_t parameter)
{
  Values levels;
  for (const DistributionGroup& group : *state.distributionGroups)
  {
    const Values& values = valuesOf(group, parameter);
    for (auto value = values.begin(); value != values.end();
         value = std::upper_bound(value, values.end(), *value))
    {
      const auto place = std::lower_bound(levels.begin(), levels.end(), *value);
      if (!isFinite(*value) || (place != levels.end() && *place == *value))
        continue;
      levels.insert(place, *value);
      if (levels.size() >= stats::smallestKernelSample)
        return {};
    }
  }
  return levels;
}

/// A line at each level, as high as if its values were spread over a step of the grid. A kernel
/// would fill the gaps between levels; and where most values are equal it is so narrow that levels
/// beside the places of the grid fade.
Curve densityAtLevels(const Values& sorted, const Values& levels,
                      const stats::ParameterSupport& support)
{
  Curve curve{{std::min(support.lower, levels.front())}, {0.0}};
  const double step = support.range / static_cast<double>(stats::densityLocations - 1);
  for (const double level : levels)
  {
    const auto [first, last] = std::equal_range(sorted.begin(), sorted.end(), level);
    const double share = static_cast<double>(last - first) / static_cast<double>(sorted.size());
    for (const double height : {0.0, share / step, 0.0})
    {
      curve.x.push_back(level);
      curve.y.push_back(height);
    }
  }
  curve.x.push_back(std::max(support.lower + support.range, levels.back()));
  curve.y.push_back(0.0);
  return curve;
}

/// Runs that are enough for an estimate but have few different values are shown by these.
Curve densityCurve(const PlotState& state, const Values& sorted, std::size_t parameter)
{
  const stats::ParameterSupport support = supportOf(state, parameter);
  const auto isLarge = [parameter](const DistributionGroup& group)
  { return valuesOf(group, parameter).size() >= stats::smallestKernelSample; };
  const std::vector<DistributionGroup>& groups = *state.distributionGroups;
  const bool areMany = std::any_of(groups.begin(), groups.end(), isLarge);
  const Values levels = areMany && !support.degenerate ? fewLevels(state, parameter) : Values();
  return levels.empty() ? density(sorted, support) : densityAtLevels(sorted, levels, support);
}

} // namespace

void setDistributionGroups(PlotState& state, std::optional<std::vector<DistributionGroup>> groups)
{
  state.distributionGroups = std::move(groups);
  if (!state.distributionGroups)
    return;
  for (DistributionGroup& group : *state.distributionGroups)
    stats::inParallelParts(group.values.size(), 1,
                           [&group](std::size_t first, std::size_t last)
                           {
                             for (std::size_t k = first; k < last; ++k)
                               makeAscending(group.values[k]);
                           });
}

vtkSmartPointer<vtkTable> groupCurve(const PlotState& state, std::size_t group,
                                     std::size_t parameter)
{
  const Values& sorted = valuesOf((*state.distributionGroups)[group], parameter);
  if (std::none_of(sorted.begin(), sorted.end(), isFinite))
    return nullptr;
  const bool isDensity = state.metaData->getUseDensity();
  const Curve curve = isDensity ? densityCurve(state, sorted, parameter)
                                : distributionFunction(sorted, extentOf(state, parameter));
  const std::string label = parameterLabel(state, parameter);
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(makeColumn((isDensity ? locationsPrefix : sortedPrefix) + label, curve.x));
  table->AddColumn(makeColumn((isDensity ? densityPrefix : rankPrefix) + label, curve.y));
  return table;
}

} // namespace Talmesh::plot
