#include "stats/RankedDensity.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::stats
{
namespace
{
constexpr double lastLocation = static_cast<double>(densityLocations - 1);

/// The 200 evenly spaced points of the estimate, from start to start + 1 / blocks.
std::vector<double> densityGrid(const ReflectedReferences& references)
{
  std::vector<double> grid(densityLocations);
  for (std::size_t i = 0; i < densityLocations; ++i)
    grid[i] = (static_cast<double>(i) / lastLocation) / static_cast<double>(references.blocks) +
              references.start;
  return grid;
}

/// Normal reference rule with the smaller of standard deviation and interquartile range / 1.34 of
/// the values' own block, at least a fifth of the grid's step. Needs at least one reference.
double kernelBandwidth(const ReflectedReferences& references, const std::vector<double>& grid)
{
  const std::size_t count = references.count;
  const auto size = static_cast<double>(count);
  const double* middle = references.points.data() + count;
  double squares = 0.0;
  for (std::size_t i = 0; i < count; ++i)
    squares += (middle[i] - references.mean) * (middle[i] - references.mean);
  const double deviation = std::sqrt(squares / size);
  const double spread = (middle[3 * count / 4] - middle[count / 4]) / 1.34;
  const double smallest = 0.2 * std::abs(grid[1] - grid[0]);
  return std::max(smallest, 1.06 * std::min(deviation, spread) * std::pow(size, -0.2));
}

void estimateWithKernel(const ReflectedReferences& references, const ParameterSupport& support,
                        const KernelDensity& kernelDensity, DoubleBuffer& densities,
                        DoubleBuffer& locations)
{
  std::vector<double> sources = references.points;
  std::vector<double> grid = densityGrid(references);
  std::vector<double> estimate(grid.size());
  kernelDensity(sources, grid, kernelBandwidth(references, grid), estimate);
  const auto blocks = static_cast<double>(references.blocks);
  for (std::size_t i = 0; i < densityLocations; ++i)
  {
    densities[i] = estimate[i] / support.range;
    locations[i] = (grid[i] - references.start) * support.range * blocks + support.lower;
  }
}

void placeLocations(const ParameterSupport& support, DoubleBuffer& locations)
{
  for (std::size_t i = 0; i < densityLocations; ++i)
    locations[i] = static_cast<double>(i) * support.range / lastLocation + support.lower;
}

void markValues(const std::vector<double>& sorted, double halfStep, const DoubleBuffer& locations,
                DoubleBuffer& densities)
{
  auto cursor = sorted.begin();
  for (std::size_t i = 0; i < densityLocations && cursor != sorted.end(); ++i)
  {
    // A value that lies below the window is never matched again and blocks those behind it.
    if (*cursor >= locations[i] - halfStep && *cursor <= locations[i] + halfStep)
    {
      densities[i] = 1.0;
      ++cursor;
    }
  }
}

void markConstant(const std::vector<double>& sorted, double halfStep, const DoubleBuffer& locations,
                  DoubleBuffer& densities)
{
  for (std::size_t i = 0; i < densityLocations && !sorted.empty(); ++i)
    densities[i] = std::abs(locations[i] - sorted.front()) <= halfStep ? 1.0 : 0.0;
}
} // namespace

ReflectedReferences reflectedReferences(const std::vector<double>& sorted,
                                        const ParameterSupport& support)
{
  ReflectedReferences result;
  const bool unboundedAbove = support.upper > std::numeric_limits<double>::max();
  result.blocks = unboundedAbove ? 2 : 3;
  result.start = unboundedAbove ? 0.5 : 1.0 / 3.0;
  const std::size_t step = std::max<std::size_t>(1, sorted.size() / 400);
  const std::size_t count = sorted.size() / step;
  result.count = count;
  result.points.resize(result.blocks * count);

  const auto blocks = static_cast<double>(result.blocks);
  double sum = 0.0;
  std::size_t taken = 0;
  for (std::size_t i = 0; i < sorted.size(); ++i)
  {
    const double z = (sorted[i] - support.lower) / support.range;
    sum += (1.0 + z) / blocks;
    if (i % step == 0 && taken < count)
    {
      result.points[count - 1 - taken] = (1.0 - z) / blocks;
      result.points[count + taken] = (1.0 + z) / blocks;
      if (result.blocks == 3)
        result.points[3 * count - 1 - taken] = (3.0 - z) / 3.0;
      ++taken;
    }
  }
  result.mean = sum / static_cast<double>(sorted.size());
  return result;
}

void estimateDensity(const std::vector<double>& sorted, const ParameterSupport& support,
                     const KernelDensity& kernelDensity, DoubleBuffer& densities,
                     DoubleBuffer& locations)
{
  const double halfStep = 0.5 * support.range / lastLocation;
  if (support.degenerate)
  {
    placeLocations(support, locations);
    markConstant(sorted, halfStep, locations, densities);
    return;
  }
  const ReflectedReferences references = reflectedReferences(sorted, support);
  if (references.count >= smallestKernelSample)
  {
    estimateWithKernel(references, support, kernelDensity, densities, locations);
    return;
  }
  placeLocations(support, locations);
  markValues(sorted, halfStep, locations, densities);
}
} // namespace Talmesh::stats
