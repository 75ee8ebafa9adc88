#ifndef RunSummary_h
#define RunSummary_h

#include "app/document/PlotChoice.h"
#include "plot/SummaryTable.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>
#include <vtkWeakPointer.h>

#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// Whether the charts of a choice draw one point or line per run, and not one per row: on axes that
/// have one value for a run, which some styles always have.
bool drawsRuns(const PlotContainer& container, const PlotChoice& choice);

/// The columns of a choice as such charts show them: an item is shown by its features. Time and
/// what else has no value for a run is left out; -1 for none.
struct RunAxes
{
  int x = -1;
  int y = -1;
  int z = -1;
  /// The series of the XY plot, or the axes of others, in this order.
  std::vector<int> columns;
};
RunAxes axesOfRuns(const PlotContainer& container, const PlotChoice& choice);

/// What charts of runs draw of a container: a row per run, with the columns that were asked for so
/// far. Each is computed once, and again when its values have changed.
class RunSummary
{
public:
  /// Without a table where the choice draws rows.
  SummaryTable of(const PlotContainer& container, const PlotChoice& choice);

  /// Keeps the group of each run in a column of its own, which no axis shows, see
  /// `groupColumnName`.
  void setGroups(const std::vector<int>& groupOfRun);

  /// The columns, as choices name them, of the given names in the table.
  std::vector<int> columnsNamed(const std::vector<std::string>& names) const;

private:
  struct Column
  {
    int shown; ///< -1 for groups
    vtkWeakPointer<vtkDoubleArray> source;
    vtkMTimeType sourceTime;
  };

  int place(const PlotContainer& container, int shown);
  vtkSmartPointer<vtkDoubleArray> compute(const PlotContainer& container, int shown) const;
  void follow(const PlotContainer& container);

  vtkWeakPointer<vtkTable> summarised;
  vtkIdType runs = 0;
  int stride = 0;
  /// Never null while anything is summarised. Its columns are in the order of `columns`.
  vtkSmartPointer<vtkTable> table;
  std::vector<Column> columns;
};

} // namespace Talmesh::app

#endif
