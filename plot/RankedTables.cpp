#include "plot/RankedTables.h"

#include "external/PlotMetaData.h"
#include "external/UnivariateDensityDerivative.h"
#include "plot/DerivedTables.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"
#include "stats/GridDensity.h"
#include "stats/ParallelParts.h"
#include "stats/RankedParameter.h"

#include <vtkFieldData.h>
#include <vtkIdTypeArray.h>

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>

namespace Talmesh::plot
{

namespace
{

using Lists = std::vector<std::optional<std::vector<double>>>;
using Names = std::vector<std::string>;

constexpr double densityAccuracy = 0.01;

Names parameterLabels(const PlotState& state)
{
  Names labels;
  for (std::size_t k = 0; k < state.metaData->parameterColumns.size(); ++k)
    labels.push_back(parameterLabel(state, k));
  return labels;
}

std::vector<double> thinnedValues(vtkDataArray* column, int stride)
{
  return stats::thinnedValues(static_cast<std::size_t>(column->GetNumberOfTuples()), stride,
                              [column](std::size_t row)
                              { return column->GetComponent(static_cast<vtkIdType>(row), 0); });
}

/// As every slot but 0 takes them: ascending, each once.
std::vector<double> distinctValues(vtkDataArray* column)
{
  const auto rows = static_cast<std::size_t>(column->GetNumberOfTuples());
  auto* doubles = vtkDoubleArray::SafeDownCast(column);
  if (doubles && doubles->GetNumberOfComponents() == 1)
    return stats::distinctValues(doubles->GetPointer(0), rows);
  return stats::distinctValues(rows, [column](std::size_t row)
                               { return column->GetComponent(static_cast<vtkIdType>(row), 0); });
}

/// The ascending values of every parameter; absent where they cannot be read.
Lists parameterValues(const PlotState& state, vtkTable* source, bool ownRuns, const Names& labels)
{
  Lists lists(labels.size());
  const int stride = state.metaData->getStride();
  const auto read = [&](std::size_t k)
  {
    auto* column =
        vtkDataArray::SafeDownCast(columnAt(source, state.metaData->parameterColumns[k]));
    if (column && !labels[k].empty())
      lists[k] = ownRuns ? thinnedValues(column, stride) : distinctValues(column);
  };
  stats::inParallelParts(labels.size(), 1,
                         [&](std::size_t first, std::size_t last)
                         {
                           for (std::size_t k = first; k < last; ++k)
                             read(k);
                         });
  return lists;
}

Names prefixed(const std::string& prefix, const Names& labels)
{
  Names names;
  std::transform(labels.begin(), labels.end(), std::back_inserter(names),
                 [&](const std::string& label) { return prefix + label; });
  return names;
}

bool contains(const Names& names, const std::string& name)
{
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// Whether every column of `table` will be replaced, or is one of `kept` with the right length.
bool holdsOnly(vtkTable* table, const Names& replaced, const Names& kept)
{
  for (int i = 0; i < table->GetNumberOfColumns(); ++i)
  {
    const std::string name = columnName(table, i);
    const bool fits = static_cast<std::size_t>(table->GetColumn(i)->GetNumberOfTuples()) ==
                      stats::densityLocations;
    if (!contains(replaced, name) && !(contains(kept, name) && fits))
      return false;
  }
  return true;
}

/// @return false for null
bool holdsOnlyPrefixed(vtkTable* table, const std::string& one, const std::string& other)
{
  const int columns = table ? static_cast<int>(table->GetNumberOfColumns()) : 0;
  for (int i = 0; i < columns; ++i)
  {
    const std::string name = columnName(table, i);
    if (name.rfind(one, 0) != 0 && name.rfind(other, 0) != 0)
      return false;
  }
  return table != nullptr;
}

void emptySlot(vtkSmartPointer<vtkTable>& slot, const Names& replaced, const Names& kept)
{
  if (!slot || !holdsOnly(slot, replaced, kept))
    slot = vtkSmartPointer<vtkTable>::New();
  for (const std::string& name : replaced)
    slot->RemoveColumnByName(name.c_str());
}

/// Hands the buffer's memory to a new column.
void addColumn(vtkTable* table, const std::string& name, stats::DoubleBuffer& buffer)
{
  const auto size = static_cast<vtkIdType>(buffer.size());
  vtkNew<vtkDoubleArray> column;
  column->SetName(name.c_str());
  column->SetArray(buffer.release(), size, 0, vtkAbstractArray::VTK_DATA_ARRAY_DELETE);
  table->AddColumn(column);
}

/// Beside the columns, which are filled up to one length.
void noteValueCount(vtkTable* table, const std::string& label, std::size_t count)
{
  vtkNew<vtkIdTypeArray> note;
  note->SetName(label.c_str());
  note->InsertNextValue(static_cast<vtkIdType>(count));
  table->GetFieldData()->AddArray(note);
}

void reportIgnoredBounds()
{
  std::cerr << "Warning void PlotContainer::generateRankedParameters(vtkSmartPointer<vtkTable>, "
               "std::size_t): the number of parameter columns does not match the number of "
               "parameter bounds"
            << std::endl;
}

void reportLength(std::size_t found, std::size_t expected)
{
  std::cout << "Huston we have a problem. Encountered a parameter list with size " << found
            << ", expected " << expected << std::endl;
}

RankedInputs presentInputs(const PlotState& state)
{
  return {state.metaData->getStride(), state.metaData->parameterColumns, state.parameterBounds};
}

} // namespace

void generateRankedParameters(PlotState& state, vtkSmartPointer<vtkTable> source,
                              std::size_t tableIndex)
{
  const Names labels = parameterLabels(state);
  Lists lists = parameterValues(state, source, tableIndex == ownRankSlot, labels);
  const bool anyList =
      std::any_of(lists.begin(), lists.end(), [](const auto& list) { return list.has_value(); });

  const std::size_t densityIndex = densitySlotOf(tableIndex);
  if (state.derivedTables.size() <= densityIndex)
    state.derivedTables.resize(densityIndex + 1);
  vtkSmartPointer<vtkTable>& ranks = state.derivedTables[tableIndex];
  vtkSmartPointer<vtkTable>& densities = state.derivedTables[densityIndex];
  Names rankNames = prefixed(rankPrefix, labels);
  const Names sortedNames = prefixed(sortedPrefix, labels);
  rankNames.insert(rankNames.end(), sortedNames.begin(), sortedNames.end());
  emptySlot(ranks, rankNames, {});
  emptySlot(densities, prefixed(densityPrefix, labels), prefixed(locationsPrefix, labels));
  ranks->GetFieldData()->Initialize();

  stats::RankedParameters ranked =
      stats::rankParameters(std::move(lists), state.parameterBounds, estimateKernelDensity);
  if (ranked.boundsIgnored && anyList)
    reportIgnoredBounds();
  for (std::size_t k = 0; k < labels.size(); ++k)
  {
    if (!ranked.parameters[k])
      continue;
    stats::RankedParameter& parameter = *ranked.parameters[k];
    if (parameter.valueCount != ranked.positions && state.options.showsDiagnostics)
      reportLength(parameter.valueCount, ranked.positions);
    noteValueCount(ranks, labels[k], parameter.valueCount);
    addColumn(ranks, rankPrefix + labels[k], parameter.ranks);
    addColumn(ranks, sortedPrefix + labels[k], parameter.sortedValues);
    addColumn(densities, densityPrefix + labels[k], parameter.densities);
    addColumn(densities, locationsPrefix + labels[k], parameter.locations);
  }
  if (source == state.table)
  {
    state.rankedInputs = presentInputs(state);
    state.metaData->rankedDataCurrent = true;
  }
}

void estimateKernelDensity(std::vector<double>& sources, std::vector<double>& targets,
                           double bandwidth, std::vector<double>& density)
{
  if (stats::estimateOnGrid(sources, targets, bandwidth, density))
    return;
  UnivariateDensityDerivative estimate(
      static_cast<int>(sources.size()), static_cast<int>(targets.size()), sources.data(),
      targets.data(), bandwidth, 0, densityAccuracy, density.data());
  estimate.Evaluate();
}

std::optional<std::size_t> rankedValueCount(vtkTable* ranks, const std::string& label)
{
  auto* note =
      ranks ? vtkIdTypeArray::SafeDownCast(ranks->GetFieldData()->GetAbstractArray(label.c_str()))
            : nullptr;
  if (!note || note->GetNumberOfValues() != 1)
    return {};
  return static_cast<std::size_t>(note->GetValue(0));
}

bool hasOwnRanks(const PlotState& state)
{
  const auto& tables = state.derivedTables;
  return holdsOnlyPrefixed(tableInSlot(tables, ownRankSlot), rankPrefix, sortedPrefix) &&
         holdsOnlyPrefixed(tableInSlot(tables, densitySlotOf(ownRankSlot)), densityPrefix,
                           locationsPrefix);
}

void dropOutdatedRanks(PlotState& state)
{
  if (state.rankedInputs && !(presentInputs(state) == *state.rankedInputs))
    state.metaData->rankedDataCurrent = false;
}

} // namespace Talmesh::plot
