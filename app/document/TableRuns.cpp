#include "app/document/TableRuns.h"

#include "app/document/PlotChoice.h"
#include "app/document/ShownCategories.h"
#include "app/import/ColumnRoles.h"
#include "app/import/TranslatedText.h"
#include "external/ColumnNames.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunSelection.h"
#include "plot/RunSplit.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace Talmesh::app
{

TableRuns::TableRuns(PlotContainer& shown)
    : container(shown)
    , points(static_cast<std::size_t>(std::max(0, shown.getMetaData()->getStride())))
    , times(plot::doubleColumn(shown.getTable(), plot::timeColumnOf(stateOf(shown))))
    , positions(times ? 0 : points)
{
  for (const plot::PlacedRun& run : plot::wholeRuns(stateOf(shown)))
    runs.push_back({run.index, run.firstRow});
  if (runs.empty() && !shown.getMetaData()->parameterColumns.empty())
    countRuns();
  std::iota(positions.begin(), positions.end(), 0.0);
}

/// A table of parameters has runs also without a column of their numbers.
void TableRuns::countRuns()
{
  const auto rows = static_cast<std::size_t>(container.getTable()->GetNumberOfRows());
  for (std::size_t run = 0; points > 0 && run < rows / points; ++run)
    runs.push_back({static_cast<int>(run), static_cast<vtkIdType>(run * points)});
}

double TableRuns::runNumber(std::size_t run) const
{
  return runs[run].number;
}

Result<int> TableRuns::column(const std::string& name) const
{
  const Result<int> found = findColumn(container, name);
  if (found.hasValue() && !plot::doubleColumn(container.getTable(), found.value()))
    return Result<int>::failed(
        withValues(translated("RunFilter", "column %1 does not hold numbers"), {name}));
  return found;
}

bool TableRuns::isOfWholeRun(int column) const
{
  const std::vector<int>& parameters = container.getMetaData()->parameterColumns;
  return std::find(parameters.begin(), parameters.end(), column) != parameters.end() ||
         plot::columnName(container.getTable(), column) == selectionPairToString(runIndexItem()) ||
         isConstantInRuns(column);
}

std::optional<double> TableRuns::numberOf(int column, const std::string& text) const
{
  const std::vector<std::string> levels = textsOf(column);
  for (std::size_t level = 0; level < levels.size(); ++level)
    if (levels[level] == text)
      return static_cast<double>(level);
  return std::nullopt;
}

std::vector<std::string> TableRuns::textsOf(int column) const
{
  for (const Category& category : categoriesOf(container))
    if (category.column == plot::columnName(container.getTable(), column))
      return category.levels;
  return {};
}

/// A parameter that the study did not vary is none of its settings.
bool TableRuns::isConstantInRuns(int column) const
{
  vtkDoubleArray* values = plot::doubleColumn(container.getTable(), column);
  if (points < 2 || !values || values == times)
    return false;
  return std::all_of(runs.begin(), runs.end(),
                     [&](const Run& run)
                     {
                       const double* first = values->GetPointer(run.firstRow);
                       return std::all_of(first, first + points,
                                          [first](double value) { return value == *first; });
                     });
}

RunCourse TableRuns::course(std::size_t run, int column, int over) const
{
  const vtkIdType row = runs[run].firstRow;
  const auto valuesOf = [this, row](int of)
  { return plot::doubleColumn(container.getTable(), of)->GetPointer(row); };
  const double* x = over >= 0 ? valuesOf(over) : times ? times->GetPointer(row) : positions.data();
  return {x, valuesOf(column), points};
}

std::string TableRuns::nameOf(int column) const
{
  const std::string& whole = plot::columnName(container.getTable(), column);
  const std::string label = shownName(whole);
  const Result<int> found = findColumn(container, label);
  return found.hasValue() && found.value() == column ? label : whole;
}

std::vector<int> TableRuns::parameters() const
{
  std::vector<int> columns = container.getMetaData()->parameterColumns;
  for (const int item : changing(true))
    columns.push_back(item);
  return columns;
}

std::vector<int> TableRuns::items() const
{
  return changing(false);
}

/// The columns of items, those that change in no run or those that do.
std::vector<int> TableRuns::changing(bool never) const
{
  const std::vector<int>& parameters = container.getMetaData()->parameterColumns;
  vtkTable* table = container.getTable();
  const auto& kinds = container.getColumnItems();
  std::vector<int> columns;
  for (int column = 0; column < static_cast<int>(table->GetNumberOfColumns()); ++column)
  {
    const auto place = static_cast<std::size_t>(column);
    const bool isItem = place >= kinds.size() ||
                        (kinds[place].first != TimeOrValue && kinds[place].first != Parameter);
    const std::string& name = plot::columnName(table, column);
    const bool isOther =
        std::find(parameters.begin(), parameters.end(), column) != parameters.end() ||
        name == selectionPairToString(runIndexItem()) || plot::isSelectionMark(name);
    if (isItem && !isOther && plot::doubleColumn(table, column) &&
        isConstantInRuns(column) == never)
      columns.push_back(column);
  }
  return columns;
}

std::vector<bool> TableRuns::selected() const
{
  std::vector<bool> any(runs.size(), false);
  const auto flags = vtkSmartPointer<vtkIntArray>::Take(container.getCurrentSelection());
  if (!flags)
    return any;
  for (std::size_t run = 0; run < runs.size(); ++run)
  {
    const int* first = flags->GetPointer(runs[run].firstRow);
    any[run] = std::any_of(first, first + points, [](int flag) { return flag != 0; });
  }
  return any;
}

/// Whether runs between two numbers are those between their places, and `run` means the number.
bool TableRuns::numbersAreRuler() const
{
  const auto falls = [](const Run& left, const Run& right) { return left.number >= right.number; };
  const Result<int> named = column("run");
  return std::adjacent_find(runs.begin(), runs.end(), falls) == runs.end() &&
         (!named.hasValue() || plot::columnName(container.getTable(), named.value()) ==
                                   selectionPairToString(runIndexItem()));
}

std::string TableRuns::words(const std::vector<bool>& these) const
{
  const auto count = std::count(these.begin(), these.end(), true);
  if (count == 0)
    return "none";
  if (static_cast<std::size_t>(count) == runs.size())
    return "all";
  constexpr std::size_t shortestStretch = 4; // fewer neighbours are named one by one
  const std::size_t shortest = numbersAreRuler() ? shortestStretch : runs.size();
  std::string stretches;
  std::string singles;
  for (std::size_t run = 0; run < runs.size(); ++run)
  {
    if (!these[run])
      continue;
    const std::size_t first = run;
    while (run + 1 < runs.size() && these[run + 1])
      ++run;
    if (run + 1 - first >= shortest)
      stretches += (stretches.empty() ? "" : " or ") + std::to_string(runs[first].number) +
                   " <= run <= " + std::to_string(runs[run].number);
    else
      for (std::size_t one = first; one <= run; ++one)
        singles += (singles.empty() ? "" : ", ") + std::to_string(runs[one].number);
  }
  return singles.empty() ? stretches
                         : stretches + (stretches.empty() ? "" : " or ") + "runs(" + singles + ')';
}

std::string TableRuns::wordsOf(std::size_t run) const
{
  return "runs(" + std::to_string(runs[run].number) + ')';
}

bool TableRuns::areSelectedWhole() const
{
  const std::vector<bool> marked =
      markedRows(container.getAnnotationLink()->GetCurrentSelection(), container.getTable());
  std::size_t ofWholeRuns = 0;
  for (const Run& run : runs)
  {
    const auto first = marked.begin() + run.firstRow;
    const auto count = static_cast<std::size_t>(
        std::count(first, first + static_cast<std::ptrdiff_t>(points), true));
    if (count != 0 && count != points)
      return false;
    ofWholeRuns += count;
  }
  return ofWholeRuns == static_cast<std::size_t>(std::count(marked.begin(), marked.end(), true));
}

void TableRuns::select(const std::vector<bool>& wanted)
{
  std::vector<vtkIdType> rows;
  for (std::size_t run = 0; run < runs.size(); ++run)
  {
    if (!wanted[run])
      continue;
    for (std::size_t point = 0; point < points; ++point)
      rows.push_back(runs[run].firstRow + static_cast<vtkIdType>(point));
  }
  container.getAnnotationLink()->SetCurrentSelection(makeRowSelection(rows));
}

std::vector<RunColumn> columnsOfRuns(const TableRuns& runs, const std::vector<int>& parameters,
                                     const std::vector<int>& items,
                                     const std::vector<RunFeature>& features)
{
  std::vector<RunColumn> columns;
  for (const int parameter : parameters)
    columns.push_back(runColumn({}, parameter, runs.nameOf(parameter)));
  for (const int item : items)
    for (const RunFeature feature : features)
      columns.push_back(runColumn(feature, item, runs.nameOf(item)));
  return columns;
}

std::vector<RunColumn> allColumnsOfRuns(const TableRuns& runs)
{
  const std::vector<RunFeature>& all = runFeatures();
  std::vector<RunFeature> features(all.begin(), all.begin() + leadingFeatures);
  if (runs.pointsPerRun() == 1)
    features = {RunFeature::Final};
  return columnsOfRuns(runs, runs.parameters(), runs.items(), features);
}

} // namespace Talmesh::app
