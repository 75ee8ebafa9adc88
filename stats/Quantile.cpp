#include "stats/Quantile.h"

#include "stats/ParallelParts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::stats
{
namespace
{
/// Mean of two values. Their sum overflows where both are large, and halves lose the last digit of
/// the smallest ones.
double meanOf(double a, double b)
{
  constexpr double safe = std::numeric_limits<double>::max() / 2.0;
  return std::abs(a) <= safe && std::abs(b) <= safe ? (a + b) / 2.0 : a / 2.0 + b / 2.0;
}

/// Brings the values of ascending `ranks` to their places in [first, last), which begins at rank
/// `offset`.
void placeRanks(double* first, double* last, std::size_t offset, const std::size_t* firstRank,
                const std::size_t* lastRank)
{
  if (firstRank == lastRank || first == last)
    return;
  const std::size_t* middle = firstRank + (lastRank - firstRank) / 2;
  double* place = first + (*middle - offset);
  std::nth_element(first, place, last);
  placeRanks(first, place, offset, firstRank, middle);
  placeRanks(place + 1, last, *middle + 1, middle + 1, lastRank);
}
} // namespace

double averagedQuantile(const std::vector<double>& sorted, double p)
{
  if (sorted.empty() || std::isnan(p))
    return std::numeric_limits<double>::quiet_NaN();
  if (p <= 0.0)
    return sorted.front();
  if (p >= 1.0)
    return sorted.back();
  const double position = static_cast<double>(sorted.size()) * p;
  const double below = std::floor(position);
  const auto k = static_cast<std::size_t>(below);
  if (k == sorted.size())
  {
    // For p just below 1 the product is rounded up to the count itself.
    return sorted.back();
  }
  return position > below ? sorted[k] : meanOf(sorted[k - 1], sorted[k]);
}

FiveNumbers fiveNumbers(std::vector<double>& values)
{
  values.erase(std::remove_if(values.begin(), values.end(), [](double v) { return std::isnan(v); }),
               values.end());
  std::vector<std::size_t> ranks;
  if (!values.empty())
    ranks = {0, values.size() - 1};
  for (std::size_t quarter = 1; quarter < 4 && !values.empty(); ++quarter)
  {
    const std::size_t rank = quarter * values.size() / 4;
    ranks.push_back(rank);
    if (rank > 0)
      ranks.push_back(rank - 1);
  }
  std::sort(ranks.begin(), ranks.end());
  ranks.erase(std::unique(ranks.begin(), ranks.end()), ranks.end());
  placeRanks(values.data(), values.data() + values.size(), 0, ranks.data(),
             ranks.data() + ranks.size());
  FiveNumbers numbers;
  for (std::size_t quarter = 0; quarter <= 4; ++quarter)
    numbers[quarter] = averagedQuantile(values, static_cast<double>(quarter) / 4.0);
  return numbers;
}

std::vector<FiveNumbers> fiveNumbersOfPositions(const double* runs, std::size_t count,
                                                std::size_t positions)
{
  // Neighbouring positions share cache lines, so a few are gathered at a time.
  constexpr std::size_t together = 8;
  std::vector<FiveNumbers> summary(positions);
  const auto summarise = [&](std::size_t first, std::size_t last)
  {
    std::array<std::vector<double>, together> gathered;
    for (std::size_t position = first; position < last; ++position)
      gathered[position - first].resize(count);
    for (std::size_t run = 0; run < count; ++run)
    {
      for (std::size_t position = first; position < last; ++position)
        gathered[position - first][run] = runs[run * positions + position];
    }
    for (std::size_t position = first; position < last; ++position)
      summary[position] = fiveNumbers(gathered[position - first]);
  };
  inParallelParts(positions, together, summarise);
  return summary;
}
} // namespace Talmesh::stats
