#include "stats/SaltelliDesign.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace Talmesh::stats
{
namespace
{
using Columns = std::vector<const std::vector<double>*>;
using Positions = std::vector<std::size_t>;

Columns varyingColumns(const ParameterColumns& columns)
{
  Columns varying;
  for (const std::vector<double>& column : columns)
  {
    if (std::any_of(column.begin(), column.end(),
                    [&column](double value) { return value != column.front(); }))
      varying.push_back(&column);
  }
  return varying;
}

/// A design with points in certain places, to be compared with the values.
class Candidate
{
public:
  Candidate(const Columns& values, const SaltelliDesign& places)
      : columns(values)
      , design(places)
  {
  }

  bool fits(std::size_t a, std::size_t b) const
  {
    const Positions mixed = positionsBut(a, b);
    const auto middle = mixed.begin() + static_cast<std::ptrdiff_t>(columns.size());
    return mixes(a, b, {mixed.begin(), middle}) &&
           (middle == mixed.end() || mixes(b, a, {middle, mixed.end()})) && isSample(a) &&
           isSample(b);
  }

private:
  double value(std::size_t sample, std::size_t position, std::size_t column) const
  {
    return (*columns[column])[design.run(sample, position)];
  }

  Positions positionsBut(std::size_t a, std::size_t b) const
  {
    Positions others;
    for (std::size_t position = 0; position < design.runsPerSample; ++position)
    {
      if (position != a && position != b)
        others.push_back(position);
    }
    return others;
  }

  /// Each of the positions is the base with another of the coordinates from `donor`.
  bool mixes(std::size_t base, std::size_t donor, const Positions& mixed) const
  {
    std::set<std::size_t> replaced;
    for (const std::size_t position : mixed)
    {
      const auto column = replacedColumn(base, position);
      if (!column || !replaced.insert(*column).second || !isTaken(donor, position, *column))
        return false;
    }
    return true;
  }

  /// The one column in which a point differs from the base; nothing for none and for several.
  std::optional<std::size_t> replacedColumn(std::size_t base, std::size_t position) const
  {
    std::optional<std::size_t> replaced;
    for (std::size_t sample = 0; sample < design.baseSamples; ++sample)
    {
      for (std::size_t column = 0; column < columns.size(); ++column)
      {
        if (value(sample, position, column) == value(sample, base, column))
          continue;
        if (replaced && *replaced != column)
          return std::nullopt;
        replaced = column;
      }
    }
    return replaced;
  }

  bool isTaken(std::size_t donor, std::size_t position, std::size_t column) const
  {
    for (std::size_t sample = 0; sample < design.baseSamples; ++sample)
    {
      if (value(sample, position, column) != value(sample, donor, column))
        return false;
    }
    return true;
  }

  bool isSample(std::size_t position) const
  {
    std::size_t spread = 0;
    for (std::size_t column = 0; column < columns.size(); ++column)
    {
      std::set<double> different;
      for (std::size_t sample = 0; sample < design.baseSamples; ++sample)
        different.insert(value(sample, position, column));
      spread += 2 * different.size() > design.baseSamples ? 1 : 0;
    }
    return 2 * spread > columns.size();
  }

  const Columns& columns;
  SaltelliDesign design;
};

bool fitsInSomeOrder(const Columns& columns, const SaltelliDesign& design)
{
  const std::size_t last = design.runsPerSample - 1;
  const Candidate candidate(columns, design);
  const std::array<std::pair<std::size_t, std::size_t>, 4> points{
      {{0, last}, {0, 1}, {last, 0}, {1, 0}}};
  return std::any_of(points.begin(), points.end(),
                     [&candidate](const auto& point)
                     { return candidate.fits(point.first, point.second); });
}
/// The part of all values that a run of a base sample has in common with the one before it.
double sharedPart(const ParameterColumns& columns, const SaltelliDesign& design)
{
  std::size_t shared = 0;
  for (const std::vector<double>& column : columns)
    for (std::size_t sample = 0; sample < design.baseSamples; ++sample)
      for (std::size_t position = 1; position < design.runsPerSample; ++position)
        shared += column[design.run(sample, position)] == column[design.run(sample, position - 1)];
  const std::size_t pairs = columns.size() * design.baseSamples * (design.runsPerSample - 1);
  return static_cast<double>(shared) / static_cast<double>(pairs);
}
} // namespace

std::optional<SaltelliDesign> namedSaltelliDesign(const ParameterColumns& columns,
                                                  std::size_t parameters)
{
  const std::size_t runs = runsIn(columns);
  const std::size_t k = parameters > 0 ? parameters : varyingColumns(columns).size();
  std::optional<SaltelliDesign> best;
  double mostShared = -1.0;
  if (k == 0 || k > runs)
    return best;
  for (const std::size_t width : {k + 2, 2 * k + 2})
  {
    if (runs % width != 0 || runs / width < 2)
      continue;
    for (const bool interleaved : {true, false})
    {
      const SaltelliDesign design{runs / width, width, interleaved};
      const double shared = sharedPart(columns, design);
      if (shared <= mostShared)
        continue;
      mostShared = shared;
      best = design;
    }
  }
  return best;
}

std::optional<SaltelliDesign> recogniseSaltelliDesign(const ParameterColumns& columns)
{
  const std::size_t runs = runsIn(columns);
  const Columns varying = varyingColumns(columns);
  if (varying.size() < 2)
    return std::nullopt;
  for (const std::size_t width : {varying.size() + 2, 2 * varying.size() + 2})
  {
    if (runs % width != 0 || runs / width < 2)
      continue;
    for (const bool interleaved : {true, false})
    {
      const SaltelliDesign design{runs / width, width, interleaved};
      if (fitsInSomeOrder(varying, design))
        return design;
    }
  }
  return std::nullopt;
}
} // namespace Talmesh::stats
