#include "plot/ShownParameters.h"

#include <algorithm>

namespace Talmesh::plot
{

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

  const std::size_t rows =
      std::max<std::size_t>(1, (shown.size() + chartsPerRow - 1) / chartsPerRow);
  const std::size_t target = std::min(rows * chartsPerRow, parameterCount);
  for (std::size_t i = 0; shown.size() < target && i < remaining.size(); ++i)
    shown.push_back(remaining[i]);
  for (std::size_t i = 0; shown.size() < target && i < parameterCount; ++i)
    shown.push_back(i);
  return shown;
}

} // namespace Talmesh::plot
