#ifndef RunSummary_h
#define RunSummary_h

#include "app/document/FeatureSearch.h"
#include "app/document/RunAxes.h"
#include "plot/SummaryTable.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>
#include <vtkWeakPointer.h>

#include <cstddef>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// What charts of runs draw of a container: a row per run, with the columns that were asked for so
/// far. Each is computed once, and again when its values have changed. Features that take long have
/// no values at first, where there is somebody to compute them in the background.
class RunSummary
{
public:
  RunSummary();

  /// Without a table where the choice draws rows.
  SummaryTable of(const PlotContainer& container, const PlotChoice& choice);

  /// Where features that take long get their values.
  FeatureSearch& search() { return features; }

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
    bool hasValues;
  };

  int place(const PlotContainer& container, int shown);
  std::string newName(const PlotContainer& container, int shown) const;
  FeatureTask taskFor(const PlotContainer& container) const;
  void put(std::size_t at, const std::vector<double>& values);
  void take(const FeatureSearch::Wishes& wishes, const FeatureSearch::Values& values);
  void follow(const PlotContainer& container);
  StackedRuns stacked() const;

  vtkWeakPointer<vtkTable> summarised;
  vtkIdType runs = 0;
  int stride = 0;
  /// Never null while anything is summarised. Its columns are in the order of `columns`.
  vtkSmartPointer<vtkTable> table;
  std::vector<Column> columns;
  FeatureSearch features;
  /// What the drawing under way lacks.
  FeatureSearch::Wishes missing;
};

} // namespace Talmesh::app

#endif
