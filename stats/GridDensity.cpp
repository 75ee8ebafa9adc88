#include "stats/GridDensity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace Talmesh::stats
{
namespace
{
/// Bandwidths beyond which a term is below 1e-20.
constexpr double reach = 9.7;
/// From target to target a term is multiplied instead of computed; its error grows with the square
/// of their number, to 64 times the last bit.
constexpr std::size_t targetsAtOnce = 16;
/// So many sources make independent products, of which a processor does several at a time.
constexpr std::size_t sourcesAtOnce = 8;
/// Bandwidths from target to target. More would lose the terms of a first target out of reach.
constexpr double widestStep = 0.5;
constexpr double rootTwoPi = 2.50662827463100050242;

using Lanes = std::array<double, sourcesAtOnce>;
using Sums = std::array<double, targetsAtOnce>;

bool isEven(const std::vector<double>& targets, double step)
{
  const double allowed = 1e-12 * step;
  for (std::size_t i = 0; i < targets.size(); ++i)
    if (!(std::abs(targets[i] - targets[0] - static_cast<double>(i) * step) <= allowed))
      return false;
  return step > 0.0;
}

bool areFinite(const std::vector<double>& values)
{
  return std::all_of(values.begin(), values.end(),
                     [](double value) { return std::isfinite(value); });
}

/// exp(-(d + k step)^2 / 2) for k = 0, 1, ... is a product: with r = exp(-d step - step^2 / 2),
/// each is the one before times r, and r shrinks by exp(-step^2).
void addTerms(const Lanes& distances, double step, Sums& sums)
{
  Lanes terms;
  Lanes ratios;
  for (std::size_t j = 0; j < sourcesAtOnce; ++j)
  {
    terms[j] = std::exp(-0.5 * distances[j] * distances[j]);
    ratios[j] = std::exp(-step * (distances[j] + 0.5 * step));
  }
  const double shrinking = std::exp(-step * step);
  for (double& sum : sums)
  {
    double added = 0.0;
    for (std::size_t j = 0; j < sourcesAtOnce; ++j)
    {
      added += terms[j];
      terms[j] *= ratios[j];
      ratios[j] *= shrinking;
    }
    sum += added;
  }
}

/// The sums at the targets from `first` on.
Sums sumsFrom(double first, const std::vector<double>& sources, double bandwidth, double step)
{
  Sums sums = {};
  const double lowest = -reach - step * targetsAtOnce;
  Lanes distances;
  std::size_t filled = 0;
  for (const double source : sources)
  {
    const double distance = (first - source) / bandwidth;
    if (distance < lowest || distance > reach)
      continue;
    distances[filled++] = distance;
    if (filled == sourcesAtOnce)
    {
      addTerms(distances, step, sums);
      filled = 0;
    }
  }
  if (filled > 0)
  {
    // So far away that nothing is added.
    std::fill(distances.begin() + static_cast<std::ptrdiff_t>(filled), distances.end(), 40.0);
    addTerms(distances, step, sums);
  }
  return sums;
}
} // namespace

bool estimateOnGrid(const std::vector<double>& sources, const std::vector<double>& targets,
                    double bandwidth, std::vector<double>& density)
{
  if (targets.size() < 2 || !(bandwidth > 0.0) || !std::isfinite(bandwidth) || !areFinite(sources))
    return false;
  const double spacing =
      (targets.back() - targets.front()) / static_cast<double>(targets.size() - 1);
  if (!isEven(targets, spacing) || spacing > widestStep * bandwidth)
    return false;
  const double scale = static_cast<double>(sources.size()) * bandwidth * rootTwoPi;
  for (std::size_t first = 0; first < targets.size(); first += targetsAtOnce)
  {
    const Sums sums = sumsFrom(targets[first], sources, bandwidth, spacing / bandwidth);
    const std::size_t count = std::min(targetsAtOnce, targets.size() - first);
    for (std::size_t k = 0; k < count; ++k)
      density[first + k] = sums[k] / scale;
  }
  return true;
}
} // namespace Talmesh::stats
