#ifndef RankStatistic_h
#define RankStatistic_h

#include "stats/ExchangeUnits.h"
#include "stats/ParameterComparison.h"
#include "stats/TieBlocks.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Talmesh::stats
{
/// How many runs of each cell are in which group.
struct CellGroups
{
  CellGroups() = default;
  /// @param compared empty where no run is left out
  CellGroups(std::vector<std::uint32_t> selectedOfCell, std::vector<std::uint32_t> compared = {})
      : selected(std::move(selectedOfCell))
      , inEither(std::move(compared))
  {
  }

  std::vector<std::uint32_t> selected;
  /// Selected runs and others; empty where that is all runs of each cell.
  std::vector<std::uint32_t> inEither;
};

/// The cells of a study in the ascending order of one parameter, sorted once and evaluated for
/// selection after selection. Cells whose runs have no value are left out.
class RankedCells
{
public:
  RankedCells() = default;
  /// @param column a value per run, the same in all runs of a cell
  /// @param isOrdered whether the values are more than names
  RankedCells(const ExchangeUnits& units, const std::vector<double>& column, bool isOrdered = true);

  /// Runs with equal values, told apart by the groups. O(cells).
  TieBlocks blocks(const CellGroups& groups) const;
  /// The values of these blocks: ascending, each once.
  std::vector<double> valuesOfBlocks(const CellGroups& groups) const;

  /// One pass over the cells, in whole numbers but for chi-squared; 0 without runs in one of the
  /// groups. Of names without an order Cramer's V stands in for a statistic that needs one, which
  /// is from 0 to 1 like these.
  double statistic(ComparedBy comparedBy, const CellGroups& groups) const;

private:
  std::uint64_t sumOver(const std::vector<std::uint32_t>& runsOfCell) const;
  template <class Visit>
  void visitBlocks(const CellGroups& groups, Visit visit) const;

  bool isOrdered = true;
  std::vector<std::uint32_t> cells;
  std::vector<double> distinctValues;
  /// Behind the last cell of each block.
  std::vector<std::uint32_t> ends;
  /// Runs up to the end of each block.
  std::vector<std::uint64_t> runsBelow;
};

/// Adds the test of independent runs to a row: p, its logarithm, and the method.
void testIndependentRuns(ComparedBy comparedBy, const TieBlocks& blocks, ParameterComparison& row);
} // namespace Talmesh::stats

#endif
