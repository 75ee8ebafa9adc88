#ifndef FeatureColumns_h
#define FeatureColumns_h

#include "app/import/Result.h"
#include "app/runs/RunFeatures.h"

#include <optional>
#include <string>
#include <vector>

class PlotContainer;

/// Columns as a choice names them: those of a container's table by their places, and behind all
/// places there can be, one for each feature of each of its items.
namespace Talmesh::app
{

/// @param item the column of the item, from 0
int featureColumn(int item, RunFeature feature);
bool isFeature(int column);
/// The column of the table that it is, or whose feature it is.
int itemOf(int column);
/// What there is of that: nothing for a column of the table.
std::optional<RunFeature> featureIn(int column);

/// Whether it is a feature that the runs of the container have.
bool isFeatureOf(const PlotContainer& container, int column);

/// Features of more items would make lists too long to choose from.
constexpr int mostItemsWithFeatures = 50;

/// The features of the first items of runs over time; none for other tables.
std::vector<int> featureColumns(const PlotContainer& container);

/// What the window calls a column.
std::string columnTitle(const PlotContainer& container, int column);

/// As `findColumn`, also of features by their words.
Result<int> findShownColumn(const PlotContainer& container, const std::string& name);

/// What a column holds.
enum class ColumnRole
{
  /// Values that change during a run.
  Item,
  /// One value for a run.
  Parameter,
  Feature,
  /// The number of the run.
  RunNumber,
  /// Times, and marks of what is selected.
  Other
};

ColumnRole roleOf(const PlotContainer& container, int column);

} // namespace Talmesh::app

#endif
