#ifndef TableRuns_h
#define TableRuns_h

#include "app/runs/RunFilter.h"

#include <vtkDoubleArray.h>
#include <vtkType.h>

#include <cstddef>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// What becomes of the runs selected so far when others are selected.
enum class RunCombination
{
  Replace,
  Add,
  Subtract,
  Toggle
};

/// `before` and `hit` say for each run whether it is selected; both have the same length.
std::vector<bool> combineRuns(std::vector<bool> before, const std::vector<bool>& hit,
                              RunCombination how);

/// The whole runs of a container's table, and which of them are selected. A partial last run does
/// not count.
///
/// For as long as the container has the table.
class TableRuns : public FilteredRuns
{
public:
  /// @param container not owned
  explicit TableRuns(PlotContainer& container);

  std::size_t numberOfRuns() const override { return runs.size(); }
  double runNumber(std::size_t run) const override;
  /// As `findColumn`; a column of anything but doubles is refused.
  Result<int> column(const std::string& name) const override;
  /// Parameters and the column of the runs' numbers.
  bool isOfWholeRun(int column) const override;
  RunCourse course(std::size_t run, int column, int over) const override;

  /// The runs of which any row is selected.
  std::vector<bool> selected() const;
  /// The condition that only these runs meet: `runs(3, 5, 8)`; empty for none.
  std::string words(const std::vector<bool>& these) const;
  /// Whether all selected rows are those of whole runs, every one of them.
  bool areSelectedWhole() const;
  /// Selects all rows of these runs, so that every chart and table counts the same runs.
  void select(const std::vector<bool>& wanted);

private:
  struct Run
  {
    int number;
    vtkIdType firstRow;
  };

  PlotContainer& container;
  std::vector<Run> runs;
  std::size_t points = 0;
  vtkDoubleArray* times = nullptr;
  /// In place of times that the table does not have: 0, 1, 2, ...
  std::vector<double> positions;
};

/// What a step of a history did, with the words to do it again; after a line end without them, for
/// menus.
/// @param hit the runs that met the words
std::string stepText(RunCombination how, const std::vector<bool>& hit, const std::string& words);

/// Selects the runs that meet any of the conditions in words.
/// @return which of them is wrong and where, in one line; nothing is selected then. Empty on
/// success
std::string selectWhere(PlotContainer& container, const std::vector<std::string>& conditions);

/// What is wrong with words, and at which of their characters, in one line.
std::string describe(const FilterFault& fault, const std::string& words);

} // namespace Talmesh::app

#endif
