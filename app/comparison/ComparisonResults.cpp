#include "app/comparison/ComparisonResults.h"

#include "app/import/ColumnRoles.h"
#include "external/PlotMetaData.h"
#include "plot/DerivedTables.h"
#include "plot/PlotContainer.h"
#include "plot/ShownParameters.h"
#include "plot/TableColumns.h"
#include "stats/FalseDiscovery.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace Talmesh::app
{

namespace
{

/// Where the reaction to a selection puts the rank tables of the two groups of runs.
constexpr std::size_t selectedRanks = plot::rankSlot(1);
constexpr std::size_t otherRanks = plot::rankSlot(2);

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

/// What keeps the values of a parameter in one group from being a sample of its runs.
TestObstacle obstacleIn(const TestedSample& sample)
{
  // Missing values do not count as distinct ones.
  if (sample.values < sample.runs)
    return sample.lacksValues ? TestObstacle::missingValues : TestObstacle::repeatedValues;
  if (sample.values > sample.runs)
    return TestObstacle::changingValues;
  return sample.filledUp ? TestObstacle::otherParameter : TestObstacle::none;
}

/// Nothing for a parameter that was not compared.
std::optional<ComparedParameter> resultOf(const PlotContainer& container, std::size_t k)
{
  const PlotMetaData& settings = *container.getMetaData();
  const TestedSamples& samples = container.getTestedSamples()[k];
  if (!samples.selected.ranked || !samples.others.ranked)
    return {};
  ComparedParameter result;
  result.name = shownName(plot::columnName(container.getTable(), settings.parameterColumns[k]));
  result.selected = samples.selected.runs;
  result.others = samples.others.runs;
  result.obstacle = obstacleIn(samples.selected);
  if (result.obstacle == TestObstacle::none)
    result.obstacle = obstacleIn(samples.others);
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
  const std::size_t tested =
      std::min({container.getKsResults().size(), container.getTestedSamples().size(),
                container.getMetaData()->parameterColumns.size()});
  for (std::size_t k = 0; k < tested; ++k)
    if (const std::optional<ComparedParameter> result = resultOf(container, k))
      comparison.parameters.push_back(*result);
  if (comparison.parameters.empty())
    return {State::noRunSelected, {}};
  if (comparison.parameters.front().others == 0)
    return {State::noOthers, {}};
  adjust(comparison.parameters);
  return comparison;
}

} // namespace Talmesh::app
