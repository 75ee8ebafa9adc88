#include "stats/ShapeClusters.h"

#include "stats/ParallelParts.h"
#include "stats/RunShape.h"

#include <algorithm>
#include <cmath>

namespace Talmesh::stats
{
namespace
{
constexpr double distinctDistance = 1e-12;
/// Values that a thread takes at a time: enough to outweigh starting it.
constexpr std::size_t valuesPerPart = std::size_t(1) << 17;
/// Positions that a thread sums up at a time.
constexpr std::size_t positionsPerPart = 128;

using Shapes = std::vector<RunShape>;

std::size_t rowsPerPart(std::size_t positions)
{
  return std::max<std::size_t>(1, valuesPerPart / std::max<std::size_t>(1, positions));
}

Shapes shapesOf(const Observations& observations)
{
  Shapes shapes(observations.count);
  inParallelParts(observations.count, rowsPerPart(observations.positions),
                  [&](std::size_t first, std::size_t last)
                  {
                    for (std::size_t i = first; i < last; ++i)
                      shapes[i] = shapeOf(observations.row(i), observations.positions);
                  });
  return shapes;
}

/// Centres ready to be compared with.
class UnitCentres
{
public:
  explicit UnitCentres(std::size_t positionCount)
      : positions(positionCount)
  {
  }

  void add(const double* values)
  {
    shapes.push_back(shapeOf(values, positions));
    units.resize(shapes.size() * positions);
    writeUnitVector(values, positions, shapes.back(),
                    units.data() + (shapes.size() - 1) * positions);
  }

  std::size_t size() const { return shapes.size(); }

  double distance(std::size_t centre, const RunShape& shape, const double* unit) const
  {
    const bool correlated =
        shape.kind == RunShape::varying && shapes[centre].kind == RunShape::varying;
    const double* other = units.data() + centre * positions;
    return shapeDistance(shape, shapes[centre],
                         correlated ? dotProduct(unit, other, positions) : 0.0);
  }

private:
  std::size_t positions;
  Shapes shapes;
  std::vector<double> units;
};

UnitCentres unitCentres(const std::vector<double>& centres, std::size_t clusters,
                        std::size_t positions)
{
  UnitCentres units(positions);
  for (std::size_t cluster = 0; cluster < clusters; ++cluster)
    units.add(centres.data() + cluster * positions);
  return units;
}

std::vector<double> firstDistinct(const Observations& observations, const Shapes& shapes,
                                  std::size_t clusters)
{
  const std::size_t positions = observations.positions;
  UnitCentres chosen(positions);
  std::vector<double> values;
  std::vector<double> unit(positions);
  for (std::size_t i = 0; i < observations.count && chosen.size() < clusters; ++i)
  {
    if (shapes[i].kind == RunShape::undefined)
      continue;
    const double* row = observations.row(i);
    writeUnitVector(row, positions, shapes[i], unit.data());
    bool isNew = true;
    for (std::size_t c = 0; c < chosen.size() && isNew; ++c)
      isNew = chosen.distance(c, shapes[i], unit.data()) > distinctDistance;
    if (!isNew)
      continue;
    chosen.add(row);
    values.insert(values.end(), row, row + positions);
  }
  if (chosen.size() == 0)
    values.assign(observations.row(0), observations.row(0) + positions);
  return values;
}

ClosestCentres assign(const Observations& observations, const Shapes& shapes,
                      const UnitCentres& centres)
{
  ClosestCentres closest;
  closest.cluster.resize(observations.count);
  closest.distance.resize(observations.count);
  const auto assignPart = [&](std::size_t first, std::size_t last)
  {
    std::vector<double> unit(observations.positions);
    for (std::size_t i = first; i < last; ++i)
    {
      writeUnitVector(observations.row(i), observations.positions, shapes[i], unit.data());
      std::size_t nearest = 0;
      double least = centres.distance(0, shapes[i], unit.data());
      for (std::size_t c = 1; c < centres.size(); ++c)
      {
        const double distance = centres.distance(c, shapes[i], unit.data());
        if (distance < least)
        {
          least = distance;
          nearest = c;
        }
      }
      closest.cluster[i] = static_cast<int>(nearest);
      closest.distance[i] = least;
    }
  };
  inParallelParts(observations.count, rowsPerPart(observations.positions), assignPart);
  return closest;
}

/// A power of two that lets all values be added up without overflow.
double sumScale(const Shapes& shapes)
{
  const bool anyImmense = std::any_of(shapes.begin(), shapes.end(),
                                      [](const RunShape& shape) { return shape.scale < 0x1p-900; });
  return anyImmense ? 0x1p-64 : 1.0;
}

/// Each thread sums its own positions over all observations, in their order.
void placeCentres(const Observations& observations, const Shapes& shapes,
                  const std::vector<int>& cluster, double scale, ClusterCentres& centres)
{
  const std::size_t positions = observations.positions;
  std::fill(centres.values.begin(), centres.values.end(), 0.0);
  const auto placePart = [&](std::size_t first, std::size_t last)
  {
    for (std::size_t i = 0; i < observations.count; ++i)
    {
      if (shapes[i].kind == RunShape::undefined)
        continue;
      const double* row = observations.row(i);
      double* sums = centres.values.data() + static_cast<std::size_t>(cluster[i]) * positions;
      for (std::size_t position = first; position < last; ++position)
        sums[position] += row[position] * scale;
    }
    for (std::size_t c = 0; c < centres.clusters; ++c)
    {
      const auto members = static_cast<double>(std::max<std::size_t>(1, centres.members[c]));
      double* means = centres.values.data() + c * positions;
      for (std::size_t position = first; position < last; ++position)
        means[position] = means[position] / members / scale;
    }
  };
  inParallelParts(positions, positionsPerPart, placePart);
}

void countMembers(const ClosestCentres& closest, ClusterCentres& centres)
{
  centres.members.assign(centres.clusters, 0);
  centres.errors.assign(centres.clusters, 0.0);
  for (std::size_t i = 0; i < closest.cluster.size(); ++i)
  {
    const auto cluster = static_cast<std::size_t>(closest.cluster[i]);
    ++centres.members[cluster];
    centres.errors[cluster] += closest.distance[i];
  }
}

std::size_t countChanges(const std::vector<int>& before, const std::vector<int>& after)
{
  std::size_t changes = 0;
  for (std::size_t i = 0; i < after.size(); ++i)
    changes += before[i] != after[i] ? 1 : 0;
  return changes;
}
} // namespace

ClusterCentres findClusters(const Observations& observations, std::size_t clusters,
                            const ClusterLimits& limits, const std::function<bool(double)>& goOn)
{
  const Shapes shapes = shapesOf(observations);
  const double scale = sumScale(shapes);
  ClusterCentres centres;
  centres.values = firstDistinct(observations, shapes, clusters);
  centres.clusters =
      observations.positions == 0 ? 1 : centres.values.size() / observations.positions;
  std::vector<int> before(observations.count, -1);
  const auto isWanted = [&]
  { return !goOn || goOn(static_cast<double>(centres.iterations) / limits.iterations); };
  double changed = 1.0;
  do
  {
    ClosestCentres closest =
        assign(observations, shapes,
               unitCentres(centres.values, centres.clusters, observations.positions));
    countMembers(closest, centres);
    placeCentres(observations, shapes, closest.cluster, scale, centres);
    changed = static_cast<double>(countChanges(before, closest.cluster)) /
              static_cast<double>(observations.count);
    before.swap(closest.cluster);
    ++centres.iterations;
  } while (changed >= limits.tolerance && centres.iterations < limits.iterations && isWanted());
  return centres;
}

ClosestCentres closestCentres(const Observations& observations, const std::vector<double>& centres)
{
  const std::size_t clusters =
      observations.positions == 0 ? 1 : centres.size() / observations.positions;
  return assign(observations, shapesOf(observations),
                unitCentres(centres, clusters, observations.positions));
}
} // namespace Talmesh::stats
