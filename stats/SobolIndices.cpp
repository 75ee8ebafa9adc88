#include "stats/SobolIndices.h"

#include <boost/random/sobol.hpp>

#include <cmath>
#include <random>

namespace Talmesh::stats
{

namespace
{

using Values = std::vector<double>;

/// Points of Sobol's sequence, all shifted by one random vector modulo 1.
class ShiftedSobolSequence
{
public:
  ShiftedSobolSequence(std::size_t dimensions, std::uint32_t seed)
      : sequence(dimensions)
      , shift(dimensions)
  {
    // The standard's own distributions may differ between libraries.
    constexpr double steps = 4294967296.0;
    std::mt19937 generator(seed);
    for (double& coordinate : shift)
      coordinate = static_cast<double>(generator()) / steps;
  }

  /// The next coordinates, as many as there are in `point`; a point of the sequence may be taken in
  /// parts.
  void take(Values& point)
  {
    for (double& coordinate : point)
    {
      // The 53 upper bits, so that rounding does not reach 1.
      const double unshifted = std::ldexp(static_cast<double>(sequence() >> 11U), -53);
      const double sum = unshifted + shift[next];
      coordinate = sum < 1.0 ? sum : sum - 1.0;
      next = (next + 1) % shift.size();
    }
  }

private:
  boost::random::sobol sequence;
  Values shift;
  std::size_t next = 0;
};

double squaredDistance(double a, double b)
{
  return (a - b) * (a - b);
}

/// Sums over the samples, one entry per output.
struct Sums
{
  explicit Sums(std::size_t outputs, std::size_t inputs)
      : mean(outputs)
      , deviation(outputs)
      , fromB(outputs, Values(inputs))
      , fromA(outputs, Values(inputs))
  {
  }

  /// By Welford's recurrence, which neither finds a variance in a constant nor loses one to a large
  /// mean.
  void addValues(const Values& values)
  {
    count += 1.0;
    for (std::size_t output = 0; output < mean.size(); ++output)
    {
      const double distance = values[output] - mean[output];
      mean[output] += distance / count;
      deviation[output] += distance * (values[output] - mean[output]);
    }
  }

  void addDistances(std::size_t input, const Values& a, const Values& b, const Values& mixed)
  {
    for (std::size_t output = 0; output < mean.size(); ++output)
    {
      fromB[output][input] += squaredDistance(b[output], mixed[output]);
      fromA[output][input] += squaredDistance(a[output], mixed[output]);
    }
  }

  double count = 0.0;
  Values mean;
  Values deviation;          ///< squared, from the mean: 2 N V
  std::vector<Values> fromB; ///< squared distances of B from the mixed points, per input
  std::vector<Values> fromA;
};

SobolIndices indicesFrom(Sums sums)
{
  for (std::size_t output = 0; output < sums.mean.size(); ++output)
  {
    for (double& distance : sums.fromB[output])
      distance = 1.0 - distance / sums.deviation[output];
    for (double& distance : sums.fromA[output])
      distance = distance / sums.deviation[output];
  }
  return {sums.fromB, sums.fromA};
}

} // namespace

SobolIndices estimateSobolIndices(const UnitCubeModel& model, std::size_t inputs,
                                  std::size_t samples, std::uint32_t seed)
{
  if (samples == 0 || inputs == 0)
    return {};
  ShiftedSobolSequence sequence(2 * inputs, seed);
  Values a(inputs);
  Values b(inputs);
  std::vector<Sums> sums;
  for (std::size_t sample = 0; sample < samples; ++sample)
  {
    sequence.take(a);
    sequence.take(b);
    const Values fA = model(a);
    const Values fB = fA.empty() ? Values() : model(b);
    if (fB.empty())
      return {};
    if (sums.empty())
      sums.emplace_back(fA.size(), inputs);
    sums.front().addValues(fA);
    sums.front().addValues(fB);
    for (std::size_t input = 0; input < inputs; ++input)
    {
      Values mixed = a;
      mixed[input] = b[input];
      const Values fMixed = model(mixed);
      if (fMixed.empty())
        return {};
      sums.front().addDistances(input, fA, fB, fMixed);
    }
  }
  return indicesFrom(sums.front());
}

} // namespace Talmesh::stats
