#include "app/import/RunTableImport.h"

#include "app/import/CategoryColumns.h"
#include "app/import/LayoutChoice.h"
#include "app/import/RoleChoice.h"
#include "app/import/TextRuns.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>

#include <algorithm>
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
  std::string error;
  if (text.hasRuns && text.runNames.empty())
    error = nameRuns(text);
  if (error.empty())
    error = mistypedCell(text);
  if (!error.empty())
    return Imported::failed(error);
  const std::vector<ColumnLevels> levels = makeCategories(text, report);
  for (const ColumnLevels& category : levels)
    text.levelColumns.push_back(category.column);
  if (!hasColumns(text))
    return Imported::failed(noNumbers());
  Imported imported = text.hasRuns ? buildRuns(text, levels, task.request, report)
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
