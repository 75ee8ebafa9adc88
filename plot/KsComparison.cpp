#include "plot/KsComparison.h"

#include "external/PlotMetaData.h"
#include "plot/DerivedTables.h"
#include "plot/PlotState.h"
#include "plot/RankedTables.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"
#include "stats/KolmogorovSmirnov.h"
#include "stats/ParallelParts.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace Talmesh::plot
{

namespace
{

struct Sample
{
  double* begin = nullptr;
  double* end = nullptr;
};

Sample sampleOf(vtkTable* table, int column)
{
  vtkDoubleArray* values = doubleColumn(table, column);
  if (!values || values->GetNumberOfComponents() != 1)
    return {};
  double* first = values->GetPointer(0);
  return {first, first + values->GetNumberOfTuples()};
}

KsStatistics compare(const Sample& a, const Sample& b)
{
  const KolmogorovSmirnov<double*, double*> test(a.begin, a.end, b.begin, b.end);
  return {test.pValue(), test.statistic()};
}

constexpr KsStatistics resultOfEmptySamples = {1.0, 0.0};

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

TestedSample sampleIn(const PlotState& state, const ComparedGroup& group, std::size_t k)
{
  TestedSample sample;
  sample.runs = group.runs;
  auto* column =
      vtkDataArray::SafeDownCast(columnAt(group.rows, state.metaData->parameterColumns[k]));
  const std::optional<std::size_t> values = rankedValueCount(group.ranks, parameterLabel(state, k));
  if (!column || !values)
    return sample;
  sample.ranked = true;
  sample.values = *values;
  sample.lacksValues = sample.values < sample.runs && lacksAValue(column);
  sample.filledUp = static_cast<std::size_t>(group.ranks->GetNumberOfRows()) != sample.values;
  return sample;
}

} // namespace

void testKolmogorovSmirnov(PlotState& state, std::size_t first, std::size_t second)
{
  state.ksResults.clear();
  state.testedSamples.clear();
  vtkTable* selected = tableInSlot(state.derivedTables, first);
  vtkTable* others = tableInSlot(state.derivedTables, second);
  if (!selected || !others)
    return;
  std::vector<KsStatistics> results(static_cast<std::size_t>(selected->GetNumberOfColumns()) / 2);
  stats::inParallelParts(results.size(), 1,
                         [&](std::size_t from, std::size_t to)
                         {
                           for (std::size_t k = from; k < to; ++k)
                           {
                             const int column = static_cast<int>(2 * k + 1);
                             results[k] =
                                 compare(sampleOf(selected, column), sampleOf(others, column));
                           }
                         });
  state.ksResults = std::move(results);
}

void alignResults(PlotState& state, std::size_t first)
{
  std::vector<KsStatistics> aligned;
  for (std::size_t k = 0; k < state.metaData->parameterColumns.size(); ++k)
  {
    const std::string sorted = sortedPrefix + parameterLabel(state, k);
    const int column = columnIndex(tableInSlot(state.derivedTables, first), sorted);
    const auto pair = static_cast<std::size_t>(column / 2);
    const bool tested = column >= 0 && pair < state.ksResults.size();
    aligned.push_back(tested ? state.ksResults[pair] : resultOfEmptySamples);
  }
  state.ksResults = aligned;
}

void noteSamples(PlotState& state, const ComparedGroup& selected, const ComparedGroup& others)
{
  std::vector<TestedSamples> samples;
  for (std::size_t k = 0; k < state.metaData->parameterColumns.size(); ++k)
    samples.push_back({sampleIn(state, selected, k), sampleIn(state, others, k)});
  state.testedSamples = std::move(samples);
}

} // namespace Talmesh::plot
