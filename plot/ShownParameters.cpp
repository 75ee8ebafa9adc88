#include "plot/ShownParameters.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace Talmesh::plot
{

namespace
{

/// How many charts a page has of which so many are significant: whole rows, as far as there are
/// parameters.
std::size_t chartsToShow(std::size_t significant, std::size_t parameterCount)
{
  const std::size_t rows =
      std::max<std::size_t>(1, (significant + chartsPerRow - 1) / chartsPerRow);
  return std::min(rows * chartsPerRow, parameterCount);
}

bool comesBefore(const ParameterTest& one, const ParameterTest& other)
{
  if (std::isnan(one.pValue) || std::isnan(other.pValue))
    return !std::isnan(one.pValue);
  if (one.pValue < other.pValue || other.pValue < one.pValue)
    return one.pValue < other.pValue;
  return one.statistic > other.statistic;
}

} // namespace

bool isSignificant(const KsStatistics& result, double pThreshold, double ksThreshold)
{
  return pThreshold >= result.pValue && result.statistic >= ksThreshold;
}

std::vector<std::size_t> shownParameters(const std::vector<KsStatistics>& results,
                                         std::size_t parameterCount, double pThreshold,
                                         double ksThreshold)
{
  std::vector<std::size_t> shown;
  std::vector<std::size_t> remaining;
  for (std::size_t i = 0; i < std::min(results.size(), parameterCount); ++i)
    (isSignificant(results[i], pThreshold, ksThreshold) ? shown : remaining).push_back(i);

  const std::size_t target = chartsToShow(shown.size(), parameterCount);
  for (std::size_t i = 0; shown.size() < target && i < remaining.size(); ++i)
    shown.push_back(remaining[i]);
  for (std::size_t i = 0; shown.size() < target && i < parameterCount; ++i)
    shown.push_back(i);
  return shown;
}

std::vector<std::size_t> shownParameters(const std::vector<ParameterTest>& tests,
                                         std::size_t parameterCount, double pThreshold,
                                         double ksThreshold)
{
  std::vector<ParameterTest> all(tests);
  all.resize(parameterCount, {std::numeric_limits<double>::quiet_NaN(), 0.0, {}});
  const auto differs = [&](std::size_t k) {
    return isSignificant({all[k].pValue, all[k].statistic}, pThreshold, ksThreshold);
  };
  std::vector<std::size_t> shown(parameterCount);
  std::iota(shown.begin(), shown.end(), std::size_t{0});
  std::stable_sort(shown.begin(), shown.end(),
                   [&](std::size_t one, std::size_t other)
                   {
                     const bool first = differs(one);
                     return first != differs(other) ? first : comesBefore(all[one], all[other]);
                   });
  const auto significant =
      static_cast<std::size_t>(std::count_if(shown.begin(), shown.end(), differs));
  shown.resize(chartsToShow(significant, parameterCount));
  return shown;
}

} // namespace Talmesh::plot
