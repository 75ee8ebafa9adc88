#include "app/import/RunTableImport.h"

#include "app/import/RunGrouping.h"
#include "app/import/RunTableBuilder.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"
#include "plot/SelectionFlags.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>

#include <algorithm>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// A layout whose score is this part of the best one could be meant as well.
constexpr double closeScores = 0.8;

bool isTextColumn(const ColumnValues& column)
{
  return column.texts > 0 && column.numbers == 0;
}

/// Whether the first column is the one that pandas and R put before a table unless told otherwise:
/// without a name, it counts the rows.
bool firstColumnCountsRows(const TableText& text)
{
  const ColumnValues& first = text.columns.front();
  if (!text.roles.headers.front().unnamed || first.numbers != text.rows)
    return false;
  const double start = first.values.front();
  for (std::size_t row = 0; row < text.rows; ++row)
    if (first.values[row] != start + static_cast<double>(row))
      return false;
  const bool otherNumbers =
      std::any_of(text.columns.begin() + 1, text.columns.end(),
                  [](const ColumnValues& column) { return column.numbers > 0; });
  return otherNumbers && (start == 0.0 || start == 1.0);
}

/// The columns that are no data, one flag each, and what to say of them.
struct LeftOutColumns
{
  std::vector<bool> flags;
  std::vector<std::string> notes;
};

LeftOutColumns leftOutOf(const TableText& text)
{
  LeftOutColumns leftOut;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    const ColumnHeader& header = text.roles.headers[i];
    const bool marks = !header.typed && plot::isSelectionMark(header.name);
    leftOut.flags.push_back(marks || isTextColumn(text.columns[i]));
    if (marks)
      leftOut.notes.push_back(withValues(
          translated("RunTableImport", "The column %1 marks a former selection and is left out."),
          {quotedForMessage(header.name)}));
    else if (leftOut.flags.back())
      leftOut.notes.push_back(
          withValues(translated("RunTableImport", "The column %1 holds text and is left out."),
                     {quotedForMessage(header.name)}));
  }
  if (firstColumnCountsRows(text))
  {
    leftOut.flags.front() = true;
    leftOut.notes.push_back(translated(
        "RunTableImport", "The first column has no name and counts the rows; it is left out."));
  }
  return leftOut;
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
          {std::to_string(column.firstText.line), quotedForMessage(column.firstText.text),
           quotedForMessage(text.roles.headers[i].name)});
  }
  return {};
}

vtkSmartPointer<vtkTable> plainTable(TableText& text, const std::vector<bool>& leftOut)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    ColumnValues& column = text.columns[i];
    if (leftOut[i])
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

std::string noteOnUnvaried(const std::string& parameter)
{
  return withValues(
      translated("RunTableImport", "The parameter %1 is the same in all runs and is left out."),
      {quotedForMessage(parameter)});
}

/// Why the rows are no runs, or in which order their points are, when there is no time; else empty.
std::string noteOnMissingTime(const TableText& text, std::size_t pointsPerRun)
{
  if (text.roles.timeColumn >= 0 || pointsPerRun == 1)
    return {};
  return text.roles.describeRuns()
             ? translated("RunTableImport", "There is no time column, so the points of a run are "
                                            "in the order of the file.")
             : translated("RunTableImport",
                          "There is no time column, so the rows are not taken for runs.");
}

Result<RunGrouping> groupingOf(const TableText& text)
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

std::string noNumbers()
{
  return translated("RunTableImport", "not a table: no column holds numbers");
}

bool hasNumbers(const TableText& text)
{
  return std::any_of(text.columns.begin(), text.columns.end(),
                     [](const ColumnValues& column) { return column.numbers > 0; });
}

void describe(const ImportedTable& imported, ImportReport& report)
{
  report.warnings.insert(report.warnings.end(), imported.notes.begin(), imported.notes.end());
  report.runs = imported.runs->numberOfTrajectories;
  report.fewestPoints = imported.runs->pointsPerTrajectory;
  report.mostPoints = imported.runs->pointsPerTrajectory;
  for (const auto& [kind, name] : imported.runs->items)
    if (kind == Parameter)
      report.parameters.push_back(name);
    else if (kind != TimeOrValue)
      report.items.push_back(name);
}

std::string namesOf(const std::vector<LayoutCandidate>& candidates)
{
  std::string names;
  for (const LayoutCandidate& candidate : candidates)
    names += (names.empty() ? "--layout " : ", --layout ") + candidate.layout + " (" +
             candidate.reason + ')';
  return names;
}

/// The layout that the user names, else the one that fits best.
Result<const Layout*> chosenLayout(const TableText& text, const ImportRequest& request,
                                   ImportReport& report)
{
  using Chosen = Result<const Layout*>;
  if (!request.layout.empty())
  {
    if (const Layout* named = findLayout(request.layout))
      return named;
    return Chosen::failed(withValues(translated("RunTableImport", "there is no layout %1"),
                                     {quotedForMessage(request.layout)}));
  }
  std::vector<LayoutCandidate> candidates = candidatesFor(text, request);
  if (candidates.empty())
    return Chosen::failed(noNumbers());
  report.reasons.push_back(candidates.front().reason);
  const double close = closeScores * candidates.front().score;
  candidates.erase(std::remove_if(candidates.begin(), candidates.end(),
                                  [close](const LayoutCandidate& candidate)
                                  { return candidate.score < close; }),
                   candidates.end());
  if (candidates.size() == 1)
    return findLayout(candidates.front().layout);
  report.candidates = candidates;
  return Chosen::failed(withValues(
      translated("RunTableImport", "it is not clear how the table is laid out; say which: %1"),
      {namesOf(candidates)}));
}

Result<ImportedTable> importArranged(TableText text, ImportReport& report)
{
  using Imported = Result<ImportedTable>;
  LeftOutColumns leftOut = leftOutOf(text);
  if (std::find(leftOut.flags.begin(), leftOut.flags.end(), false) == leftOut.flags.end())
    return Imported::failed(noNumbers());
  ImportedTable imported;
  imported.notes = std::move(leftOut.notes);
  const auto addNote = [&imported](const std::string& note)
  {
    if (!note.empty())
      imported.notes.push_back(note);
  };
  if (!text.hasRuns)
  {
    addNote(noteOnMissingTime(text, 0));
    imported.table = plainTable(text, leftOut.flags);
    return imported;
  }
  const Result<RunGrouping> grouping = groupingOf(text);
  if (!grouping.hasValue())
    return Imported::without(grouping);
  addNote(noteOnMissingTime(text, grouping.value().pointsPerRun));
  const BuiltRuns built = buildRunTable(text, leftOut.flags, grouping.value());
  imported.runs = built.runs;
  for (const std::string& parameter : built.unvariedParameters)
    addNote(noteOnUnvaried(parameter));
  describe(imported, report);
  return imported;
}

} // namespace

Result<ImportedTable> importTable(TableText text, const ImportTask& task, ImportReport& report)
{
  using Imported = Result<ImportedTable>;
  const std::string refused = hasNumbers(text) ? mistypedCell(text) : noNumbers();
  if (!refused.empty())
    return Imported::failed(refused);
  const Result<const Layout*> layout = chosenLayout(text, task.request, report);
  if (!layout.hasValue())
    return Imported::without(layout);
  report.layout = layout.value()->name;
  Result<TableText> arranged =
      layout.value()->arrange(std::move(text), {task.request, task.beside, report});
  return arranged.hasValue() ? importArranged(std::move(arranged.value()), report)
                             : Imported::without(arranged);
}

Result<ImportedTable> importTable(std::string_view bytes, const ImportTask& task,
                                  ImportReport& report)
{
  Result<TableText> read = readTableText(bytes, task.progress, task.passed);
  return read.hasValue() ? importTable(std::move(read.value()), task, report)
                         : Result<ImportedTable>::without(read);
}

Result<ImportedTable> importRunTable(std::string_view bytes, const ImportProgress& progress,
                                     const TextPassed& passed)
{
  ImportReport report;
  return importTable(bytes, {{}, progress, passed, {}}, report);
}

} // namespace Talmesh::app
