#include "stats/RankedParameter.h"

#include "stats/ParallelParts.h"
#include "stats/RankedDensity.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::stats
{
namespace
{
/// NaN is no value.
void addUnlessRepeated(double value, std::vector<double>& values)
{
  if (!std::isnan(value) && (values.empty() || values.back() != value))
    values.push_back(value);
}

void makeDistinct(std::vector<double>& values)
{
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
}

/// Compares without a branch for each value, so that a processor takes several at a time.
bool allEqual(const double* values, std::size_t count, double expected)
{
  unsigned differing = 0;
  for (std::size_t i = 0; i < count; ++i)
    differing |= values[i] != expected ? 1U : 0U;
  return differing == 0;
}

void rankDegenerate(const ParameterSupport& support, RankedParameter& result)
{
  const std::size_t positions = result.ranks.size();
  for (std::size_t i = 0; i < positions; ++i)
  {
    result.ranks[i] = i >= positions / 2 ? 1.0 : 0.0;
    result.sortedValues[i] =
        static_cast<double>(i) * support.range / static_cast<double>(positions) + support.lower;
  }
}

void rankValues(const std::vector<double>& filled, RankedParameter& result)
{
  for (std::size_t i = 0; i < filled.size(); ++i)
  {
    result.ranks[i] = static_cast<double>(i + 1) / static_cast<double>(filled.size());
    result.sortedValues[i] = filled[i];
  }
}

/// The same distribution in `positions` values. Repeating only the last value, as the ranks do,
/// would pile up density at the upper end. Few values give a pattern in which a repeated value
/// hides those behind it.
std::vector<double> spreadOver(const std::vector<double>& filled, std::size_t valueCount)
{
  const std::size_t positions = filled.size();
  if (valueCount == 0 || positions < smallestKernelSample)
    return filled;
  std::vector<double> spread(positions);
  for (std::size_t i = 0; i < positions; ++i)
    spread[i] = filled[i * valueCount / positions];
  return spread;
}

RankedParameter rankParameter(std::vector<double> values, const ParameterSupport& support,
                              std::size_t positions, const KernelDensity& kernelDensity)
{
  RankedParameter result;
  result.valueCount = values.size();
  values.resize(positions,
                values.empty() ? std::numeric_limits<double>::quiet_NaN() : values.back());
  result.ranks = DoubleBuffer(positions);
  result.sortedValues = DoubleBuffer(positions);
  if (support.degenerate)
    rankDegenerate(support, result);
  else
    rankValues(values, result);
  result.densities = DoubleBuffer(densityLocations);
  result.locations = DoubleBuffer(densityLocations);
  estimateDensity(spreadOver(values, result.valueCount), support, kernelDensity, result.densities,
                  result.locations);
  return result;
}
} // namespace

std::vector<double> thinnedValues(std::size_t rows, int stride, const ColumnValue& valueAt)
{
  const std::size_t step = static_cast<std::size_t>(std::max(stride, 1));
  std::vector<double> values;
  values.reserve(rows / step + 1);
  for (std::size_t row = 0; row < rows; row += step)
  {
    const double value = valueAt(row);
    if (!std::isnan(value))
      values.push_back(value);
  }
  std::sort(values.begin(), values.end());
  return values;
}

// Both drop equal neighbours before sorting: a parameter of stacked runs has the same value in
// every row of a run.
std::vector<double> distinctValues(std::size_t rows, const ColumnValue& valueAt)
{
  std::vector<double> values;
  for (std::size_t row = 0; row < rows; ++row)
    addUnlessRepeated(valueAt(row), values);
  makeDistinct(values);
  return values;
}

std::vector<double> distinctValues(const double* values, std::size_t count)
{
  constexpr std::size_t atOnce = 16;
  std::vector<double> distinct;
  std::size_t row = 0;
  while (row < count)
  {
    const std::size_t block = std::min(atOnce, count - row);
    if (distinct.empty() || !allEqual(values + row, block, distinct.back()))
    {
      for (std::size_t i = 0; i < block; ++i)
        addUnlessRepeated(values[row + i], distinct);
    }
    row += block;
  }
  makeDistinct(distinct);
  return distinct;
}

ParameterSupport parameterSupport(const std::vector<double>& sorted,
                                  const std::optional<std::pair<double, double>>& bounds)
{
  const auto isNumber = [](double value) { return !std::isnan(value); };
  const auto last = std::find_if(sorted.rbegin(), sorted.rend(), isNumber);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double smallest = last == sorted.rend() ? nan : sorted.front();
  const double largest = last == sorted.rend() ? nan : *last;

  ParameterSupport support;
  support.lower = bounds ? bounds->first : smallest;
  support.upper = bounds ? std::fmax(bounds->second, largest) : largest;
  support.range = support.upper > std::numeric_limits<double>::max()
                      ? 1.1 * largest - support.lower
                      : support.upper - support.lower;
  if (support.range == 0.0)
  {
    support.lower *= 0.95;
    support.upper *= 1.05;
    support.range = support.upper - support.lower;
    support.degenerate = true;
  }
  return support;
}

RankedParameters rankParameters(std::vector<std::optional<std::vector<double>>> lists,
                                const std::vector<std::pair<double, double>>& bounds,
                                const KernelDensity& kernelDensity)
{
  RankedParameters result;
  result.boundsIgnored = lists.size() != bounds.size();
  for (const auto& list : lists)
    result.positions = std::max(result.positions, list ? list->size() : 0);
  result.parameters.resize(lists.size());
  const auto rank = [&](std::size_t k)
  {
    const auto pair = result.boundsIgnored ? std::nullopt : std::make_optional(bounds[k]);
    const ParameterSupport support = parameterSupport(*lists[k], pair);
    result.parameters[k] =
        rankParameter(std::move(*lists[k]), support, result.positions, kernelDensity);
  };
  inParallelParts(lists.size(), 1,
                  [&](std::size_t first, std::size_t last)
                  {
                    for (std::size_t k = first; k < last; ++k)
                    {
                      if (lists[k])
                        rank(k);
                    }
                  });
  return result;
}
} // namespace Talmesh::stats
