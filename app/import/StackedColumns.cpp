#include "app/import/StackedColumns.h"

#include "app/import/ColumnRoles.h"
#include "external/ColumnNames.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

using Columns = std::vector<StackedColumn>;
using Role = StackedColumn::Role;

/// The role of the first column whose label is what `wanted` looks for; `otherwise` without one.
template <typename Predicate>
Role roleOfFirst(const Columns& columns, Predicate wanted, Role otherwise)
{
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [&](const StackedColumn& column)
                                  { return wanted(selectionPairToString(column.item)); });
  return found == columns.end() ? otherwise : found->role;
}

bool hasTime(const Columns& columns)
{
  return std::any_of(columns.begin(), columns.end(),
                     [](const StackedColumn& column) { return column.role == Role::Time; });
}

/// Whether selections and comparisons of runs find the time and the run index by parts of their
/// names. Without any such name they take those in front of the first parameter.
bool plotsFindTimeAndRuns(const Columns& columns)
{
  const bool timeFound =
      !hasTime(columns) || roleOfFirst(columns, labelsTime, Role::Time) == Role::Time;
  return timeFound && roleOfFirst(columns, labelsRunIndex, Role::RunIndex) == Role::RunIndex;
}

/// Whether the plots put the time on the x axis, or what is called a value.
bool plotsPutTimeOnX(const Columns& columns)
{
  std::vector<TypedConcentrationName> items;
  for (const StackedColumn& column : columns)
    items.push_back(column.item);
  const int x = timeItem(items);
  if (x < 0)
    return true;
  const StackedColumn& chosen = columns[static_cast<std::size_t>(x)];
  return chosen.role == Role::Time || chosen.item.second == valueItemName;
}

template <typename Place>
void sortBy(Columns& columns, Place place)
{
  std::stable_sort(columns.begin(), columns.end(),
                   [&](const StackedColumn& a, const StackedColumn& b)
                   { return place(a) < place(b); });
}

int placeWithItemsFirst(const StackedColumn& column)
{
  if (column.item.first == Parameter)
    return 4;
  if (column.role != Role::Item)
    return column.role == Role::RunIndex ? 3 : 2;
  // The first item is what is plotted at first.
  return column.varies() ? 0 : 1;
}

int placeWithTimeFirst(const StackedColumn& column)
{
  if (column.role != Role::Item)
    return column.role == Role::Time ? 0 : 1;
  return column.item.first == Parameter ? 2 : 3 + placeWithItemsFirst(column);
}

} // namespace

void arrangePlainColumns(std::vector<StackedColumn>& columns)
{
  sortBy(columns, placeWithItemsFirst);
  if (plotsFindTimeAndRuns(columns))
    return;
  sortBy(columns, placeWithTimeFirst);
  for (StackedColumn& column : columns)
    if (column.role == Role::Time)
      column.item.second = plottedTimeName(column.item.second);
}

void arrangeTypedColumns(std::vector<StackedColumn>& columns)
{
  const auto isPlainTime = [](const StackedColumn& column)
  { return column.role == Role::Time && !column.typed; };
  const auto time = std::find_if(columns.begin(), columns.end(), isPlainTime);
  // Only typed headers are kept as written.
  if (time != columns.end() && !plotsFindTimeAndRuns(columns))
    time->item.second = plottedTimeName(time->item.second);
  const bool found = time == columns.end() || plotsFindTimeAndRuns(columns);
  if (!found || (hasTime(columns) && !plotsPutTimeOnX(columns)))
    sortBy(columns, placeWithTimeFirst);
}

void makeLabelsUnique(std::vector<StackedColumn>& columns)
{
  std::vector<TypedConcentrationName*> items;
  for (const bool typed : {true, false})
    for (StackedColumn& column : columns)
      if (column.typed == typed)
        items.push_back(&column.item);
  makeLabelsUnique(items);
}

} // namespace Talmesh::app
