#ifndef TieBlockSamples_h
#define TieBlockSamples_h

#include "stats/TieBlocks.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace Talmesh::stats
{
/// Block k has k^2 mod 7 selected runs and (3 k + 1) mod 11 others; the upper half of the blocks
/// gains `shift` selected runs each, the lower half as many others. For references in R:
/// pat <- function(K, s) { k <- 0:(K-1); a <- (k*k) %% 7 + ifelse(2*k >= K, s, 0);
///   b <- (3*k+1) %% 11 + ifelse(2*k < K, s, 0); list(rep(k, a), rep(k, b)) }
inline TieBlocks patternedBlocks(std::uint64_t count, std::uint64_t shift)
{
  TieBlocks blocks;
  for (std::uint64_t k = 0; k < count; ++k)
  {
    const bool upper = 2 * k >= count;
    const TieBlock block{k * k % 7 + (upper ? shift : 0), (3 * k + 1) % 11 + (upper ? 0 : shift)};
    if (block.selected + block.others > 0)
      blocks.push_back(block);
  }
  return blocks;
}

/// `below` selected runs, then `mixed` times one of the others and a selected one, then `above`
/// others, all of different values.
inline TieBlocks overlappingRuns(std::size_t below, std::size_t mixed, std::size_t above)
{
  TieBlocks blocks(below, TieBlock{1, 0});
  for (std::size_t i = 0; i < mixed; ++i)
    blocks.insert(blocks.end(), {TieBlock{0, 1}, TieBlock{1, 0}});
  blocks.insert(blocks.end(), above, TieBlock{0, 1});
  return blocks;
}

inline TieBlocks swappedGroups(TieBlocks blocks)
{
  for (TieBlock& block : blocks)
    block = {block.others, block.selected};
  return blocks;
}
} // namespace Talmesh::stats

#endif
