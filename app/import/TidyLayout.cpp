#include "app/import/LayoutFacts.h"
#include "app/import/LayoutUnits.h"
#include "app/import/LongTable.h"
#include "app/import/RoleChoice.h"
#include "app/import/RoleNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <utility>
#include <vector>

/// A row per value: run, time, which item, its value.
namespace Talmesh::app
{

namespace
{

struct Found
{
  int item = -1;
  int value = -1;
  bool itemByName = false;
  bool valueByName = false;

  bool isWhole() const { return item >= 0 && value >= 0; }
};

int onlyOne(const std::vector<std::size_t>& columns)
{
  return columns.size() == 1 ? static_cast<int>(columns.front()) : -1;
}

bool hasLevels(const TableText& text, std::size_t column)
{
  const ColumnValues& values = text.columns[column];
  return values.levels.names().size() > 1 && values.levels.names().size() < text.rows;
}

/// Texts that are neither conditions nor parameters, as far as the user has said.
std::vector<std::size_t> openTexts(const TableText& text)
{
  std::vector<std::size_t> columns = textColumns(text);
  columns.erase(std::remove_if(columns.begin(), columns.end(),
                               [&text](std::size_t column)
                               { return text.uses[column] != ColumnUse::Open; }),
                columns.end());
  return columns;
}

/// Items may be numbered: a column called as they are tells rows of the same time apart then.
int numberedItem(const TableText& text)
{
  if (!pointsRepeat(text))
    return -1;
  for (const std::size_t column : numberColumns(text))
    if (isItemName(text.roles.headers[column].name) && hasLevels(text, column) &&
        text.columns[column].firstFraction.line == 0 &&
        !pointsRepeat(text, static_cast<int>(column)))
      return static_cast<int>(column);
  return -1;
}

Found find(const TableText& text)
{
  Found found;
  found.item = text.roles.itemColumn;
  found.itemByName = found.item >= 0;
  const std::vector<std::size_t> items = openTexts(text);
  for (const std::size_t column : items)
    if (!found.itemByName && isItemName(text.roles.headers[column].name) && hasLevels(text, column))
    {
      found.item = static_cast<int>(column);
      found.itemByName = true;
    }
  if (!found.itemByName)
  {
    found.item = numberedItem(text);
    found.itemByName = found.item >= 0;
  }
  if (found.item < 0 && items.size() == 1 && hasLevels(text, items.front()))
    found.item = static_cast<int>(items.front());

  found.value = text.roles.valueColumn;
  found.valueByName = found.value >= 0;
  std::vector<std::size_t> numbers;
  for (const std::size_t column : numberColumns(text))
  {
    const std::string& name = text.roles.headers[column].name;
    if (static_cast<int>(column) == found.item || isErrorName(name))
      continue;
    numbers.push_back(column);
    if (!found.valueByName && isValueName(name))
    {
      found.value = static_cast<int>(column);
      found.valueByName = true;
    }
  }
  if (found.value < 0)
    found.value = onlyOne(numbers);
  return found;
}

LayoutFit recognise(const TableText& text, const ImportRequest& request)
{
  const Found found = find(text);
  if (!found.isWhole())
    return {};
  const std::string reason = withValues(
      translated("TidyLayout", "%1 says which item a row is of, and %2 has its value"),
      {quotedForMessage(text.roles.headers[static_cast<std::size_t>(found.item)].name),
       quotedForMessage(text.roles.headers[static_cast<std::size_t>(found.value)].name)});
  if (!request.item.empty() || !request.value.empty())
    return {0.95, reason};
  // Tables of that format name conditions and replicates their own way.
  if (columnCalled(text, "simulationConditionId") >= 0)
    return {0.5, reason};
  if (text.roles.timeColumn < 0)
    return {found.itemByName && found.valueByName ? 0.55 : 0.0, reason};
  if (found.itemByName && found.valueByName)
    return {0.9, reason};
  const bool repeat = pointsRepeat(text);
  // Where every run has one row at each time, a text says something of it.
  if (!found.itemByName && !repeat && namesRuns(text))
    return {0.0, reason};
  if (repeat)
    return {found.itemByName || found.valueByName ? 0.75 : 0.45, reason};
  return {found.itemByName || found.valueByName ? 0.6 : 0.0, reason};
}

bool isInAllRows(const TextLevels& levels)
{
  const std::vector<int>& rows = levels.rows();
  return std::find(rows.begin(), rows.end(), TextLevels::none) == rows.end();
}

/// Those of the columns in which two rows of one item at one time have different texts. Others say
/// something of an item, as its unit, or of a single value, as a remark.
std::vector<int> tellingApart(const TableText& text, std::size_t item,
                              const std::vector<std::size_t>& columns)
{
  const auto levelIn = [&text](std::size_t column, std::size_t row)
  {
    const std::vector<int>& levels = text.columns[column].levels.rows();
    return row < levels.size() ? levels[row] : TextLevels::none;
  };
  const int time = text.roles.timeColumn;
  std::map<std::pair<int, double>, std::size_t> firstRows;
  std::set<int> found;
  for (std::size_t row = 0; row < text.rows && found.size() < columns.size(); ++row)
  {
    const double at = time < 0 ? 0.0 : text.columns[static_cast<std::size_t>(time)].values[row];
    if (std::isnan(at))
      continue;
    const std::size_t first =
        firstRows.emplace(std::pair(levelIn(item, row), at), row).first->second;
    for (const std::size_t column : columns)
      if (levelIn(column, first) != levelIn(column, row))
        found.insert(static_cast<int>(column));
  }
  return {found.begin(), found.end()};
}

/// Texts that are no items tell runs apart as well as names of runs do.
std::string nameRunsByConditions(TableText& text, std::size_t item)
{
  std::string error = nameRuns(text);
  if (!error.empty() || !text.runNames.empty())
    return error;
  std::vector<std::size_t> texts;
  for (const std::size_t column : textColumns(text))
    if (column != item && hasLevels(text, column) && !text.columns[column].hasTooManyTexts &&
        isInAllRows(text.columns[column].levels))
      texts.push_back(column);
  std::vector<int> columns = tellingApart(text, item, texts);
  // They stay categories.
  return columns.empty() ? std::string() : nameRunsBy(text, std::move(columns));
}

Result<TableText> arrange(TableText text, const LayoutTask& task)
{
  using Arranged = Result<TableText>;
  const Found found = find(text);
  if (!found.isWhole())
    return Arranged::failed(
        found.item < 0
            ? translated("TidyLayout", "no column says which item a row is of; name it by --item")
            : translated("TidyLayout", "no column is clear to hold the values; name it by "
                                       "--value"));
  LongColumns columns;
  columns.item = static_cast<std::size_t>(found.item);
  columns.value = static_cast<std::size_t>(found.value);
  text.roles.itemColumn = found.item;
  std::string error = mistypedCell(text, columns.value);
  if (error.empty() && text.columns[columns.value].isText())
    error = withValues(translated("TidyLayout", "the column %1 holds no numbers"),
                       {quotedForMessage(text.roles.headers[columns.value].name)});
  if (error.empty() && text.roles.timeColumn >= 0)
    error = mistypedCell(text, static_cast<std::size_t>(text.roles.timeColumn));
  if (error.empty())
    error = nameRunsByConditions(text, columns.item);
  return error.empty() ? pivotLong(std::move(text), columns, task.progress, task.report)
                       : Arranged::failed(error);
}

} // namespace

const Layout tidyLayout = {"tidy", recognise, arrange};

} // namespace Talmesh::app
