#include "app/document/FeatureColumns.h"

#include "app/document/PlotChoice.h"
#include "app/import/ColumnRoles.h"
#include "external/ColumnNames.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunSelection.h"
#include "plot/RunSplit.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// No table has as many columns.
constexpr int firstFeature = 1 << 20;
constexpr int featuresOfItem = 16;

bool isAmong(const std::vector<int>& columns, int column)
{
  return std::find(columns.begin(), columns.end(), column) != columns.end();
}

bool isKind(const PlotContainer& container, int column, int kind)
{
  const auto& items = container.getColumnItems();
  const auto place = static_cast<std::size_t>(column);
  return place < items.size() && items[place].first == kind;
}

/// Other columns than those of the items have no kind.
bool isTime(const PlotContainer& container, int column)
{
  const bool hasKind = static_cast<std::size_t>(column) < container.getColumnItems().size();
  return hasKind ? isKind(container, column, TimeOrValue)
                 : column == plot::timeColumnOf(stateOf(container));
}

bool hasCourses(const PlotContainer& container)
{
  return container.getMetaData()->getStride() > 1 && !plot::wholeRuns(stateOf(container)).empty();
}

} // namespace

int featureColumn(int item, RunFeature feature)
{
  return firstFeature + item * featuresOfItem + static_cast<int>(feature);
}

bool isFeature(int column)
{
  return column >= firstFeature;
}

int itemOf(int column)
{
  return isFeature(column) ? (column - firstFeature) / featuresOfItem : column;
}

std::optional<RunFeature> featureIn(int column)
{
  if (!isFeature(column))
    return {};
  return static_cast<RunFeature>((column - firstFeature) % featuresOfItem);
}

ColumnRole roleOf(const PlotContainer& container, int column)
{
  if (isFeature(column))
    return ColumnRole::Feature;
  const std::string name = plot::columnName(container.getTable(), column);
  if (name == selectionPairToString(runIndexItem()))
    return ColumnRole::RunNumber;
  if (isAmong(container.getMetaData()->parameterColumns, column) ||
      isKind(container, column, Parameter))
    return ColumnRole::Parameter;
  const bool other = isTime(container, column) || plot::isSelectionMark(name);
  return other || !plot::doubleColumn(container.getTable(), column) ? ColumnRole::Other
                                                                    : ColumnRole::Item;
}

bool isFeatureOf(const PlotContainer& container, int column)
{
  return isFeature(column) && hasCourses(container) &&
         roleOf(container, itemOf(column)) == ColumnRole::Item;
}

std::vector<int> featureColumns(const PlotContainer& container)
{
  std::vector<int> columns;
  const int all =
      hasCourses(container) ? static_cast<int>(container.getTable()->GetNumberOfColumns()) : 0;
  int items = 0;
  for (int item = 0; item < all && items < mostItemsWithFeatures; ++item)
  {
    if (roleOf(container, item) != ColumnRole::Item)
      continue;
    ++items;
    for (const RunFeature feature : runFeatures())
      columns.push_back(featureColumn(item, feature));
  }
  return columns;
}

std::string columnTitle(const PlotContainer& container, int column)
{
  const std::string name = shownName(plot::columnName(container.getTable(), itemOf(column)));
  const std::optional<RunFeature> feature = featureIn(column);
  return feature ? featureWords(*feature, name) : name;
}

Result<int> findShownColumn(const PlotContainer& container, const std::string& name)
{
  const Result<int> found = findColumn(container, name);
  const std::optional<NamedFeature> named = readFeature(name);
  if (found.hasValue() || !named)
    return found;
  const Result<int> item = findColumn(container, named->item);
  if (!item.hasValue())
    return item;
  const int column = featureColumn(item.value(), named->feature);
  return isFeatureOf(container, column) ? Result<int>(column) : found;
}

} // namespace Talmesh::app
