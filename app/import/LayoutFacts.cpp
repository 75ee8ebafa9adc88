#include "app/import/LayoutFacts.h"

#include "app/import/AsciiText.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t mostRows = 10000;

bool isRunColumn(const TableText& text, int column)
{
  const auto has = [column](const std::vector<int>& columns)
  { return std::find(columns.begin(), columns.end(), column) != columns.end(); };
  return has(text.roles.askedRuns) || has(text.roles.runCandidates);
}

/// The first column that would name the runs; -1 without one.
int firstRunColumn(const TableText& text)
{
  if (!text.roles.askedRuns.empty())
    return text.roles.askedRuns.front();
  for (const int column : text.roles.runCandidates)
  {
    const ColumnValues& values = text.columns[static_cast<std::size_t>(column)];
    if (values.texts + values.dates > 0 || values.firstFraction.line == 0)
      return column;
  }
  return -1;
}

} // namespace

std::vector<std::size_t> freeColumns(const TableText& text)
{
  std::vector<std::size_t> columns;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
    if (text.uses[i] != ColumnUse::Ignored && !text.roles.headers[i].typed &&
        static_cast<int>(i) != text.roles.timeColumn && !isRunColumn(text, static_cast<int>(i)))
      columns.push_back(i);
  return columns;
}

std::vector<std::size_t> textColumns(const TableText& text)
{
  std::vector<std::size_t> columns;
  for (const std::size_t column : freeColumns(text))
    if (text.columns[column].isText())
      columns.push_back(column);
  return columns;
}

std::vector<std::size_t> numberColumns(const TableText& text)
{
  std::vector<std::size_t> columns;
  for (const std::size_t column : freeColumns(text))
    if (!text.columns[column].isText())
      columns.push_back(column);
  return columns;
}

int columnCalled(const TableText& text, std::string_view name)
{
  const auto found = std::find_if(
      text.roles.headers.begin(), text.roles.headers.end(),
      [name](const ColumnHeader& header)
      {
        return std::equal(header.name.begin(), header.name.end(), name.begin(), name.end(),
                          [](char a, char b) { return toLower(a) == toLower(b); });
      });
  return found == text.roles.headers.end() ? -1
                                           : static_cast<int>(found - text.roles.headers.begin());
}

bool pointsRepeat(const TableText& text, int item)
{
  if (text.roles.timeColumn < 0)
    return false;
  const std::vector<double>& time =
      text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
  const int run = firstRunColumn(text);
  const auto levelIn = [&text](int column, std::size_t row)
  {
    const auto& levels = text.columns[static_cast<std::size_t>(column)].levels.rows();
    return row < levels.size() ? levels[row] : TextLevels::none;
  };
  int restarts = 0;
  std::set<std::tuple<int, int, double>> seen;
  for (std::size_t row = 0; row < std::min(text.rows, mostRows); ++row)
  {
    restarts += row > 0 && time[row] < time[row - 1] ? 1 : 0;
    const int runOfRow = run < 0 ? restarts : levelIn(run, row);
    const int itemOfRow = item < 0 ? 0 : levelIn(item, row);
    if (!std::isnan(time[row]) && !seen.emplace(runOfRow, itemOfRow, time[row]).second)
      return true;
  }
  return false;
}

bool namesRuns(const TableText& text)
{
  return firstRunColumn(text) >= 0;
}

bool everyRowIsNamed(const TableText& text)
{
  const int run = firstRunColumn(text);
  return run >= 0 && text.rows > 1 &&
         text.columns[static_cast<std::size_t>(run)].levels.names().size() == text.rows;
}

bool asksForRuns(const ImportRequest& request)
{
  return !request.time.empty() || !request.run.empty();
}

} // namespace Talmesh::app
