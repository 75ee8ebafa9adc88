#include "stats/SimulatedStudies.h"

#include "stats/ExchangeUnits.h"
#include "stats/PortableRandom.h"

#include <algorithm>
#include <cmath>

namespace Talmesh::stats
{
namespace
{
constexpr std::size_t parameters = 3;

/// By Box and Muller.
double normal(PortableRandom& random)
{
  const double radius = std::sqrt(-2.0 * std::log(1.0 - random.unit()));
  return radius * std::cos(6.283185307179586 * random.unit());
}

ParameterColumns replicatedPoints(std::size_t points, std::size_t replicates, std::uint64_t seed)
{
  PortableRandom random(seed, 1);
  ParameterColumns columns(parameters);
  for (std::vector<double>& column : columns)
  {
    for (std::size_t point = 0; point < points; ++point)
      column.insert(column.end(), replicates, random.unit());
  }
  return columns;
}

ParameterColumns gridPoints(std::size_t levels)
{
  ParameterColumns columns(parameters);
  for (std::size_t point = 0; point < levels * levels * levels; ++point)
  {
    std::size_t rest = point;
    for (std::vector<double>& column : columns)
    {
      column.push_back(static_cast<double>(rest % levels) / static_cast<double>(levels));
      rest /= levels;
    }
  }
  return columns;
}
} // namespace

std::string nameOf(StudyDesign design)
{
  switch (design)
  {
  case StudyDesign::singleRuns:
    return "no replicates";
  case StudyDesign::fiveReplicates:
    return "5 replicates";
  case StudyDesign::twentyReplicates:
    return "20 replicates";
  case StudyDesign::grid:
    return "grid";
  case StudyDesign::saltelli:
    return "Saltelli";
  }
  return {};
}

ParameterColumns saltelliPoints(std::size_t baseSamples, std::size_t count, std::uint64_t seed)
{
  PortableRandom random(seed, 1);
  ParameterColumns columns(count);
  for (std::size_t sample = 0; sample < baseSamples; ++sample)
  {
    for (std::size_t parameter = 0; parameter < count; ++parameter)
    {
      const double a = random.unit();
      const double b = random.unit();
      std::vector<double>& column = columns[parameter];
      column.insert(column.end(), count + 1, a);
      column[column.size() - count + parameter] = b;
      column.push_back(b);
    }
  }
  return columns;
}

ParameterColumns designPoints(StudyDesign design, std::uint64_t seed)
{
  switch (design)
  {
  case StudyDesign::singleRuns:
    return replicatedPoints(200, 1, seed);
  case StudyDesign::fiveReplicates:
    return replicatedPoints(60, 5, seed);
  case StudyDesign::twentyReplicates:
    return replicatedPoints(30, 20, seed);
  case StudyDesign::grid:
    return gridPoints(6);
  case StudyDesign::saltelli:
    return saltelliPoints(40, 2 * parameters, seed);
  }
  return {};
}

SimulatedStudy simulateStudy(StudyDesign design, bool firstDecides, std::uint64_t seed)
{
  SimulatedStudy study;
  study.columns = designPoints(design, seed);
  const ExchangeUnits units = exchangeUnits(study.columns);
  PortableRandom random(seed, 2);
  std::vector<double> ofCell;
  for (std::size_t unit = 0; unit < units.units(); ++unit)
    ofCell.resize(units.firstCell[unit + 1], normal(random));
  std::vector<double> outcome;
  for (std::size_t run = 0; run < units.runs(); ++run)
  {
    const double noise = normal(random);
    outcome.push_back(firstDecides ? 4.0 * study.columns[0][run] + noise / 2.0
                                   : ofCell[units.cellOfRun[run]] + noise);
  }
  std::vector<double> sorted(outcome);
  std::sort(sorted.begin(), sorted.end());
  const double bound = sorted[sorted.size() * 7 / 10];
  for (const double value : outcome)
    study.selected.push_back(value >= bound ? 1 : 0);
  return study;
}
} // namespace Talmesh::stats
