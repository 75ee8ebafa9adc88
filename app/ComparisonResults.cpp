#include "app/ComparisonResults.h"

#include "app/PlotChoice.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/ShownParameters.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"
#include "stats/FalseDiscovery.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <algorithm>
#include <optional>

namespace Talmesh::app
{

namespace
{

/// Where the reaction to a selection puts the rank tables of the two groups of runs.
constexpr std::size_t selectedRanks = 3;
constexpr std::size_t otherRanks = 6;
constexpr const char* valuesPrefix = "Sorted ";

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
  const auto& tables = container.getDerivedTables();
  return slot < tables.size() ? tables[slot].Get() : nullptr;
}

/// The values of one parameter that were compared; null if it was not.
vtkAbstractArray* comparedValues(const PlotContainer& container, std::size_t slot, std::size_t k)
{
  const std::string name = valuesPrefix + plot::parameterLabel(container.state(), k);
  return plot::columnNamed(derivedTable(container, slot), name);
}

std::size_t countOf(vtkAbstractArray* values)
{
  return values ? static_cast<std::size_t>(values->GetNumberOfTuples()) : 0;
}

/// Nothing for a parameter that was not compared.
std::optional<ComparedParameter> resultOf(const PlotContainer& container, std::size_t k)
{
  const PlotMetaData& settings = *container.getMetaData();
  vtkAbstractArray* selected = comparedValues(container, selectedRanks, k);
  vtkAbstractArray* others = comparedValues(container, otherRanks, k);
  if (!selected || !others)
    return {};
  const KsStatistics& test = container.getKsResults()[k];
  ComparedParameter result;
  result.name = shownName(plot::columnName(container.getTable(), settings.parameterColumns[k]));
  result.statistic = test.statistic;
  result.pValue = test.pValue;
  result.selected = countOf(selected);
  result.others = countOf(others);
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
      std::min(container.getKsResults().size(), container.getMetaData()->parameterColumns.size());
  for (std::size_t k = 0; k < tested; ++k)
    if (const std::optional<ComparedParameter> result = resultOf(container, k))
      comparison.parameters.push_back(*result);
  if (comparison.parameters.empty())
    return {State::noRunSelected, {}};
  const bool others =
      std::any_of(comparison.parameters.begin(), comparison.parameters.end(),
                  [](const ComparedParameter& parameter) { return parameter.others > 0; });
  if (!others)
    return {State::noOthers, {}};
  adjust(comparison.parameters);
  return comparison;
}

} // namespace Talmesh::app
