#include "stats/Quantile.h"

#include <cmath>
#include <cstddef>
#include <limits>

namespace Talmesh::stats
{
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
  return position > below ? sorted[k] : (sorted[k - 1] + sorted[k]) / 2.0;
}
} // namespace Talmesh::stats
