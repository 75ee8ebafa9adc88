#include "app/document/FeatureColumns.h"
#include "app/document/PlotChoice.h"
#include "app/import/ColumnRoles.h"
#include "app/import/TranslatedText.h"
#include "plot/PlotContainer.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <algorithm>
#include <utility>

/// Columns by their names.
namespace Talmesh::app
{

namespace
{

constexpr int mostNamesInAMessage = 20;

std::string columnLabel(const PlotContainer& container, int column)
{
  return shownName(plot::columnName(container.getTable(), column));
}

/// Columns that mark what is selected are nobody's to name.
std::string allNames(const PlotContainer& container)
{
  vtkTable* table = container.getTable();
  std::string names;
  int named = 0;
  for (int column = 0; column < static_cast<int>(table->GetNumberOfColumns()); ++column)
  {
    if (plot::isSelectionMark(plot::columnName(table, column)))
      continue;
    if (named == mostNamesInAMessage)
      return names + ", ...";
    names += (named > 0 ? ", " : "") + columnLabel(container, column);
    ++named;
  }
  return names;
}

/// The columns that play the part that the name tells: an import gives the columns of time and runs
/// names that the plots know.
std::vector<int> columnsOfRole(vtkTable* table, const std::string& name)
{
  std::vector<int> columns;
  for (int column = 0; column < static_cast<int>(table->GetNumberOfColumns()); ++column)
  {
    const ColumnHeader header = readHeader(plot::columnName(table, column));
    const bool sameRole = (isTimeName(name) && isTimeName(header.name)) ||
                          (isRunName(name) && isRunName(header.name));
    if (header.typed && header.kind == TimeOrValue && sameRole)
      columns.push_back(column);
  }
  return columns;
}

} // namespace

QStringList choosableColumns(const PlotContainer& container)
{
  QStringList columns = container.getLabels();
  while (!columns.isEmpty() &&
         plot::isSelectionMark(plot::columnName(container.getTable(), columns.size() - 1)))
    columns.removeLast();
  return columns;
}

Result<int> findColumn(const PlotContainer& container, const std::string& name)
{
  vtkTable* table = container.getTable();
  const int whole = plot::columnIndex(table, name);
  if (whole >= 0)
    return whole;
  std::vector<int> matches;
  for (int column = 0; column < static_cast<int>(table->GetNumberOfColumns()); ++column)
    if (columnLabel(container, column) == name)
      matches.push_back(column);
  const std::string unmarked(withoutCommentMark(name));
  if (matches.empty() && unmarked != name)
    return findColumn(container, unmarked);
  if (matches.empty())
    matches = columnsOfRole(table, name);
  if (matches.size() == 1)
    return matches.front();
  if (matches.empty())
    return Result<int>::failed(
        withValues(translated("PlotChoice", "no such column: %1; the columns are %2"),
                   {name, allNames(container)}));
  return Result<int>::failed(
      withValues(translated("PlotChoice", "more than one column is named %1: %2 and %3"),
                 {name, plot::columnName(table, matches[0]), plot::columnName(table, matches[1])}));
}

namespace
{

/// Joins names again where a comma stood inside a column's name: the longest name that exists wins.
/// @return the column, and how many of the names from `first` on are its name
std::pair<Result<int>, std::size_t>
findJoined(const PlotContainer& container, const std::vector<std::string>& names, std::size_t first)
{
  for (std::size_t count = names.size() - first; count > 1; --count)
  {
    std::string joined = names[first];
    for (std::size_t i = first + 1; i < first + count; ++i)
      joined += ',' + names[i];
    const Result<int> found = findShownColumn(container, joined);
    if (found.hasValue())
      return {found, count};
  }
  return {findShownColumn(container, names[first]), 1};
}

} // namespace

std::string chooseByName(const PlotContainer& container, const PlotWishes& wishes,
                         PlotChoice& choice)
{
  if (wishes.style)
    choice.style = *wishes.style;
  std::string error;
  const auto choose = [&](const std::string& name, int& column)
  {
    if (name.empty() || !error.empty())
      return;
    const Result<int> found = findShownColumn(container, name);
    error = found.error();
    if (found.hasValue())
      column = found.value();
  };
  choose(wishes.x, choice.x);
  choose(wishes.z, choice.z);
  if (!wishes.y.empty())
    choice.y.clear();
  for (std::size_t i = 0; i < wishes.y.size() && error.empty();)
  {
    const auto [found, count] = findJoined(container, wishes.y, i);
    error = found.error();
    if (found.hasValue())
      choice.y.push_back(found.value());
    i += count;
  }
  return error;
}

} // namespace Talmesh::app
