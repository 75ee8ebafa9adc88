#include "stats/RunScaling.h"

#include <algorithm>

namespace Talmesh::stats
{
namespace
{
void scaleRun(double* run, std::size_t length, double factor)
{
  std::for_each(run, run + length, [factor](double& value) { value *= factor; });
}
} // namespace

std::size_t wholeRuns(std::size_t rows, int stride)
{
  return stride < 1 ? 0 : rows / static_cast<std::size_t>(stride);
}

void scaleRuns(double* values, std::size_t rows, int stride, const double* factors)
{
  const std::size_t runs = wholeRuns(rows, stride);
  const auto length = static_cast<std::size_t>(stride);
  for (std::size_t run = 0; run < runs; ++run)
    scaleRun(values + run * length, length, factors[run]);
}

void normaliseRunsToMaximum(double* values, std::size_t rows, int stride)
{
  const std::size_t runs = wholeRuns(rows, stride);
  const auto length = static_cast<std::size_t>(stride);
  for (std::size_t run = 0; run < runs; ++run)
  {
    double* first = values + run * length;
    double maximum = 0.0;
    for (std::size_t row = 0; row < length; ++row)
      maximum = first[row] > maximum ? first[row] : maximum;
    // Multiplying by the reciprocal differs from dividing in the last bit; the former is the
    // contract.
    scaleRun(first, length, 1.0 / maximum);
  }
}

void multiplyElementwise(double* values, const double* by, std::size_t rows)
{
  for (std::size_t row = 0; row < rows; ++row)
    values[row] *= by[row];
}

void divideElementwise(double* values, const double* by, std::size_t rows)
{
  for (std::size_t row = 0; row < rows; ++row)
    values[row] /= by[row];
}
} // namespace Talmesh::stats
