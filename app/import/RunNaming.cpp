#include "app/import/LongTable.h"
#include "app/import/RoleChoice.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// Numbers of runs with their names.
struct NamedRuns
{
  std::vector<int> ofRow;
  std::vector<std::string> names;
};

std::uint64_t together(int first, int second)
{
  return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(first)) << 32U) |
         static_cast<std::uint32_t>(second);
}

/// Runs of which two names together tell one.
NamedRuns joined(const NamedRuns& runs, const ColumnValues& column)
{
  NamedRuns both;
  std::unordered_map<std::uint64_t, int> numbers;
  both.ofRow.reserve(runs.ofRow.size());
  for (std::size_t row = 0; row < runs.ofRow.size(); ++row)
  {
    const int second = column.levels.rows()[row];
    const auto [entry, added] =
        numbers.emplace(together(runs.ofRow[row], second), static_cast<int>(both.names.size()));
    if (added)
      both.names.push_back(runs.names[static_cast<std::size_t>(runs.ofRow[row])] + ", " +
                           column.levels.names()[static_cast<std::size_t>(second)]);
    both.ofRow.push_back(entry->second);
  }
  return both;
}

/// Rows sorted into series of one run, or one item of a run.
struct RowSeries
{
  const std::vector<int>* runs = nullptr;
  /// Null where runs are the series.
  const std::vector<int>* items = nullptr;
  std::size_t itemCount = 0;

  std::size_t of(std::size_t row) const
  {
    const auto run = static_cast<std::size_t>((*runs)[row]);
    if (!items)
      return run;
    // Those without an item are one more.
    return run * itemCount + static_cast<std::size_t>((*items)[row] + 1);
  }
};

/// Whether the time rises from each row of a series to its next.
bool timesRise(const RowSeries& series, std::size_t count, const std::vector<double>& time)
{
  std::vector<double> last(count, -std::numeric_limits<double>::infinity());
  for (std::size_t row = 0; row < series.runs->size(); ++row)
  {
    double& before = last[series.of(row)];
    if (!(time[row] > before))
      return false;
    before = time[row];
  }
  return true;
}

/// Whether a series has two rows at one time.
bool repeatsTimes(const RowSeries& series, std::size_t runs, const std::vector<double>& time)
{
  const std::size_t count = runs * (series.items ? series.itemCount : 1);
  // Most tables need little memory for it.
  if (count <= 2 * time.size() && timesRise(series, count, time))
    return false;
  std::unordered_map<std::size_t, std::unordered_set<double>> seen;
  for (std::size_t row = 0; row < series.runs->size(); ++row)
    if (!std::isnan(time[row]) && !seen[series.of(row)].insert(time[row]).second)
      return true;
  return false;
}

class RunNamer
{
public:
  /// @param keepsColumns_ whether the columns that name the runs stay what they are
  RunNamer(TableText& text_, bool keepsColumns_)
      : text(text_)
      , keepsColumns(keepsColumns_)
  {
  }

  std::string name()
  {
    const std::vector<int> columns = text.roles.askedRuns.empty() ? found() : text.roles.askedRuns;
    text.roles.runColumn = columns.empty() || isCondition(columns.front()) ? -1 : columns.front();
    for (std::size_t i = 0; i < columns.size() && error.empty(); ++i)
      take(static_cast<std::size_t>(columns[i]), i == 0);
    // More names are only wanted where one does not tell the runs apart.
    for (std::size_t i = 0; i < further.size() && error.empty() && repeats(); ++i)
      take(further[i], false);
    if (error.empty() && text.roles.askedRuns.empty() && repeats())
      tellApartByTexts();
    text.runOfRow = std::move(runs.ofRow);
    text.runNames = std::move(runs.names);
    return error;
  }

private:
  /// Texts that the user has name the runs, as drugs or countries, say more than that.
  bool isCondition(int column) const
  {
    const auto index = static_cast<std::size_t>(column);
    return !text.roles.askedRuns.empty() && text.columns[index].isText() &&
           !text.roles.headers[index].typed && !isRunName(text.roles.headers[index].name);
  }

  /// A column with a name of runs whose cells are numbers, not all of them whole, names no runs;
  /// nor does the time, as dates of a column with such a name may be.
  bool mayNameRuns(std::size_t column) const
  {
    const ColumnValues& values = text.columns[column];
    return text.uses[column] == ColumnUse::Open &&
           static_cast<int>(column) != text.roles.timeColumn &&
           (values.texts + values.dates > 0 || values.firstFraction.line == 0);
  }

  std::vector<int> found()
  {
    std::vector<int> first;
    for (const int column : text.roles.runCandidates)
      if (mayNameRuns(static_cast<std::size_t>(column)))
      {
        if (first.empty())
          first.push_back(column);
        else if (!text.roles.headers[static_cast<std::size_t>(column)].typed)
          further.push_back(static_cast<std::size_t>(column));
      }
    return first;
  }

  bool repeats() const
  {
    return text.roles.timeColumn >= 0 && !runs.ofRow.empty() && repeats(runs);
  }

  bool repeats(const NamedRuns& named) const
  {
    RowSeries series{&named.ofRow, nullptr, 0};
    if (const int item = text.roles.itemColumn; item >= 0)
    {
      const TextLevels& levels = text.columns[static_cast<std::size_t>(item)].levels;
      if (levels.rows().size() == named.ofRow.size())
        series = {&named.ofRow, &levels.rows(), levels.names().size() + 1};
    }
    return repeatsTimes(series, named.names.size(),
                        text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values);
  }

  /// Replicates may be counted anew under each condition. Columns of texts stay what they are;
  /// where they do not tell the runs apart either, nothing is changed.
  void tellApartByTexts()
  {
    NamedRuns named = runs;
    for (std::size_t i = 0; i < text.columns.size(); ++i)
    {
      ColumnValues& column = text.columns[i];
      const bool free = text.uses[i] == ColumnUse::Open && !text.roles.headers[i].typed &&
                        static_cast<int>(i) != text.roles.timeColumn &&
                        static_cast<int>(i) != text.roles.runColumn &&
                        static_cast<int>(i) != text.roles.itemColumn;
      if (!free || !column.isText() || column.hasTooManyTexts)
        continue;
      const auto& levels = column.levels.rows();
      if (std::find(levels.begin(), levels.end(), TextLevels::none) == levels.end())
        named = joined(named, column);
    }
    if (!repeats(named))
      runs = std::move(named);
  }

  std::string withoutName(std::size_t line, std::size_t column) const
  {
    return withValues(translated("TableText", "line %1: the run has no name in the column %2; fill "
                                              "it in, or name other columns (--run)"),
                      {std::to_string(line), quotedForMessage(text.roles.headers[column].name)});
  }

  void take(std::size_t column, bool isFirst)
  {
    ColumnValues& values = text.columns[column];
    if (values.firstEmpty.line > 0)
    {
      error = withoutName(values.firstEmpty.line, column);
      return;
    }
    values.completeTexts();
    // What is no name of a run is found here, whoever takes a column for them.
    const std::vector<int>& levels = values.levels.rows();
    const auto blank = std::find(levels.begin(), levels.end(), TextLevels::none);
    if (blank != levels.end())
    {
      const auto row = static_cast<std::size_t>(blank - levels.begin());
      error = withoutName(row < text.lines.size() ? text.lines[row] : row + 1, column);
      return;
    }
    const bool stays = keepsColumns || isCondition(static_cast<int>(column));
    if (isFirst)
      runs = {stays ? values.levels.rows() : values.levels.takeRows(), values.levels.names()};
    else
    {
      runs = joined(runs, values);
      if (!stays)
        text.uses[column] = ColumnUse::RunName;
    }
    if (!stays)
      values = ColumnValues();
  }

  TableText& text;
  bool keepsColumns;
  NamedRuns runs;
  std::vector<std::size_t> further;
  std::string error;
};

} // namespace

std::string nameRuns(TableText& text)
{
  return RunNamer(text, false).name();
}

std::string nameRunsBy(TableText& text, std::vector<int> columns)
{
  text.roles.askedRuns = std::move(columns);
  const std::string error = RunNamer(text, true).name();
  text.roles.askedRuns.clear();
  text.roles.runColumn = -1;
  return error;
}

void forgetEmptyRuns(TableText& table)
{
  std::vector<int> numbers(table.runNames.size(), -1);
  std::vector<std::string> names;
  for (int& run : table.runOfRow)
  {
    int& number = numbers[static_cast<std::size_t>(run)];
    if (number < 0)
    {
      number = static_cast<int>(names.size());
      names.push_back(table.runNames[static_cast<std::size_t>(run)]);
    }
    run = number;
  }
  table.runNames = std::move(names);
}

} // namespace Talmesh::app
