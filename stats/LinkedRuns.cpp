#include "stats/LinkedRuns.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Talmesh::stats
{
namespace
{
using Numbers = std::vector<std::uint32_t>;

/// Sets that can be united; each is known by one of its members.
class UnitedSets
{
public:
  explicit UnitedSets(std::size_t members)
      : parents(members)
  {
    std::iota(parents.begin(), parents.end(), 0U);
  }

  std::uint32_t of(std::uint32_t member)
  {
    while (parents[member] != member)
    {
      parents[member] = parents[parents[member]];
      member = parents[member];
    }
    return member;
  }

  void unite(std::uint32_t one, std::uint32_t other) { parents[of(one)] = of(other); }

private:
  Numbers parents;
};

Numbers ascendingRuns(const std::vector<double>& column)
{
  Numbers runs(column.size());
  std::iota(runs.begin(), runs.end(), 0U);
  std::sort(runs.begin(), runs.end(),
            [&column](std::uint32_t a, std::uint32_t b) { return column[a] < column[b]; });
  return runs;
}

std::size_t differentValues(const std::vector<double>& column, const Numbers& ascending)
{
  std::size_t different = column.empty() ? 0 : 1;
  for (std::size_t i = 1; i < ascending.size(); ++i)
    different += column[ascending[i]] != column[ascending[i - 1]] ? 1 : 0;
  return different;
}

/// A base sample of k parameters has at most 2 k + 2 runs and two values of each parameter.
bool isMostlyDifferent(const std::vector<double>& column, const Numbers& ascending,
                       std::size_t varying)
{
  return differentValues(column, ascending) * (varying + 2) >= column.size();
}

void link(const std::vector<double>& column, const Numbers& ascending, UnitedSets& sets)
{
  for (std::size_t i = 1; i < ascending.size(); ++i)
    if (column[ascending[i]] == column[ascending[i - 1]])
      sets.unite(ascending[i], ascending[i - 1]);
}

Numbers numbered(UnitedSets& sets, std::size_t runs, Numbers& sizes)
{
  constexpr std::uint32_t unseen = ~std::uint32_t{0};
  Numbers numberOf(runs, unseen);
  Numbers groups(runs);
  for (std::uint32_t run = 0; run < runs; ++run)
  {
    std::uint32_t& number = numberOf[sets.of(run)];
    if (number == unseen)
    {
      number = static_cast<std::uint32_t>(sizes.size());
      sizes.push_back(0);
    }
    groups[run] = number;
    ++sizes[number];
  }
  return groups;
}

/// Whether so large groups hardly come by chance.
bool tellOfADesign(const Numbers& sizes, std::size_t runs)
{
  constexpr std::uint32_t fewest = 3;
  std::size_t linked = 0;
  for (const std::uint32_t size : sizes)
  {
    if (size > runs / 4)
      return false;
    linked += size >= fewest ? size : 0;
  }
  return linked > runs / 2;
}

bool hasMissing(const std::vector<double>& column)
{
  return std::any_of(column.begin(), column.end(), [](double value) { return std::isnan(value); });
}
} // namespace

std::optional<Numbers> linkedRuns(const ParameterColumns& columns)
{
  const std::size_t runs = runsIn(columns);
  if (std::any_of(columns.begin(), columns.end(), hasMissing))
    return std::nullopt;
  const auto varies = [](const std::vector<double>& column)
  { return std::any_of(column.begin(), column.end(), [&](double v) { return v != column[0]; }); };
  const auto varying =
      static_cast<std::size_t>(std::count_if(columns.begin(), columns.end(), varies));
  if (varying < 2)
    return std::nullopt;
  std::vector<Numbers> ascending;
  for (const std::vector<double>& column : columns)
  {
    ascending.push_back(ascendingRuns(column));
    if (varies(column) && !isMostlyDifferent(column, ascending.back(), varying))
      return std::nullopt;
  }
  // What only one parameter tells may be a parameter of few values.
  std::optional<Numbers> groups;
  for (std::size_t without = 0; without <= columns.size(); ++without)
  {
    UnitedSets sets(runs);
    for (std::size_t k = 0; k < columns.size(); ++k)
      if (k != without && varies(columns[k]))
        link(columns[k], ascending[k], sets);
    Numbers sizes;
    groups = numbered(sets, runs, sizes);
    if (!tellOfADesign(sizes, runs))
      return std::nullopt;
  }
  return groups;
}
} // namespace Talmesh::stats
