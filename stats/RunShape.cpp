#include "stats/RunShape.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Talmesh::stats
{
namespace
{
constexpr double steadyTolerance = 1e-12;

/// Independent sums, which a processor adds side by side. A single one would wait for each addition
/// and lose more digits.
constexpr std::size_t lanes = 8;

template <class Term>
double laneSum(std::size_t count, const Term& term)
{
  std::array<double, lanes> sums{};
  std::size_t i = 0;
  for (; i + lanes <= count; i += lanes)
  {
    for (std::size_t lane = 0; lane < lanes; ++lane)
      sums[lane] += term(i + lane);
  }
  for (std::size_t lane = 0; i < count; ++i, ++lane)
    sums[lane] += term(i);
  return ((sums[0] + sums[1]) + (sums[2] + sums[3])) + ((sums[4] + sums[5]) + (sums[6] + sums[7]));
}

/// 2^-e for a magnitude near 2^e, as far as that is a normal number.
double scaleFor(double largest)
{
  int exponent = 0;
  std::frexp(largest, &exponent);
  return std::ldexp(1.0, -std::clamp(exponent, -1022, 1022));
}
} // namespace

RunShape shapeOf(const double* values, std::size_t count)
{
  RunShape shape;
  if (count == 0)
    return shape;
  double low = values[0];
  double high = values[0];
  bool finite = true;
  for (std::size_t i = 0; i < count; ++i)
  {
    low = std::min(low, values[i]);
    high = std::max(high, values[i]);
    finite = finite && std::isfinite(values[i]);
  }
  const double largest = std::max(std::abs(low), std::abs(high));
  if (!finite)
    shape.kind = RunShape::undefined;
  if (!finite || largest == 0.0)
    return shape;
  shape.scale = scaleFor(largest);
  const double scale = shape.scale;
  if (high * scale - low * scale <= steadyTolerance * largest * scale)
    return shape;
  shape.kind = RunShape::varying;
  shape.mean =
      laneSum(count, [=](std::size_t i) { return values[i] * scale; }) / static_cast<double>(count);
  const double mean = shape.mean;
  const double squares = laneSum(count,
                                 [=](std::size_t i)
                                 {
                                   const double deviation = values[i] * scale - mean;
                                   return deviation * deviation;
                                 });
  shape.inverseLength = 1.0 / std::sqrt(squares);
  return shape;
}

void writeUnitVector(const double* values, std::size_t count, const RunShape& shape, double* unit)
{
  if (shape.kind != RunShape::varying)
  {
    std::fill(unit, unit + count, 0.0);
    return;
  }
  for (std::size_t i = 0; i < count; ++i)
    unit[i] = (values[i] * shape.scale - shape.mean) * shape.inverseLength;
}

double dotProduct(const double* a, const double* b, std::size_t count)
{
  return laneSum(count, [=](std::size_t i) { return a[i] * b[i]; });
}

double shapeDistance(const RunShape& a, const RunShape& b, double correlation)
{
  if (a.kind == RunShape::undefined || b.kind == RunShape::undefined)
    return 2.0;
  if (a.kind == RunShape::steady || b.kind == RunShape::steady)
    return a.kind == b.kind ? 0.0 : 1.0;
  return std::clamp(1.0 - correlation, 0.0, 2.0);
}
} // namespace Talmesh::stats
