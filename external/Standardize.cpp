#include "external/Standardize.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace
{

// Sums in long double: squares of any finite double neither overflow nor vanish there.
long double meanOf(const std::vector<double>& values)
{
  long double sum = 0.0L;
  for (double value : values)
    sum += value;
  return sum / values.size();
}

long double sampleDeviation(const std::vector<double>& values, long double mean)
{
  long double squares = 0.0L;
  for (double value : values)
    squares += (value - mean) * (value - mean);
  return std::sqrt(squares / (values.size() - 1));
}

} // namespace

void standardize(std::vector<double>& values)
{
  const auto finite = [](double value) { return std::isfinite(value); };
  if (!std::all_of(values.begin(), values.end(), finite))
  {
    std::fill(values.begin(), values.end(), std::numeric_limits<double>::quiet_NaN());
    return;
  }
  // Rounding of the mean would otherwise blow equal values up to +-1.
  if (std::adjacent_find(values.begin(), values.end(), std::not_equal_to<>()) == values.end())
  {
    std::fill(values.begin(), values.end(), 0.0);
    return;
  }
  const long double mean = meanOf(values);
  const long double deviation = sampleDeviation(values, mean);
  for (double& value : values)
    value = static_cast<double>((value - mean) / deviation);
}
