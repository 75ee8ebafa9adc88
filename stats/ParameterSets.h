#ifndef ParameterSets_h
#define ParameterSets_h

#include "stats/ParameterComparison.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// Runs with equal parameters.
namespace Talmesh::stats
{
/// Most runs that are compared: four times the square of their number fits into 64 bits.
constexpr std::size_t mostRuns = std::size_t{1} << 30U;

/// Runs of one column; 0 without parameters.
/// @throws std::invalid_argument for columns of different lengths, std::length_error for more than
///   `mostRuns`
std::size_t runsIn(const ParameterColumns& columns);

/// The runs as sets of equal values in all parameters, numbered in the order of their first runs.
struct ParameterSets
{
  std::vector<std::uint32_t> setOfRun;
  std::vector<std::uint32_t> runsOfSet;

  std::size_t sets() const { return runsOfSet.size(); }
  /// Some set has several runs.
  bool replicated() const { return sets() < setOfRun.size(); }
  /// All sets are as large.
  bool balanced() const;
};

/// Equal is what compares equal, so 0 and -0 are; a missing value equals another one, but no
/// number. O(parameters N log N). @throws as runsIn() does
ParameterSets parameterSets(const ParameterColumns& columns);
} // namespace Talmesh::stats

#endif
