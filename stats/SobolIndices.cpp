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
      : value(outputs)
      , square(outputs)
      , fromB(outputs, Values(inputs))
      , fromA(outputs, Values(inputs))
  {
  }

  void addVariance(const Values& a, const Values& b)
  {
    for (std::size_t output = 0; output < value.size(); ++output)
    {
      value[output] += a[output] + b[output];
      square[output] += a[output] * a[output] + b[output] * b[output];
    }
  }

  void addDistances(std::size_t input, const Values& a, const Values& b, const Values& mixed)
  {
    for (std::size_t output = 0; output < value.size(); ++output)
    {
      fromB[output][input] += squaredDistance(b[output], mixed[output]);
      fromA[output][input] += squaredDistance(a[output], mixed[output]);
    }
  }

  Values value;
  Values square;
  std::vector<Values> fromB; ///< squared distances of B from the mixed points, per input
  std::vector<Values> fromA;
};

SobolIndices indicesFrom(Sums sums, std::size_t samples)
{
  const auto count = 2.0 * static_cast<double>(samples);
  for (std::size_t output = 0; output < sums.value.size(); ++output)
  {
    const double mean = sums.value[output] / count;
    const double variance = sums.square[output] / count - mean * mean;
    for (double& distance : sums.fromB[output])
      distance = 1.0 - distance / (count * variance);
    for (double& distance : sums.fromA[output])
      distance = distance / (count * variance);
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
    sums.front().addVariance(fA, fB);
    for (std::size_t input = 0; input < inputs; ++input)
    {
      Values mixed = a;
      mixed[input] = b[input];
      sums.front().addDistances(input, fA, fB, model(mixed));
    }
  }
  return indicesFrom(sums.front(), samples);
}

} // namespace Talmesh::stats
