#include "app/import/RunTableImport.h"

#include "app/import/CategoryColumns.h"
#include "app/import/CommonGrid.h"
#include "app/import/LayoutChoice.h"
#include "app/import/RoleChoice.h"
#include "app/import/RunGrouping.h"
#include "app/import/RunTableBuilder.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <utility>

namespace Talmesh::app
{

namespace
{

using Imported = Result<ImportedTable>;

std::string noNumbers()
{
  return translated("RunTableImport", "not a table: no column holds numbers");
}

bool isLeftOut(const TableText& text, std::size_t column)
{
  return text.uses[column] == ColumnUse::Ignored || text.uses[column] == ColumnUse::RunName;
}

/// Texts among numbers are an error, because a silent gap would look like data.
std::string mistypedCell(const TableText& text)
{
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const bool needed = !isLeftOut(text, i) && text.uses[i] != ColumnUse::Condition;
    const std::string error = needed ? mistypedCell(text, i) : std::string();
    if (!error.empty())
      return error;
  }
  return {};
}

/// The stacked runs, or what keeps the rows from being such.
class RunsOfText
{
public:
  RunsOfText(TableText& text_, const ImportTask& task_, ImportReport& report_)
      : text(text_)
      , request(task_.request)
      , report(report_)
  {
  }

  Imported build(const std::vector<ColumnLevels>& levels)
  {
    Result<RunGrouping> grouped = text.rowsAreRuns ? everyRow() : grouping();
    if (!grouped.hasValue())
      return Imported::without(grouped);
    RunGrouping& runs = grouped.value();
    ImportedTable imported;
    const std::string error = layOnGrid(runs, imported);
    if (!error.empty())
      return Imported::failed(error);
    noteOnMissingTime(runs.pointsPerRun);
    const BuiltRuns built = buildRunTable(text, runs);
    imported.runs = built.runs;
    for (const std::string& parameter : built.unvariedParameters)
      report.warnings.push_back(withValues(
          translated("RunTableImport", "The parameter %1 is the same in all runs and is left out."),
          {quotedForMessage(parameter)}));
    for (const ColumnLevels& category : levels)
      if (const auto label = built.labels.find(category.column); label != built.labels.end())
        imported.categories.push_back({label->second, category.levels});
    describe(*built.runs);
    return imported;
  }

private:
  Result<RunGrouping> grouping() const
  {
    RunColumns columns;
    columns.rows = text.rows;
    columns.lines = &text.lines;
    if (text.roles.timeColumn >= 0)
      columns.time = &text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
    if (!text.runNames.empty())
    {
      columns.run = &text.runOfRow;
      columns.names = &text.runNames;
    }
    return groupRuns(columns);
  }

  Result<RunGrouping> everyRow() const
  {
    if (text.runNames.size() == text.rows)
      return grouping();
    RunGrouping rows;
    rows.numberOfRuns = text.rows;
    rows.pointsPerRun = 1;
    rows.indices.resize(text.rows);
    std::iota(rows.indices.begin(), rows.indices.end(), 0.0);
    rows.starts.resize(text.rows + 1);
    std::iota(rows.starts.begin(), rows.starts.end(), std::size_t{0});
    return rows;
  }

  bool hasInfiniteTime() const
  {
    if (text.roles.timeColumn < 0)
      return false;
    const auto& time = text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
    return std::any_of(time.begin(), time.end(), [](double value) { return std::isinf(value); });
  }

  std::string layOnGrid(RunGrouping& runs, ImportedTable& imported)
  {
    if (hasInfiniteTime())
    {
      stackRows(text, runs);
      takeSteadyStates(text, runs, report);
    }
    tellLengths(runs);
    if (!runs.unequal.empty())
    {
      if (text.runNames.empty() && !request.unequal && request.layout.empty())
        return doubtedRestarts(runs);
      stackRows(text, runs);
      const std::string error =
          putOnCommonGrid(text, runs, request.unequal, report, imported.measured);
      if (!error.empty())
        return error;
    }
    if (text.hasGaps && !text.isMeasured && request.unequal != UnequalRuns::Union)
    {
      stackRows(text, runs);
      bridgeGaps(text, runs, report);
    }
    return {};
  }

  void tellLengths(const RunGrouping& runs)
  {
    report.runs = runs.numberOfRuns;
    report.fewestPoints = runs.pointsPerRun;
    report.mostPoints = runs.pointsPerRun;
    for (std::size_t run = 0; run < runs.numberOfRuns; ++run)
    {
      const std::size_t points = runs.starts[run + 1] - runs.starts[run];
      report.fewestPoints = std::min(report.fewestPoints, points);
      report.mostPoints = std::max(report.mostPoints, points);
    }
  }

  /// Where time falls back now here, now there, it may not be that a run starts.
  std::string doubtedRestarts(const RunGrouping& runs)
  {
    report.candidates = {
        {"--layout stacked", "stacked", 0.5,
         translated("RunTableImport", "a run starts wherever time falls back, and runs differ in "
                                      "length")},
        {"--layout table", "table", 0.5, translated("RunTableImport", "the rows have no order")}};
    return withValues(translated("RunTableImport",
                                 "%1. If a run starts wherever time falls back, say --layout "
                                 "stacked; if a column names the runs, --run and its name; if "
                                 "there are none, --layout table"),
                      {runs.unequal});
  }

  /// In which order points are when there is no time.
  void noteOnMissingTime(std::size_t pointsPerRun)
  {
    if (text.roles.timeColumn < 0 && pointsPerRun > 1)
      report.warnings.push_back(translated("RunTableImport",
                                           "There is no time column, so the points of a run are "
                                           "in the order of the file."));
  }

  void describe(const LinePlotTable& runs)
  {
    if (text.roles.timeColumn >= 0)
      report.time = text.roles.headers[static_cast<std::size_t>(text.roles.timeColumn)].name;
    const std::set<std::string> categories(report.categories.begin(), report.categories.end());
    for (const auto& [kind, name] : runs.items)
      if (categories.count(name) > 0)
        continue;
      else if (kind == Parameter)
        report.parameters.push_back(name);
      else if (kind != TimeOrValue)
        report.items.push_back(name);
  }

  TableText& text;
  const ImportRequest& request;
  ImportReport& report;
};

/// A table without an order of its rows.
ImportedTable plainTable(TableText& text, const std::vector<ColumnLevels>& levels,
                         ImportReport& report)
{
  ImportedTable imported;
  report.warnings.push_back(
      translated("RunTableImport", "There is no time column, so the rows are not taken for runs."));
  imported.table = vtkSmartPointer<vtkTable>::New();
  const std::set<std::string> categories(report.categories.begin(), report.categories.end());
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    ColumnValues& column = text.columns[i];
    if (isLeftOut(text, i))
      continue;
    const std::string& name = text.roles.headers[i].name;
    vtkNew<vtkDoubleArray> array;
    array->SetName(name.c_str());
    array->SetNumberOfValues(static_cast<vtkIdType>(text.rows));
    std::copy(column.values.begin(), column.values.end(), array->GetPointer(0));
    std::vector<double>().swap(column.values);
    imported.table->AddColumn(array);
    if (categories.count(name) == 0)
      report.items.push_back(name);
  }
  for (const ColumnLevels& category : levels)
    imported.categories.push_back({text.roles.headers[category.column].name, category.levels});
  report.fewestPoints = text.rows;
  report.mostPoints = text.rows;
  return imported;
}

bool hasNumbers(const TableText& text)
{
  return std::any_of(text.columns.begin(), text.columns.end(),
                     [](const ColumnValues& column)
                     { return column.numbers > 0 || column.dates > 0; });
}

bool hasColumns(const TableText& text)
{
  for (std::size_t i = 0; i < text.columns.size(); ++i)
    if (!isLeftOut(text, i))
      return true;
  return false;
}

Imported importArranged(TableText text, const ImportTask& task, ImportReport& report)
{
  const std::string refused = mistypedCell(text);
  if (!refused.empty())
    return Imported::failed(refused);
  std::string error;
  if (text.hasRuns && text.runNames.empty())
    error = nameRuns(text);
  if (!error.empty())
    return Imported::failed(error);
  const std::vector<ColumnLevels> levels = makeCategories(text, report);
  for (const ColumnLevels& category : levels)
    text.levelColumns.push_back(category.column);
  if (!hasColumns(text))
    return Imported::failed(noNumbers());
  Imported imported = text.hasRuns ? RunsOfText(text, task, report).build(levels)
                                   : Imported(plainTable(text, levels, report));
  if (imported.hasValue())
    imported.value().notes = report.warnings;
  return imported;
}

} // namespace

Result<ImportedTable> importTable(TableText text, const ImportTask& task, ImportReport& report)
{
  std::string error = applyRequest(text, task.request);
  if (error.empty() && !hasNumbers(text))
    error = noNumbers();
  if (!error.empty())
    return Imported::failed(error);
  settleColumns(text, report);
  const Result<const Layout*> layout = chooseLayout(text, task.request, report);
  if (!layout.hasValue())
    return Imported::without(layout);
  report.layout = layout.value()->name;
  Result<TableText> arranged =
      layout.value()->arrange(std::move(text), {task.request, task.beside, report});
  return arranged.hasValue() ? importArranged(std::move(arranged.value()), task, report)
                             : Imported::without(arranged);
}

Result<ImportedTable> importTable(std::string_view bytes, const ImportTask& task,
                                  ImportReport& report)
{
  Result<TableText> read = readTableText(bytes, task.request, report, task.progress, task.passed);
  return read.hasValue() ? importTable(std::move(read.value()), task, report)
                         : Imported::without(read);
}

Result<ImportedTable> importRunTable(std::string_view bytes, const ImportProgress& progress,
                                     const TextPassed& passed)
{
  ImportReport report;
  return importTable(bytes, {{}, progress, passed, {}}, report);
}

} // namespace Talmesh::app
