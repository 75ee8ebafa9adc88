#include "app/examples/CircuitSensitivity.h"

#include "app/examples/ExampleStudy.h"
#include "stats/SobolIndices.h"

#include <array>
#include <cmath>
#include <mutex>

namespace Talmesh::app
{

namespace
{

constexpr std::array<const char*, 4> parameterNames = {"alpha", "alpha0", "beta", "n"};
constexpr std::size_t keptSamples = 4096;
constexpr std::uint32_t seed = 2000335;
constexpr std::size_t timePoints = 36;
constexpr double hour = 3600.0; ///< seconds
/// From here on: at time zero all runs are equal, and nothing can be attributed to a parameter.
constexpr double firstTime = 0.25 * hour;
/// Later the oscillations of different parameters lose step, and no parameter alone explains much.
constexpr double lastTime = 2.0 * hour;

/// Position in the simulated state of the outputs, proteins first.
constexpr std::array<std::size_t, 6> stateOfOutput = {3, 4, 5, 0, 1, 2};

std::vector<double> secondsOfTimePoints()
{
  std::vector<double> times;
  for (std::size_t i = 0; i < timePoints; ++i)
    times.push_back(firstTime + (lastTime - firstTime) * static_cast<double>(i) /
                                    static_cast<double>(timePoints - 1));
  return times;
}

double fromUnit(const ParameterRange& range, double u)
{
  return range.logarithmic ? range.lower * std::pow(range.upper / range.lower, u)
                           : range.lower + (range.upper - range.lower) * u;
}

/// All outputs at all time points, output after output.
std::vector<double> simulate(const std::vector<double>& point, const std::vector<double>& lifetimes)
{
  const std::vector<ParameterRange>& ranges = exampleParameterRanges();
  const RepressilatorParameters parameters = {
      fromUnit(ranges[0], point[0]), fromUnit(ranges[1], point[1]), fromUnit(ranges[2], point[2]),
      fromUnit(ranges[3], point[3])};
  const std::vector<RepressilatorState> states =
      integrateRepressilator(parameters, exampleStart(), lifetimes);
  std::vector<double> values;
  for (const std::size_t place : stateOfOutput)
  {
    for (std::size_t i = 1; i < states.size(); ++i)
      values.push_back(states[i][place]);
  }
  return values;
}

/// The charts leave out the last output. As in the study's own items, the time follows the species;
/// it depends on no parameter.
void appendTime(SobolPostProcessResult& result)
{
  result.outputs.push_back(exampleItems()[stateOfOutput.size()]);
  const std::vector<std::vector<double>> none(timePoints,
                                              std::vector<double>(parameterNames.size(), 0.0));
  result.firstOrder->push_back(none);
  result.total->push_back(none);
}

/// [output * time][parameter] as [output][time][parameter].
SobolPostProcessResult::Indices regroup(const std::vector<std::vector<double>>& flat)
{
  SobolPostProcessResult::Indices indices(stateOfOutput.size());
  for (std::size_t i = 0; i < flat.size(); ++i)
    indices[i / timePoints].push_back(flat[i]);
  return indices;
}

} // namespace

Result<CircuitIndices> circuitSensitivity(std::size_t samples, const ImportProgress& progress)
{
  const std::vector<double> seconds = secondsOfTimePoints();
  std::vector<double> lifetimes = {0.0};
  for (const double time : seconds)
    lifetimes.push_back(time / mRnaLifetimeInSeconds());
  const auto simulations = static_cast<double>(samples * (parameterNames.size() + 2));
  std::size_t done = 0;
  bool cancelled = false;
  const auto model = [&](const std::vector<double>& point)
  {
    cancelled = progress && !progress(static_cast<double>(done++) / simulations);
    return cancelled ? std::vector<double>() : simulate(point, lifetimes);
  };
  const stats::SobolIndices indices =
      stats::estimateSobolIndices(model, parameterNames.size(), samples, seed);
  if (cancelled)
    return Result<CircuitIndices>::cancelled();

  auto result = std::make_shared<SobolPostProcessResult>();
  result->parameterValues.resize(parameterNames.size());
  result->parameterNames.assign(parameterNames.begin(), parameterNames.end());
  const auto study = exampleItems();
  result->outputs.assign(study.begin(), study.begin() + stateOfOutput.size());
  result->timePoints = std::make_shared<std::vector<double>>(seconds);
  result->firstOrder =
      std::make_shared<SobolPostProcessResult::Indices>(regroup(indices.firstOrder));
  result->total = std::make_shared<SobolPostProcessResult::Indices>(regroup(indices.total));
  appendTime(*result);
  return result;
}

Result<CircuitIndices> keptCircuitSensitivity(const ImportProgress& progress)
{
  static std::mutex computing;
  static Result<CircuitIndices> kept = Result<CircuitIndices>::cancelled();
  const std::lock_guard<std::mutex> lock(computing);
  if (!kept.hasValue())
    kept = circuitSensitivity(keptSamples, progress);
  return kept;
}

std::vector<NamedDistribution> circuitPriors()
{
  std::vector<NamedDistribution> priors;
  const std::vector<ParameterRange>& ranges = exampleParameterRanges();
  for (std::size_t i = 0; i < parameterNames.size(); ++i)
  {
    const ParameterRange& range = ranges[i];
    std::unique_ptr<Distribution> prior;
    if (range.logarithmic)
      prior = std::make_unique<LogUniformDistribution>(range.lower, range.upper);
    else
      prior = std::make_unique<UniformDistribution>(range.lower, range.upper);
    priors.push_back({parameterNames[i], std::move(prior)});
  }
  return priors;
}

} // namespace Talmesh::app
