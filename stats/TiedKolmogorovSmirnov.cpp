#include "stats/TiedKolmogorovSmirnov.h"

#include "stats/SmallTails.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::stats
{
namespace
{
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double pi = 3.14159265358979323846;

/// Of doubles, or of long doubles where those lose digits.
template <class Real>
using Probabilities = std::vector<Real>;

/// The part of an antidiagonal that lies on the lattice: numbers of runs of the smaller group.
struct Span
{
  std::uint64_t first = 0;
  std::uint64_t last = 0;
};

/// One step along the antidiagonals, to those places where `taken` runs are taken.
template <class Real>
void advance(const Probabilities<Real>& before, Probabilities<Real>& after, const Span& span,
             std::uint64_t taken)
{
  const Real* from = before.data();
  Real* to = after.data();
  const auto all = static_cast<Real>(taken);
  // The outermost places have one neighbour on the lattice; the other one's weight is 0, but it
  // may lie in front of the memory.
  std::uint64_t first = span.first;
  if (first == 0)
    to[first++] = from[0];
  const auto count = static_cast<std::int64_t>(span.last) + 1;
  for (auto i = static_cast<std::int64_t>(first); i < count; ++i)
  {
    const auto small = static_cast<Real>(i);
    to[i] = (small * from[i - 1] + (all - small) * from[i]) / all;
  }
}

/// Sets the places with |i (m + n) - taken m| >= steps, which is |i n - j m|, to 1.
template <class Real>
void markReached(Probabilities<Real>& places, const Span& span, std::uint64_t taken,
                 std::uint64_t smallSize, std::uint64_t allSize, std::uint64_t steps)
{
  const std::uint64_t centre = taken * smallSize;
  if (centre >= steps)
  {
    const std::uint64_t lower = std::min((centre - steps) / allSize, span.last);
    for (std::uint64_t i = span.first; i <= lower; ++i)
      places[i] = 1;
  }
  const std::uint64_t upper = (centre + steps + allSize - 1) / allSize;
  for (std::uint64_t i = std::max(upper, span.first); i <= span.last; ++i)
    places[i] = 1;
}

double scaledDistance(const GroupSizes& sizes, double distance)
{
  const auto m = static_cast<double>(sizes.selected);
  const auto n = static_cast<double>(sizes.others);
  return distance * std::sqrt(m * n / (m + n));
}

double alternatingSeries(double z)
{
  double sum = 0.0;
  double sign = 1.0;
  for (int k = 1; k < 100; ++k)
  {
    const double term = std::exp(-2.0 * k * k * z * z);
    sum += sign * term;
    if (term <= 1e-17 * sum)
      break;
    sign = -sign;
  }
  return 2.0 * sum;
}

/// P(D < d), which converges fast where the alternating series does not.
double thetaSeries(double z)
{
  double sum = 0.0;
  for (int k = 1; k < 20; k += 2)
    sum += std::exp(-k * k * pi * pi / (8.0 * z * z));
  return std::sqrt(2.0 * pi) / z * sum;
}

/// The part of the paths that reach `steps`. @param sizes both present
template <class Real>
Real partReaching(const TieBlocks& blocks, const GroupSizes& sizes, std::uint64_t steps)
{
  if (steps == 0)
    return 1;
  const std::uint64_t small = std::min(sizes.selected, sizes.others);
  const std::uint64_t large = std::max(sizes.selected, sizes.others);
  // Where nothing is taken yet nothing is reached: C(0, 0) = 0.
  Probabilities<Real> places(small + 1, 0);
  Probabilities<Real> next(small + 1, 0);
  std::uint64_t taken = 0;
  for (const TieBlock& block : blocks)
  {
    Span span;
    const std::uint64_t blockEnd = taken + block.selected + block.others;
    while (taken < blockEnd)
    {
      ++taken;
      span.first = taken > large ? taken - large : 0;
      span.last = std::min(taken, small);
      advance(places, next, span, taken);
      places.swap(next);
    }
    markReached(places, span, taken, small, sizes.runs(), steps);
  }
  return std::min<Real>(places[small], 1);
}

/// By long doubles where doubles lose digits. Where those reach no further, as with some compilers,
/// not below the smallest double with all its digits.
double exactLog(const TieBlocks& blocks, const GroupSizes& sizes, std::uint64_t steps, double p)
{
  if (p > smallestSafeP)
    return std::log(p);
  using Wide = std::numeric_limits<long double>;
  // The smallest p of groups within `largestExactKs` is 2 / choose(10000, 5000) = 1e-3008.
  if constexpr (Wide::max_exponent10 > 4 * std::numeric_limits<double>::max_exponent10)
    return static_cast<double>(std::log(partReaching<long double>(blocks, sizes, steps)));
  return std::log(std::max(p, std::numeric_limits<double>::min()));
}

double asymptoticLog(const GroupSizes& sizes, double distance)
{
  const double p = asymptoticKsTail(sizes, distance);
  if (std::isnan(p) || p > smallestSafeP)
    return std::log(p);
  // Only the first term of the series counts.
  const double z = scaledDistance(sizes, distance);
  return std::log(2.0) - 2.0 * z * z;
}
} // namespace

double KsDistance::distance() const
{
  if (!sizes.bothPresent())
    return notANumber;
  return static_cast<double>(steps()) /
         (static_cast<double>(sizes.selected) * static_cast<double>(sizes.others));
}

KsDistance ksDistance(const TieBlocks& blocks)
{
  KsDistance result;
  result.sizes = groupSizes(blocks);
  std::uint64_t selected = 0;
  std::uint64_t others = 0;
  for (const TieBlock& block : blocks)
  {
    selected += block.selected;
    others += block.others;
    const std::uint64_t below = selected * result.sizes.others;
    const std::uint64_t above = others * result.sizes.selected;
    if (below > above)
      result.smaller = std::max(result.smaller, below - above);
    else
      result.larger = std::max(result.larger, above - below);
  }
  return result;
}

double exactKsTail(const TieBlocks& blocks, std::uint64_t steps)
{
  const GroupSizes sizes = groupSizes(blocks);
  return sizes.bothPresent() ? partReaching<double>(blocks, sizes, steps) : notANumber;
}

double asymptoticKsTail(const GroupSizes& sizes, double distance)
{
  if (!sizes.bothPresent() || std::isnan(distance))
    return notANumber;
  const double z = scaledDistance(sizes, distance);
  if (z <= 0.0)
    return 1.0;
  const double tail = z < 1.0 ? 1.0 - thetaSeries(z) : alternatingSeries(z);
  return std::clamp(tail, 0.0, 1.0);
}

KsTest tiedKsTest(const TieBlocks& blocks)
{
  KsTest test;
  test.distance = ksDistance(blocks);
  const GroupSizes& sizes = test.distance.sizes;
  const double distance = test.distance.distance();
  test.exact = sizes.selected * sizes.others <= largestExactKs;
  test.p =
      test.exact ? exactKsTail(blocks, test.distance.steps()) : asymptoticKsTail(sizes, distance);
  if (!sizes.bothPresent())
    test.logP = notANumber;
  else
    test.logP = test.exact ? exactLog(blocks, sizes, test.distance.steps(), test.p)
                           : asymptoticLog(sizes, distance);
  return test;
}
} // namespace Talmesh::stats
