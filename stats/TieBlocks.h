#ifndef TieBlocks_h
#define TieBlocks_h

#include <cstdint>
#include <vector>

/// Two groups of runs over the distinct values of one parameter: all that tests by ranks need.
namespace Talmesh::stats
{
/// The runs that share one value.
struct TieBlock
{
  std::uint64_t selected = 0;
  std::uint64_t others = 0;
};

/// In ascending order of the value; no block is without runs.
using TieBlocks = std::vector<TieBlock>;

struct GroupSizes
{
  std::uint64_t selected = 0;
  std::uint64_t others = 0;

  std::uint64_t runs() const { return selected + others; }
  bool bothPresent() const { return selected > 0 && others > 0; }
};

/// Most runs in a group: twice the product of two such numbers still fits into 64 bits.
constexpr std::uint64_t largestGroup = std::uint64_t{1} << 31U;

/// Blocks of two samples in any order, in O(N log N) time. 0 and -0 are one value; infinities are
/// values.
/// @throws std::invalid_argument for NaN
TieBlocks tieBlocks(std::vector<double> selected, std::vector<double> others);

/// @throws std::length_error for a group of more than `largestGroup` runs
GroupSizes groupSizes(const TieBlocks& blocks);
} // namespace Talmesh::stats

#endif
