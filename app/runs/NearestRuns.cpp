#include "app/runs/NearestRuns.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// The standard deviation of the finite values; 0 without two of them.
double spreadOf(const std::vector<double>& values)
{
  double count = 0;
  double mean = 0;
  double squares = 0;
  for (const double value : values)
  {
    if (!std::isfinite(value))
      continue;
    ++count;
    const double change = value - mean;
    mean += change / count;
    squares += change * (value - mean);
  }
  return count > 1 ? std::sqrt(squares / count) : 0;
}

} // namespace

std::vector<std::size_t> nearestRuns(const std::vector<std::vector<double>>& features,
                                     std::size_t run, std::size_t count)
{
  const std::size_t runs = features.empty() ? 0 : features.front().size();
  std::vector<double> squares(runs, 0);
  std::vector<double> common(runs, 0);
  for (const std::vector<double>& values : features)
  {
    const double spread = spreadOf(values);
    for (std::size_t other = 0; other < runs && spread > 0; ++other)
    {
      const double difference = (values[other] - values[run]) / spread;
      if (!std::isfinite(difference))
        continue;
      squares[other] += difference * difference;
      ++common[other];
    }
  }
  std::vector<std::pair<double, std::size_t>> others;
  for (std::size_t other = 0; other < runs; ++other)
    if (other != run && common[other] > 0)
      others.emplace_back(squares[other] / common[other], other);
  const auto end = others.begin() + static_cast<std::ptrdiff_t>(std::min(count, others.size()));
  std::partial_sort(others.begin(), end, others.end());
  std::vector<std::size_t> nearest;
  for (auto other = others.begin(); other != end; ++other)
    nearest.push_back(other->second);
  return nearest;
}

} // namespace Talmesh::app
