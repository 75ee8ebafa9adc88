#ifndef RunGrouping_h
#define RunGrouping_h

#include "app/import/LineNumbers.h"
#include "app/import/Result.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What is known of the order of a table's rows. Pointers may be null and stay the caller's.
struct RunColumns
{
  std::size_t rows = 0;
  /// The time of each row; null without a time column.
  const std::vector<double>* time = nullptr;
  /// The number of the run of each row, into `names`; null without a run column.
  const std::vector<int>* run = nullptr;
  /// What the file calls each run, in order of first appearance.
  const std::vector<std::string>* names = nullptr;
  /// The line of each row in the file.
  const LineNumbers* lines = nullptr;
};

/// Rows sorted into runs.
struct RunGrouping
{
  /// The row that each place of the stacked table takes: run after run, inside a run in the order
  /// of the file or, where that falls back, of time. Empty when the rows stand so already.
  std::vector<std::size_t> order;
  /// The run, into `RunColumns::names`, that stands at each place; empty without a run column.
  std::vector<int> runs;
  std::size_t numberOfRuns = 0;
  /// The place at which each run starts, and behind the last one the number of all.
  std::vector<std::size_t> starts;
  /// The points of each run; of runs of different lengths, of most of them.
  std::size_t pointsPerRun = 0;
  /// Which run is the first that differs in its length from most, as a message; empty when all have
  /// the same.
  std::string unequal;
  /// The numbers of the runs: the names as numbers when all are different whole numbers, which
  /// also puts the runs into ascending order; else 0, 1, 2, ...
  std::vector<double> indices;
};

/// Finds the runs: by the run column, whose rows need not be contiguous, else by time: a run
/// starts where time falls back; where it falls from each row to the next, all are one run,
/// backwards. Without either all rows are one run. The rows of a named run whose
/// time falls back are sorted by time when no two of them share one; otherwise two runs of the same
/// name would be taken for one, which is an error. A run may have another length than others.
/// Messages count runs without a name from 0, as their indices do.
Result<RunGrouping> groupRuns(const RunColumns& columns);

} // namespace Talmesh::app

#endif
