#include "app/RunTableImport.h"

#include "app/RunGrouping.h"
#include "app/TableText.h"
#include "app/TranslatedText.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr const char* runIndexName = "Run Index";

bool isTextColumn(const ColumnValues& column)
{
  return column.texts > 0 && column.numbers == 0;
}

/// Texts among numbers are an error, because a silent gap would look like data.
std::string mistypedCell(const TableText& text)
{
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const ColumnValues& column = text.columns[i];
    const bool needed = static_cast<int>(i) == text.roles.timeColumn;
    if (column.texts > 0 && (column.numbers > 0 || needed))
      return withValues(
          translated("RunTableImport", "line %1: %2 in the column %3 is not a number"),
          {std::to_string(column.firstTextLine), quotedForMessage(column.firstText),
           quotedForMessage(text.roles.headers[i].name)});
  }
  return {};
}

/// A column on its way into the result.
struct StackedColumn
{
  TypedConcentrationName item;
  std::unique_ptr<double[]> values;
  /// (smallest, largest) finite value.
  std::pair<double, double> range;

  bool varies() const { return range.first != range.second; }
};

class RunTableBuilder
{
public:
  RunTableBuilder(TableText& text_, const RunGrouping& grouping_)
      : text(text_)
      , grouping(grouping_)
  {
  }

  boost::shared_ptr<LinePlotTable> build()
  {
    for (std::size_t i = 0; i < text.columns.size(); ++i)
      addColumn(i);
    if (!text.roles.anyTyped)
      arrange();
    return handOver();
  }

  /// Names of the parameters that plots leave out because they are the same in all runs.
  std::vector<std::string> unvariedParameters() const
  {
    std::vector<std::string> names;
    for (const StackedColumn& column : columns)
      if (column.item.first == Parameter && !column.varies())
        names.push_back(column.item.second);
    return names;
  }

private:
  std::size_t rows() const { return text.rows; }

  std::unique_ptr<double[]> stacked(ColumnValues& column) const
  {
    std::unique_ptr<double[]> values(new double[rows()]);
    for (std::size_t place = 0; place < rows(); ++place)
      values[place] = column.values[grouping.order.empty() ? place : grouping.order[place]];
    std::vector<double>().swap(column.values);
    return values;
  }

  std::unique_ptr<double[]> runIndices() const
  {
    std::unique_ptr<double[]> values(new double[rows()]);
    for (std::size_t place = 0; place < rows(); ++place)
      values[place] = grouping.indices[place / grouping.pointsPerRun];
    return values;
  }

  /// One value in each run. Runs of one point tell nothing.
  bool constantWithinRuns(const double* values) const
  {
    if (grouping.pointsPerRun < 2)
      return false;
    for (std::size_t place = 0; place < rows(); ++place)
    {
      const double first = values[place - place % grouping.pointsPerRun];
      const bool same = values[place] == first || (std::isnan(values[place]) && std::isnan(first));
      if (!same)
        return false;
    }
    return true;
  }

  void addColumn(std::size_t index)
  {
    const ColumnHeader& header = text.roles.headers[index];
    const int position = static_cast<int>(index);
    if (position == text.roles.runColumn)
    {
      columns.push_back(
          {{TimeOrValue, header.typed ? header.name : runIndexName}, runIndices(), {}});
      return;
    }
    if (isTextColumn(text.columns[index]))
      return;
    StackedColumn column{{header.kind, header.name}, stacked(text.columns[index]), {}};
    column.range = rangeOf(column.values.get());
    if (!header.typed)
    {
      // Plots leave out a parameter that does not vary; as an item the column stays to be seen.
      const bool parameter = column.varies() && constantWithinRuns(column.values.get());
      column.item.first = parameter ? Parameter : Molecule;
    }
    if (position == text.roles.timeColumn)
      column.item.first = TimeOrValue;
    columns.push_back(std::move(column));
  }

  /// Puts a table of plain headers into the order of line-plot tables. The plots rely on it: they
  /// look for the time two columns before the first parameter.
  void arrange()
  {
    if (text.roles.runColumn < 0)
      columns.push_back({{TimeOrValue, runIndexName}, runIndices(), {}});
    const auto place = [](const StackedColumn& column)
    {
      if (column.item.first == Parameter)
        return 4;
      if (column.item.first == TimeOrValue)
        return column.item.second == runIndexName ? 3 : 2;
      // The first item is what is plotted at first.
      return column.varies() ? 0 : 1;
    };
    std::stable_sort(columns.begin(), columns.end(),
                     [&](const StackedColumn& a, const StackedColumn& b)
                     { return place(a) < place(b); });
  }

  std::pair<double, double> rangeOf(const double* values) const
  {
    std::pair<double, double> range(std::numeric_limits<double>::infinity(),
                                    -std::numeric_limits<double>::infinity());
    for (std::size_t place = 0; place < rows(); ++place)
      if (std::isfinite(values[place]))
      {
        range.first = std::min(range.first, values[place]);
        range.second = std::max(range.second, values[place]);
      }
    return range.first <= range.second ? range : std::pair<double, double>(0.0, 0.0);
  }

  boost::shared_ptr<LinePlotTable> handOver()
  {
    auto table = boost::make_shared<LinePlotTable>();
    table->numberOfTrajectories = grouping.numberOfRuns;
    table->pointsPerTrajectory = grouping.pointsPerRun;
    table->values.reserve(columns.size());
    for (StackedColumn& column : columns)
    {
      if (column.item.first == Parameter)
        table->parameterRanges.push_back(column.range);
      table->items.push_back(column.item);
      table->values.push_back(column.values.release());
    }
    return table;
  }

  TableText& text;
  const RunGrouping& grouping;
  std::vector<StackedColumn> columns;
};

vtkSmartPointer<vtkTable> plainTable(TableText& text)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    ColumnValues& column = text.columns[i];
    if (isTextColumn(column))
      continue;
    vtkNew<vtkDoubleArray> array;
    array->SetName(text.roles.headers[i].name.c_str());
    array->SetNumberOfValues(static_cast<vtkIdType>(text.rows));
    std::copy(column.values.begin(), column.values.end(), array->GetPointer(0));
    std::vector<double>().swap(column.values);
    table->AddColumn(array);
  }
  return table;
}

std::vector<std::string> notesOn(const TableText& text)
{
  std::vector<std::string> notes;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
    if (isTextColumn(text.columns[i]))
      notes.push_back(
          withValues(translated("RunTableImport", "The column %1 holds text and is left out."),
                     {quotedForMessage(text.roles.headers[i].name)}));
  return notes;
}

std::string noteOnUnvaried(const std::string& parameter)
{
  return withValues(
      translated("RunTableImport", "The parameter %1 is the same in all runs and is left out."),
      {quotedForMessage(parameter)});
}

RunGrouping groupingOf(const TableText& text)
{
  RunColumns columns;
  columns.rows = text.rows;
  columns.lines = &text.lines;
  if (text.roles.timeColumn >= 0)
    columns.time = &text.columns[text.roles.timeColumn].values;
  if (text.roles.runColumn >= 0)
  {
    columns.run = &text.runOfRow;
    columns.names = &text.runNames;
  }
  return groupRuns(columns);
}

bool hasNumbers(const TableText& text)
{
  return std::any_of(text.columns.begin(), text.columns.end(),
                     [](const ColumnValues& column) { return column.numbers > 0; });
}

} // namespace

ImportedTable importRunTable(std::string_view bytes, const ImportProgress& progress)
{
  TableText text = readTableText(bytes, progress);
  ImportedTable imported;
  imported.cancelled = text.cancelled;
  imported.error = std::move(text.error);
  if (imported.cancelled || !imported.error.empty())
    return imported;
  imported.error = hasNumbers(text)
                       ? mistypedCell(text)
                       : translated("RunTableImport", "not a table: no column holds numbers");
  if (!imported.error.empty())
    return imported;
  imported.notes = notesOn(text);
  if (!text.roles.describeRuns())
  {
    imported.table = plainTable(text);
    return imported;
  }
  const RunGrouping grouping = groupingOf(text);
  imported.error = grouping.error;
  if (!imported.error.empty())
    return imported;
  RunTableBuilder builder(text, grouping);
  imported.runs = builder.build();
  for (const std::string& parameter : builder.unvariedParameters())
    imported.notes.push_back(noteOnUnvaried(parameter));
  return imported;
}

} // namespace Talmesh::app
