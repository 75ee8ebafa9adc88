#include "app/comparison/ComparisonResults.h"

#include "app/import/ColumnRoles.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/DerivedTables.h"
#include "plot/PlotContainer.h"
#include "plot/RankedTables.h"
#include "plot/ShownParameters.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"
#include "stats/FalseDiscovery.h"
#include "vtk/SelectionColumns.h"

#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <optional>

namespace Talmesh::app
{

namespace
{

/// Where the reaction to a selection puts the rows of the two groups of runs and, behind them,
/// their rank tables.
constexpr std::size_t selectedRanks = plot::rankSlot(1);
constexpr std::size_t selectedRows = selectedRanks - 1;
constexpr std::size_t otherRanks = plot::rankSlot(2);
constexpr std::size_t otherRows = otherRanks - 1;

bool isAnyRowSelected(const PlotContainer& container)
{
  const auto flags = vtkSmartPointer<vtkIntArray>::Take(container.getCurrentSelection());
  if (!flags)
    return false;
  const int* first = flags->GetPointer(0);
  const int* end = first + flags->GetNumberOfValues();
  return std::find(first, end, 1) != end;
}

vtkTable* derivedTable(const PlotContainer& container, std::size_t slot)
{
  return plot::tableInSlot(container.getDerivedTables(), slot);
}

/// Whether one parameter's values were ranked.
bool isRanked(const PlotContainer& container, vtkTable* ranks, std::size_t k)
{
  return plot::columnNamed(ranks, plot::sortedPrefix + plot::parameterLabel(stateOf(container), k));
}

/// The number of runs with a row that one of the columns marks. A selection covers some rows of
/// every run, so that the numbers of rows do not tell it.
std::size_t markedRuns(const PlotContainer& container, std::initializer_list<const char*> columns)
{
  const vtkIdType stride = std::max(container.getMetaData()->getStride(), 1);
  const vtkIdType rows = container.getTable()->GetNumberOfRows();
  std::vector<bool> marked(static_cast<std::size_t>(rows / stride + 1), false);
  for (const char* name : columns)
    if (auto* marks = vtkIdTypeArray::SafeDownCast(plot::columnNamed(container.getTable(), name)))
      for (vtkIdType row = 0; row < std::min(rows, marks->GetNumberOfTuples()); ++row)
        if (marks->GetTypedComponent(row, 0) != 0)
          marked[static_cast<std::size_t>(row / stride)] = true;
  return static_cast<std::size_t>(std::count(marked.begin(), marked.end(), true));
}

/// One of the two groups.
struct GroupOfRuns
{
  vtkTable* rows = nullptr;
  vtkTable* ranks = nullptr;
  std::size_t runs = 0;
};

bool lacksAValue(vtkDataArray* column)
{
  const auto isMissing = [](double value) { return std::isnan(value); };
  if (auto* doubles = vtkDoubleArray::SafeDownCast(column))
    return std::any_of(doubles->GetPointer(0),
                       doubles->GetPointer(0) + doubles->GetNumberOfValues(), isMissing);
  for (vtkIdType row = 0; row < column->GetNumberOfTuples(); ++row)
    if (isMissing(column->GetComponent(row, 0)))
      return true;
  return false;
}

/// What keeps the values of parameter `k` in one group from being a sample of its runs.
TestObstacle obstacleIn(const PlotContainer& container, const GroupOfRuns& group, std::size_t k)
{
  const int index = container.getMetaData()->parameterColumns[k];
  auto* column = vtkDataArray::SafeDownCast(plot::columnAt(group.rows, index));
  const std::optional<std::size_t> values =
      plot::rankedValueCount(group.ranks, plot::parameterLabel(stateOf(container), k));
  if (!column || !values)
    return TestObstacle::missingValues;
  // Missing values do not count as distinct ones.
  if (*values < group.runs)
    return lacksAValue(column) ? TestObstacle::missingValues : TestObstacle::repeatedValues;
  if (*values > group.runs)
    return TestObstacle::changingValues;
  const bool filledUp = static_cast<std::size_t>(group.ranks->GetNumberOfRows()) != *values;
  return filledUp ? TestObstacle::otherParameter : TestObstacle::none;
}

/// Nothing for a parameter that was not compared.
std::optional<ComparedParameter> resultOf(const PlotContainer& container,
                                          const GroupOfRuns& selected, const GroupOfRuns& others,
                                          std::size_t k)
{
  const PlotMetaData& settings = *container.getMetaData();
  if (!isRanked(container, selected.ranks, k) || !isRanked(container, others.ranks, k))
    return {};
  ComparedParameter result;
  result.name = shownName(plot::columnName(container.getTable(), settings.parameterColumns[k]));
  result.selected = selected.runs;
  result.others = others.runs;
  result.obstacle = obstacleIn(container, selected, k);
  if (result.obstacle == TestObstacle::none)
    result.obstacle = obstacleIn(container, others, k);
  KsStatistics test = container.getKsResults()[k];
  if (result.obstacle != TestObstacle::none)
    test.statistic = test.pValue = std::numeric_limits<double>::quiet_NaN();
  result.statistic = test.statistic;
  result.pValue = test.pValue;
  result.significant =
      plot::isSignificant(test, settings.getPThreshold(), settings.getKsThreshold());
  return result;
}

void adjust(std::vector<ComparedParameter>& parameters)
{
  std::vector<double> pValues;
  for (const ComparedParameter& parameter : parameters)
    pValues.push_back(parameter.pValue);
  const std::vector<double> adjusted = stats::benjaminiHochberg(pValues);
  for (std::size_t k = 0; k < parameters.size(); ++k)
    parameters[k].adjustedPValue = adjusted[k];
}

} // namespace

void dropOutdatedTests(PlotContainer& container)
{
  if (!derivedTable(container, selectedRanks) || !derivedTable(container, otherRanks))
    container.ksTestSelection(selectedRanks, otherRanks);
}

Comparison comparisonOf(const PlotContainer& container)
{
  using State = Comparison::State;
  if (container.getMetaData()->parameterColumns.empty())
    return {State::noParameters, {}};
  if (!isAnyRowSelected(container))
    return {State::nothingSelected, {}};
  Comparison comparison;
  comparison.state = State::compared;
  const GroupOfRuns selected = {derivedTable(container, selectedRows),
                                derivedTable(container, selectedRanks),
                                markedRuns(container, {RemainderSelectionColumn})};
  const GroupOfRuns others = {
      derivedTable(container, otherRows), derivedTable(container, otherRanks),
      markedRuns(container, {ComplementSelectionColumn, ReducedSelectionColumn})};
  const std::size_t tested =
      std::min(container.getKsResults().size(), container.getMetaData()->parameterColumns.size());
  for (std::size_t k = 0; k < tested; ++k)
    if (const std::optional<ComparedParameter> result = resultOf(container, selected, others, k))
      comparison.parameters.push_back(*result);
  if (comparison.parameters.empty())
    return {State::noRunSelected, {}};
  if (others.runs == 0)
    return {State::noOthers, {}};
  adjust(comparison.parameters);
  return comparison;
}

} // namespace Talmesh::app
