#include "stats/SobolIndices.h"

#include <random>

namespace Talmesh::stats
{

namespace
{

using Values = std::vector<double>;

/// The standard's own distributions may differ between libraries.
Values randomPoint(std::mt19937& generator, std::size_t inputs)
{
  constexpr double steps = 4294967296.0;
  Values point(inputs);
  for (double& coordinate : point)
    coordinate = static_cast<double>(generator()) / steps;
  return point;
}

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
  if (samples == 0)
    return {};
  std::mt19937 generator(seed);
  std::vector<Sums> sums;
  for (std::size_t sample = 0; sample < samples; ++sample)
  {
    const Values a = randomPoint(generator, inputs);
    const Values b = randomPoint(generator, inputs);
    const Values fA = model(a);
    const Values fB = model(b);
    if (sums.empty())
      sums.emplace_back(fA.size(), inputs);
    sums.front().addValues(fA);
    sums.front().addValues(fB);
    for (std::size_t input = 0; input < inputs; ++input)
    {
      Values mixed = a;
      mixed[input] = b[input];
      sums.front().addDistances(input, fA, fB, model(mixed));
    }
  }
  return indicesFrom(sums.front());
}

} // namespace Talmesh::stats
