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
  std::vector<int> ofRow;
  std::size_t count = 0;
};

/// The series of runs, or, where a column says which item a row is of, of runs and items.
RowSeries seriesOf(const NamedRuns& runs, const std::vector<int>* items)
{
  if (!items || items->size() != runs.ofRow.size())
    return {runs.ofRow, runs.names.size()};
  RowSeries series;
  std::unordered_map<std::uint64_t, int> numbers;
  for (std::size_t row = 0; row < runs.ofRow.size(); ++row)
    series.ofRow.push_back(
        numbers.emplace(together(runs.ofRow[row], (*items)[row]), static_cast<int>(numbers.size()))
            .first->second);
  series.count = numbers.size();
  return series;
}

/// Whether the time rises from each row of a series to its next.
bool timesRise(const RowSeries& series, const std::vector<double>& time)
{
  std::vector<double> last(series.count, -std::numeric_limits<double>::infinity());
  for (std::size_t row = 0; row < series.ofRow.size(); ++row)
  {
    double& before = last[static_cast<std::size_t>(series.ofRow[row])];
    if (!(time[row] > before))
      return false;
    before = time[row];
  }
  return true;
}

/// Whether a series has two rows at one time.
bool repeatsTimes(const RowSeries& series, const std::vector<double>& time)
{
  // Most tables need no memory for it.
  if (timesRise(series, time))
    return false;
  std::vector<std::unordered_set<double>> seen(series.count);
  for (std::size_t row = 0; row < series.ofRow.size(); ++row)
    if (!std::isnan(time[row]) &&
        !seen[static_cast<std::size_t>(series.ofRow[row])].insert(time[row]).second)
      return true;
  return false;
}

class RunNamer
{
public:
  explicit RunNamer(TableText& text_)
      : text(text_)
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

  /// A column with a name of runs whose cells are numbers, not all of them whole, names no runs.
  bool mayNameRuns(std::size_t column) const
  {
    const ColumnValues& values = text.columns[column];
    return text.uses[column] == ColumnUse::Open &&
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
    const int item = text.roles.itemColumn;
    const auto* items =
        item < 0 ? nullptr : &text.columns[static_cast<std::size_t>(item)].levels.rows();
    return repeatsTimes(seriesOf(named, items),
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

  void take(std::size_t column, bool isFirst)
  {
    ColumnValues& values = text.columns[column];
    if (values.firstEmpty.line > 0)
    {
      error =
          withValues(translated("TableText", "line %1: the run has no name in the column %2; fill "
                                             "it in, or name other columns (--run)"),
                     {std::to_string(values.firstEmpty.line),
                      quotedForMessage(text.roles.headers[column].name)});
      return;
    }
    values.completeTexts();
    const bool stays = isCondition(static_cast<int>(column));
    if (isFirst)
      runs = {values.levels.rows(), values.levels.names()};
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
  NamedRuns runs;
  std::vector<std::size_t> further;
  std::string error;
};

} // namespace

std::string nameRuns(TableText& text)
{
  return RunNamer(text).name();
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
