#ifndef RankStatistic_h
#define RankStatistic_h

#include "stats/ExchangeUnits.h"
#include "stats/TieBlocks.h"

#include <cstdint>
#include <vector>

namespace Talmesh::stats
{
/// The cells of a study in the ascending order of one parameter, sorted once and evaluated for
/// selection after selection. Cells whose runs have no value are left out.
class RankedCells
{
public:
  RankedCells() = default;
  /// @param column a value per run, the same in all runs of a cell
  RankedCells(const ExchangeUnits& units, const std::vector<double>& column);

  /// Runs with equal values, told apart by how many runs of each cell are selected. O(cells).
  TieBlocks blocks(const std::vector<std::uint32_t>& selectedOfCell) const;

  /// One pass over the cells, in whole numbers but for chi-squared; 0 without runs in one of the
  /// groups.
  double statistic(ComparedBy comparedBy, const std::vector<std::uint32_t>& selectedOfCell) const;

  std::size_t values() const { return ends.size(); }
  /// Ascending, each once.
  const std::vector<double>& distinct() const { return distinctValues; }

private:
  std::uint64_t selectedRuns(const std::vector<std::uint32_t>& selectedOfCell) const;
  template <class Visit>
  void visitBlocks(const std::vector<std::uint32_t>& selectedOfCell, Visit visit) const;

  std::vector<std::uint32_t> cells;
  std::vector<double> distinctValues;
  /// Behind the last cell of each block.
  std::vector<std::uint32_t> ends;
  /// Runs up to the end of each block.
  std::vector<std::uint64_t> runsBelow;
};
} // namespace Talmesh::stats

#endif
