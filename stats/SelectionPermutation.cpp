#include "stats/SelectionPermutation.h"

#include "stats/ParallelParts.h"
#include "stats/PortableRandom.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <numeric>

namespace Talmesh::stats
{
namespace
{
using Numbers = std::vector<std::uint32_t>;

/// Permutations that share a sequence of random numbers. Part of what a seed means.
constexpr std::size_t permutationsPerStream = 32;

/// Parameters by descending statistics; of equal ones the first comes first.
std::vector<std::size_t> descendingOrder(const std::vector<double>& statistics)
{
  std::vector<std::size_t> order(statistics.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&statistics](std::size_t a, std::size_t b)
                   { return statistics[a] > statistics[b]; });
  return order;
}

class Permuter
{
public:
  Permuter(const ExchangeUnits& exchanged, const std::vector<RankedCells>& ranked,
           const CellGroups& cellGroups, const PermutationPlan& permutationPlan)
      : units(exchanged)
      , parameters(ranked)
      , groups(cellGroups)
      , plan(permutationPlan)
  {
    for (const RankedCells& parameter : parameters)
      observed.push_back(parameter.statistic(plan.comparedBy, groups));
    order = descendingOrder(observed);
    counts.reached.assign(parameters.size(), 0);
    counts.reachedByLargest.assign(parameters.size(), 0);
  }

  PermutationCounts run()
  {
    const std::size_t streams = plan.permutations / permutationsPerStream +
                                (plan.permutations % permutationsPerStream != 0 ? 1 : 0);
    inParallelParts(streams, streamsPerPart(),
                    [this](std::size_t first, std::size_t last)
                    {
                      for (std::size_t stream = first; stream < last && !cancelled; ++stream)
                        permute(stream);
                    });
    if (cancelled)
      return {};
    counts.permutations = plan.permutations;
    return counts;
  }

private:
  /// So many that starting a thread for the rest is worth while.
  std::size_t streamsPerPart() const
  {
    constexpr std::size_t worthWhile = 2'000'000;
    return worthWhile /
               (permutationsPerStream * (parameters.size() + 1) * (groups.selected.size() + 1)) +
           1;
  }

  void permute(std::size_t stream)
  {
    const std::size_t permutations =
        std::min(permutationsPerStream, plan.permutations - stream * permutationsPerStream);
    PortableRandom random(plan.seed, stream);
    CellGroups permuted(groups);
    PermutationCounts part;
    part.reached.assign(parameters.size(), 0);
    part.reachedByLargest.assign(parameters.size(), 0);
    for (std::size_t permutation = 0; permutation < permutations; ++permutation)
    {
      exchange(random, permuted);
      compare(permuted, part);
    }
    collect(part, permutations);
  }

  /// Gives every unit the groups of a random one of its class.
  void exchange(PortableRandom& random, CellGroups& permuted) const
  {
    for (const Numbers& members : units.classes)
    {
      Numbers sources(members);
      random.shuffle(sources);
      for (std::size_t i = 0; i < members.size(); ++i)
      {
        copyUnit(groups.selected, sources[i], permuted.selected, members[i]);
        if (!groups.inEither.empty())
          copyUnit(groups.inEither, sources[i], permuted.inEither, members[i]);
      }
    }
  }

  void copyUnit(const Numbers& from, std::uint32_t source, Numbers& to, std::uint32_t target) const
  {
    std::copy(from.begin() + units.firstCell[source], from.begin() + units.firstCell[source + 1],
              to.begin() + units.firstCell[target]);
  }

  void compare(const CellGroups& permuted, PermutationCounts& part) const
  {
    double largest = 0.0;
    for (auto parameter = order.rbegin(); parameter != order.rend(); ++parameter)
    {
      const double statistic = parameters[*parameter].statistic(plan.comparedBy, permuted);
      const double bound = observed[*parameter] * (1.0 - 1e-10);
      largest = std::max(largest, statistic);
      part.reached[*parameter] += statistic >= bound ? 1 : 0;
      part.reachedByLargest[*parameter] += largest >= bound ? 1 : 0;
    }
  }

  void collect(const PermutationCounts& part, std::size_t permutations)
  {
    const std::lock_guard<std::mutex> lock(access);
    for (std::size_t parameter = 0; parameter < parameters.size(); ++parameter)
    {
      counts.reached[parameter] += part.reached[parameter];
      counts.reachedByLargest[parameter] += part.reachedByLargest[parameter];
    }
    done += permutations;
    if (plan.progress && !cancelled &&
        !plan.progress(static_cast<double>(done) / static_cast<double>(plan.permutations)))
      cancelled = true;
  }

  const ExchangeUnits& units;
  const std::vector<RankedCells>& parameters;
  const CellGroups& groups;
  const PermutationPlan& plan;
  std::vector<double> observed;
  std::vector<std::size_t> order;
  PermutationCounts counts;
  std::size_t done = 0;
  std::atomic<bool> cancelled{false};
  std::mutex access;
};

double asP(std::uint64_t reached, std::size_t permutations)
{
  return (static_cast<double>(reached) + 1.0) / (static_cast<double>(permutations) + 1.0);
}
} // namespace

Numbers selectedOfCells(const ExchangeUnits& units, const std::vector<char>& selected)
{
  Numbers counts(units.runsOfCell.size(), 0);
  for (std::size_t run = 0; run < units.cellOfRun.size(); ++run)
    counts[units.cellOfRun[run]] += selected[run] != 0 ? 1 : 0;
  return counts;
}

PermutationCounts permuteSelection(const ExchangeUnits& units,
                                   const std::vector<RankedCells>& parameters,
                                   const CellGroups& groups, const PermutationPlan& plan)
{
  return Permuter(units, parameters, groups, plan).run();
}

std::vector<double> permutationP(const PermutationCounts& counts)
{
  std::vector<double> p;
  for (const std::uint64_t reached : counts.reached)
    p.push_back(asP(reached, counts.permutations));
  return p;
}

std::vector<double> maxTAdjusted(const PermutationCounts& counts,
                                 const std::vector<double>& observed)
{
  std::vector<double> adjusted(counts.reachedByLargest.size());
  double largest = 0.0;
  for (const std::size_t parameter : descendingOrder(observed))
  {
    largest = std::max(largest, asP(counts.reachedByLargest[parameter], counts.permutations));
    adjusted[parameter] = largest;
  }
  return adjusted;
}
} // namespace Talmesh::stats
