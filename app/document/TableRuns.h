#ifndef TableRuns_h
#define TableRuns_h

#include "app/document/SelectionWords.h"
#include "app/runs/RunFilter.h"
#include "app/runs/RunTable.h"

#include <vtkDoubleArray.h>
#include <vtkType.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// The whole runs of a container's table, and which of them are selected. A partial last run does
/// not count. Runs of a table of parameters without their numbers are counted from 0.
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
  /// Parameters, the column of the runs' numbers and what changes in no run.
  bool isOfWholeRun(int column) const override;
  std::optional<double> numberOf(int column, const std::string& text) const override;
  std::vector<std::string> textsOf(int column) const override;
  RunCourse course(std::size_t run, int column, int over) const override;

  /// The name by which `column` finds a column.
  std::string nameOf(int column) const;
  /// The columns of parameters that differ between runs, as the container's settings list them,
  /// then of what changes in no run.
  std::vector<int> parameters() const;
  /// The columns of all that changes during a run: neither time nor numbers of runs, nor marks.
  std::vector<int> items() const;
  std::size_t pointsPerRun() const { return points; }

  /// The runs of which any row is selected.
  std::vector<bool> selected() const;
  /// The condition that only these runs meet: `all`, `none`, or their numbers, those that follow
  /// each other by the first and last one: `0 <= run <= 99 or runs(103, 105)`.
  std::string words(const std::vector<bool>& these) const;
  /// That of a single run: `runs(3)`.
  std::string wordsOf(std::size_t run) const;
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

  void countRuns();
  bool numbersAreRuler() const;
  bool isConstantInRuns(int column) const;
  std::vector<int> changing(bool never) const;

  PlotContainer& container;
  std::vector<Run> runs;
  std::size_t points = 0;
  vtkDoubleArray* times = nullptr;
  /// In place of times that the table does not have: 0, 1, 2, ...
  std::vector<double> positions;
};

/// The columns of the table of runs: parameters with their values, then each of these features of
/// each item.
std::vector<RunColumn> columnsOfRuns(const TableRuns& runs, const std::vector<int>& parameters,
                                     const std::vector<int>& items,
                                     const std::vector<RunFeature>& features);
/// All parameters, and the leading features of all items. Runs of one point have no more than the
/// final value.
std::vector<RunColumn> allColumnsOfRuns(const TableRuns& runs);

} // namespace Talmesh::app

#endif
