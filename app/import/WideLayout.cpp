#include "app/import/LayoutFacts.h"
#include "app/import/LayoutUnits.h"
#include "app/import/RoleChoice.h"
#include "app/import/RoleNames.h"
#include "app/import/RunSeriesName.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

/// A row per time and a column per run, or per run and item.
namespace Talmesh::app
{

namespace
{

/// So many numbered columns may each be a run, though no name says so.
constexpr std::size_t manySeries = 10;
/// So many of one name are, if the numbers stand apart.
constexpr std::size_t plainlySeries = 100;
constexpr const char* nameOfValues = "value";

/// The columns of each run by item, in the order in which items and runs appear.
struct Series
{
  std::vector<std::string> items;
  std::vector<std::string> runs;
  std::map<std::pair<std::size_t, std::size_t>, std::size_t> columns;
  bool isClear = true;
  bool isApart = true;
  /// What differs between the runs, and its value in each; empty where names only number them.
  std::string parameter;
  std::vector<double> parameterValues;
  /// Columns of numbers that are of no run, and do not sum the runs up.
  std::size_t others = 0;

  bool isWhole() const { return runs.size() > 1 && columns.size() == items.size() * runs.size(); }
};

template <typename Text>
std::size_t placeOf(std::vector<Text>& list, const Text& text, std::map<Text, std::size_t>& places)
{
  const auto [entry, added] = places.emplace(text, list.size());
  if (added)
    list.push_back(text);
  return entry->second;
}

Series seriesOf(const TableText& text)
{
  Series series;
  std::map<std::string, std::size_t> items;
  std::map<std::string, std::size_t> runs;
  for (const std::size_t column : numberColumns(text))
  {
    const auto name = readRunSeriesName(text.roles.headers[column].name);
    if (!name)
    {
      const std::string& header = text.roles.headers[column].name;
      series.others += isMeanName(header) || isErrorName(header) ? 0 : 1;
      continue;
    }
    series.isClear = series.isClear && name->isClear;
    series.isApart = series.isApart && name->isApart;
    const std::size_t item =
        placeOf(series.items, name->item.empty() ? std::string(nameOfValues) : name->item, items);
    series.columns[{item, placeOf(series.runs, std::to_string(name->run), runs)}] = column;
  }
  return series;
}

/// All columns of numbers as the runs of one item, as the user says.
Series everyColumn(const TableText& text)
{
  Series series;
  series.items = {nameOfValues};
  for (const std::size_t column : numberColumns(text))
  {
    series.columns[{0, series.runs.size()}] = column;
    series.runs.push_back(text.roles.headers[column].name);
  }
  return series;
}

/// Columns that are called k=0.1, k=0.2, ...; none where any is called otherwise.
Series parameterSeries(const TableText& text)
{
  Series series = everyColumn(text);
  for (const std::string& run : series.runs)
  {
    const auto name = readParameterSeriesName(run);
    if (!name || (!series.parameter.empty() && name->parameter != series.parameter))
      return {};
    series.parameter = name->parameter;
    series.parameterValues.push_back(name->value);
  }
  return series;
}

/// Whether columns are called as the wells of a plate are, A1 to H12 or A1 to P24.
bool areWells(const Series& series)
{
  const std::size_t rows = series.items.size();
  if (!series.isWhole() || series.isApart ||
      !((rows == 8 && series.runs.size() == 12) || (rows == 16 && series.runs.size() == 24)))
    return false;
  std::set<std::string> letters;
  for (std::size_t row = 0; row < rows; ++row)
    letters.insert(std::string(1, static_cast<char>('A' + row)));
  return std::set<std::string>(series.items.begin(), series.items.end()) == letters;
}

/// What the names say, if they say it wholly.
Series namedSeries(const TableText& text)
{
  const Series parameters = parameterSeries(text);
  if (parameters.isWhole())
    return parameters;
  const Series numbered = seriesOf(text);
  return areWells(numbered) ? everyColumn(text) : numbered;
}

LayoutFit recognise(const TableText& text, const ImportRequest& request)
{
  if (text.roles.anyTyped || !request.run.empty() || text.rows < 2)
    return {};
  const Series series = namedSeries(text);
  const bool hasTime = text.roles.timeColumn >= 0;
  if (!series.isWhole() || (series.others > 0 && (!series.isClear || !hasTime)))
    return {};
  const std::string reason =
      withValues(translated("WideLayout", "the names of %1 columns number runs, such as %2"),
                 {std::to_string(series.columns.size()),
                  quotedForMessage(text.roles.headers[series.columns.begin()->second].name)});
  if (series.others > 0)
    return {0.6, reason};
  if (series.isClear)
    return {hasTime ? 0.95 : 0.7, reason};
  if (series.isApart && series.runs.size() >= plainlySeries && series.items.size() == 1)
    return {hasTime ? 0.9 : 0.6, reason};
  if (series.runs.size() >= manySeries)
    return {hasTime ? 0.65 : 0.5, reason};
  return {};
}

class Melt
{
public:
  Melt(TableText& text_, const Series& series_)
      : text(text_)
      , series(series_)
  {
  }

  TableText melted()
  {
    stacked.rows = text.rows * series.runs.size();
    const auto time = static_cast<std::size_t>(text.roles.timeColumn);
    if (text.roles.timeColumn >= 0)
    {
      stacked.roles.timeColumn = 0;
      add(text.roles.headers[time].name, repeated(text.columns[time].values), ColumnUse::Open);
    }
    for (std::size_t item = 0; item < series.items.size(); ++item)
      add(series.items[item], itemValues(item), ColumnUse::Item);
    if (!series.parameter.empty())
      add(series.parameter, parameterValues(), ColumnUse::Parameter);
    for (std::size_t run = 0; run < series.runs.size(); ++run)
      stacked.runOfRow.insert(stacked.runOfRow.end(), text.rows, static_cast<int>(run));
    stacked.runNames = series.runs;
    for (std::size_t run = 0; run < series.runs.size(); ++run)
      for (std::size_t row = 0; row < text.rows; ++row)
        stacked.lines.push_back(text.lineOf(row));
    return std::move(stacked);
  }

private:
  std::vector<double> repeated(const std::vector<double>& values) const
  {
    std::vector<double> all;
    all.reserve(stacked.rows);
    for (std::size_t run = 0; run < series.runs.size(); ++run)
      all.insert(all.end(), values.begin(), values.end());
    return all;
  }

  std::vector<double> parameterValues() const
  {
    std::vector<double> all;
    for (const double value : series.parameterValues)
      all.insert(all.end(), text.rows, value);
    return all;
  }

  std::vector<double> itemValues(std::size_t item)
  {
    std::vector<double> all;
    all.reserve(stacked.rows);
    for (std::size_t run = 0; run < series.runs.size(); ++run)
    {
      std::vector<double>& values = text.columns[series.columns.at({item, run})].values;
      all.insert(all.end(), values.begin(), values.end());
      std::vector<double>().swap(values);
    }
    return all;
  }

  void add(const std::string& name, std::vector<double> values, ColumnUse use)
  {
    stacked.columns.push_back(columnOfNumbers(std::move(values)));
    stacked.uses.push_back(use);
    ColumnHeader header;
    header.name = name;
    stacked.roles.headers.push_back(header);
  }

  TableText& text;
  const Series& series;
  TableText stacked;
};

std::string mistypedSeries(const TableText& text, const Series& series)
{
  for (const auto& [place, column] : series.columns)
    if (std::string error = mistypedCell(text, column); !error.empty())
      return error;
  return text.roles.timeColumn < 0
             ? std::string()
             : mistypedCell(text, static_cast<std::size_t>(text.roles.timeColumn));
}

/// What is of no run cannot come along, because it has no place in a table of runs.
void tellOthers(const TableText& text, const Series& series, ImportReport& report)
{
  std::set<std::size_t> taken;
  for (const auto& [place, column] : series.columns)
    taken.insert(column);
  for (const std::size_t column : freeColumns(text))
    if (taken.count(column) == 0)
    {
      report.ignored.push_back(text.roles.headers[column].name);
      report.warnings.push_back(
          withValues(translated("WideLayout", "The column %1 is of no run and is left out."),
                     {quotedForMessage(text.roles.headers[column].name)}));
    }
}

Result<TableText> arrange(TableText text, const LayoutTask& task)
{
  using Arranged = Result<TableText>;
  Series series = namedSeries(text);
  const bool unsure = !series.isClear && series.items.size() > 1 && series.runs.size() < manySeries;
  if (!series.isWhole() || unsure)
    series = everyColumn(text);
  if (series.runs.size() < 2)
    return Arranged::failed(
        translated("WideLayout", "there are not several columns of numbers that could be runs"));
  const std::string error = mistypedSeries(text, series);
  if (!error.empty())
    return Arranged::failed(error);
  tellOthers(text, series, task.report);
  return Arranged(Melt(text, series).melted());
}

} // namespace

const Layout wideLayout = {"wide", recognise, arrange};

} // namespace Talmesh::app
