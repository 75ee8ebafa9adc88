#include "app/runs/RunTable.h"

#include "app/import/MissingValue.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <utility>

namespace Talmesh::app
{

namespace
{

std::vector<double> missingValues(std::size_t count)
{
  return std::vector<double>(count, missing);
}

} // namespace

RunColumn runColumn(std::optional<RunFeature> feature, int column, const std::string& name)
{
  const std::string words = feature ? featureWords(*feature, name) : filterName(name);
  return {feature, column, words, feature ? words : name};
}

double numberOf(const FilteredRuns& runs, std::size_t run, const RunColumn& column)
{
  constexpr int overTime = -1;
  const RunCourse course = runs.course(run, column.column, overTime);
  return column.feature ? featureOf(*column.feature, course) : firstOf(course);
}

RunTableFilling::RunTableFilling(const FilteredRuns& filled, std::vector<RunColumn> columns)
    : runs(filled)
{
  table.columns = std::move(columns);
  table.numbers = missingValues(runs.numberOfRuns());
  table.values.assign(table.columns.size(), missingValues(runs.numberOfRuns()));
  for (std::size_t i = 0; i < table.columns.size(); ++i)
    if (std::vector<std::string> texts = runs.textsOf(table.columns[i].column);
        !table.columns[i].feature && !texts.empty())
      table.texts.emplace(i, std::move(texts));
}

void RunTableFilling::goOn(int milliseconds)
{
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
  while (!isDone())
  {
    const std::size_t run = next++;
    table.numbers[run] = runs.runNumber(run);
    for (std::size_t i = 0; i < table.columns.size(); ++i)
      table.values[i][run] = numberOf(runs, run, table.columns[i]);
    if (Clock::now() >= end)
      return;
  }
}

void addColumn(RunTable& table, const std::string& name, const std::vector<double>& values)
{
  if (values.size() != table.numbers.size())
    return;
  constexpr int ofNoTable = -1;
  table.columns.push_back({std::nullopt, ofNoTable, name, name});
  table.values.push_back(values);
}

RunTable runTable(const FilteredRuns& runs, const std::vector<RunColumn>& columns)
{
  RunTableFilling filling(runs, columns);
  while (!filling.isDone())
    filling.goOn(std::numeric_limits<int>::max());
  return filling.take();
}

std::string fullNumber(double value)
{
  if (std::isnan(value))
    return {};
  std::array<char, 32> text{};
  char* const end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

std::string commaCell(const std::string& text)
{
  if (text.find_first_of(",\"\r\n") == std::string::npos)
    return text;
  std::string quoted = "\"";
  for (const char sign : text)
    quoted += sign == '"' ? std::string("\"\"") : std::string(1, sign);
  return quoted + '"';
}

std::string cellText(const RunTable& table, std::size_t column, std::size_t run)
{
  const double value = table.values[column][run];
  const auto texts = table.texts.find(column);
  const bool isText = texts != table.texts.end() && value >= 0.0 &&
                      value < static_cast<double>(texts->second.size());
  return isText ? texts->second[static_cast<std::size_t>(value)] : fullNumber(value);
}

std::string commaText(const RunTable& table)
{
  std::string text = "run";
  for (const RunColumn& column : table.columns)
    text += ',' + commaCell(column.title);
  text += '\n';
  for (std::size_t run = 0; run < table.numbers.size(); ++run)
  {
    text += fullNumber(table.numbers[run]);
    for (std::size_t column = 0; column < table.values.size(); ++column)
      text += ',' + commaCell(cellText(table, column, run));
    text += '\n';
  }
  return text;
}

} // namespace Talmesh::app
