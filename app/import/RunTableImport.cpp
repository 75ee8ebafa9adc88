#include "app/import/RunTableImport.h"

#include "app/import/CategoryColumns.h"
#include "app/import/LayoutChoice.h"
#include "app/import/RoleChoice.h"
#include "app/import/SettledRequest.h"
#include "app/import/TextRuns.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>

#include <algorithm>
#include <cmath>
#include <functional>
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

/// Whether a column's numbers are whole and so few that each stands in many rows.
bool holdsCodes(const ColumnValues& column)
{
  constexpr std::size_t mostCodes = 20;
  constexpr std::size_t rowsOfCode = 10;
  if (column.firstFraction.line > 0 || column.hasTooManyTexts)
    return false;
  std::set<double> codes;
  for (const double value : column.values)
    if (!std::isnan(value) && codes.insert(value).second && codes.size() > mostCodes)
      return false;
  return column.numbers >= rowsOfCode * codes.size();
}

/// Texts among numbers are an error, because a silent gap would look like data.
std::string mistypedCell(const TableText& text)
{
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const bool needed = !isLeftOut(text, i) && text.uses[i] != ColumnUse::Condition;
    const std::string error = needed ? mistypedCell(text, i) : std::string();
    if (error.empty())
      continue;
    if (static_cast<int>(i) == text.roles.timeColumn || isStrangeNumber(text.columns[i]))
      return error;
    return error + withValues(translated("RunTableImport", ". --ignore %1 leaves the column out, "
                                                           "--condition %1 takes it for texts"),
                              {quotedForMessage(text.roles.headers[i].name)});
  }
  return {};
}

/// Few numbers that come again and again, and at last a text, are all names: 0, 1, done.
void takeCodesForNames(TableText& text, ImportReport& report)
{
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    ColumnValues& column = text.columns[i];
    const bool known = isLeftOut(text, i) || text.uses[i] != ColumnUse::Open ||
                       static_cast<int>(i) == text.roles.timeColumn || text.roles.headers[i].typed;
    if (known || mistypedCell(text, i).empty() || isStrangeNumber(column) || !holdsCodes(column))
      continue;
    text.uses[i] = ColumnUse::Condition;
    report.warnings.push_back(
        withValues(translated("RunTableImport", "Line %1: %2 in the column %3 is not a number, so "
                                                "its numbers are taken for names, too."),
                   {std::to_string(column.firstText.line), quotedForMessage(column.firstText.text),
                    quotedForMessage(text.roles.headers[i].name)}));
  }
}

/// Texts that differ nearly everywhere are no categories of anything; where nothing but them goes
/// with the time, there is nothing to plot.
std::string nothingToPlot(const TableText& text)
{
  if (!text.hasRuns || text.rowsAreRuns || text.roles.timeColumn < 0 || text.rows < 3)
    return {};
  const ColumnValues* texts = nullptr;
  std::size_t column = 0;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const int index = static_cast<int>(i);
    if (isLeftOut(text, i) || index == text.roles.timeColumn || index == text.roles.runColumn)
      continue;
    if (!text.columns[i].isText() || 2 * text.columns[i].levels.names().size() <= text.rows)
      return {};
    if (!texts)
    {
      texts = &text.columns[i];
      column = i;
    }
  }
  if (!texts)
    return {};
  return withValues(translated("RunTableImport", "line %1: %2 in the column %3 is not a number"),
                    {std::to_string(texts->firstText.line), quotedForMessage(texts->firstText.text),
                     quotedForMessage(text.roles.headers[column].name)});
}

/// Columns of numbers that say the same in all rows tell nothing of runs or of time.
void tellConstants(const TableText& text, ImportReport& report)
{
  constexpr std::size_t mostNames = 5;
  std::size_t count = 0;
  std::string names;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const std::vector<double>& values = text.columns[i].values;
    const int index = static_cast<int>(i);
    const bool counts = !isLeftOut(text, i) && index != text.roles.timeColumn &&
                        index != text.roles.runColumn && text.uses[i] != ColumnUse::Parameter &&
                        !text.roles.headers[i].typed && values.size() > 1 &&
                        text.columns[i].isNumeric() && text.columns[i].numbers == values.size();
    if (!counts ||
        std::adjacent_find(values.begin(), values.end(), std::not_equal_to<>()) != values.end())
      continue;
    if (++count <= mostNames)
      names += (count > 1 ? ", " : "") + quotedForMessage(text.roles.headers[i].name);
  }
  if (count == 0)
    return;
  if (count > mostNames)
    names += ", ...";
  report.warnings.push_back(withValues(
      translated("RunTableImport", "The same value stands in all rows of %1."), {names}));
}

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

/// The text has been read by then.
bool isGivenUp(const ImportTask& task)
{
  return task.progress && !task.progress(1.0);
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
  std::string error;
  if (text.hasRuns && text.runNames.empty())
    error = nameRuns(text);
  // What names neither runs nor items is shown.
  for (ColumnValues& column : text.columns)
    column.completeValues();
  if (isGivenUp(task))
    return Imported::cancelled();
  if (error.empty())
  {
    takeCodesForNames(text, report);
    error = mistypedCell(text);
  }
  if (error.empty())
    error = nothingToPlot(text);
  if (!error.empty())
    return Imported::failed(error);
  tellConstants(text, report);
  const std::vector<ColumnLevels> levels = makeCategories(text, report);
  for (const ColumnLevels& category : levels)
    text.levelColumns.push_back(category.column);
  if (!hasColumns(text))
    return Imported::failed(noNumbers());
  if (isGivenUp(task))
    return Imported::cancelled();
  Imported imported = text.hasRuns ? buildRuns(text, levels, task.request, task.progress, report)
                                   : Imported(plainTable(text, levels, report));
  if (imported.hasValue())
    imported.value().notes = report.warnings;
  return imported;
}

std::vector<std::string> headersOf(const TableText& text)
{
  std::vector<std::string> names;
  for (const ColumnHeader& header : text.roles.headers)
    names.push_back(header.name);
  return names;
}

} // namespace

Result<ImportedTable> importTable(TableText text, const ImportTask& task, ImportReport& report)
{
  std::string error = applyRequest(text, task.request);
  if (error.empty() && !hasNumbers(text))
    error = noNumbers();
  if (!error.empty())
    return Imported::failed(error);
  text.isScan = task.isScan;
  settleColumns(text, report);
  findOrder(text, task.request, report);
  if (isGivenUp(task))
    return Imported::cancelled();
  const Result<const Layout*> layout = chooseLayout(text, task.request, report);
  if (!layout.hasValue())
    return Imported::without(layout);
  report.layout = layout.value()->name;
  const std::vector<std::string> headers = headersOf(text);
  Result<TableText> arranged =
      layout.value()->arrange(std::move(text), {task.request, task.beside, report, task.progress});
  if (!arranged.hasValue())
    return Imported::without(arranged);
  Imported imported = importArranged(std::move(arranged.value()), task, report);
  report.settled = settledRequest(task.request, report, headers);
  return imported;
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
