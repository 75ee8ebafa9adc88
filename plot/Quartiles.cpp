#include "plot/Quartiles.h"

#include "external/PlotMetaData.h"
#include "plot/BorrowedColumn.h"
#include "plot/PlotState.h"
#include "plot/RunTables.h"
#include "plot/TableColumns.h"
#include "stats/Quantile.h"

#include <vtkMultiBlockDataSet.h>
#include <vtkOrderStatistics.h>
#include <vtkTransposeTable.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>

namespace Talmesh::plot
{

namespace
{

constexpr int intervals = 4;

/// Columns of the summary.
enum SummaryColumn
{
  minimumColumn = 1,
  lowerColumn = 2,
  medianColumn = 3,
  upperColumn = 4,
  maximumColumn = 5
};

/// Five rows, one per quantile; the first column has their names, every further one is a position.
vtkSmartPointer<vtkTable> quantileModel(vtkTable* runs)
{
  vtkNew<vtkOrderStatistics> statistics;
  statistics->SetInputData(vtkStatisticsAlgorithm::INPUT_DATA, runs);
  for (int i = 0; i < runs->GetNumberOfColumns(); ++i)
    statistics->AddColumn(runs->GetColumnName(i));
  statistics->SetLearnOption(true);
  statistics->SetDeriveOption(true);
  statistics->SetNumberOfIntervals(intervals);
  // The averaging form rounds n p instead of testing whether it is whole, which is wrong for odd n.
  // There n p is never whole, so that there is nothing to average.
  const bool averaged = runs->GetNumberOfRows() % 2 == 0;
  statistics->SetQuantileDefinition(averaged ? vtkOrderStatistics::InverseCDFAveragedSteps
                                             : vtkOrderStatistics::InverseCDF);
  statistics->Update();
  auto* model = vtkMultiBlockDataSet::SafeDownCast(
      statistics->GetOutputDataObject(vtkStatisticsAlgorithm::OUTPUT_MODEL));
  return vtkTable::SafeDownCast(model->GetBlock(model->GetNumberOfBlocks() - 1));
}

/// VTK counts NaN as a neighbour of whatever it meets. Summarises such a position anew without.
void summariseWithoutNan(vtkTable* summary, vtkIdType position, vtkDoubleArray* values)
{
  std::vector<double> numbers;
  const double* first = values->GetPointer(0);
  std::copy_if(first, first + values->GetNumberOfTuples(), std::back_inserter(numbers),
               [](double value) { return !std::isnan(value); });
  if (static_cast<vtkIdType>(numbers.size()) == values->GetNumberOfTuples())
    return;
  std::sort(numbers.begin(), numbers.end());
  for (int i = 0; i <= intervals; ++i)
    doubleColumn(summary, minimumColumn + i)
        ->SetValue(position, stats::averagedQuantile(numbers, static_cast<double>(i) / intervals));
}

vtkSmartPointer<vtkTable> summaryOf(vtkTable* runs)
{
  vtkNew<vtkTransposeTable> transpose;
  transpose->SetInputData(quantileModel(runs));
  transpose->SetUseIdColumn(true);
  transpose->Update();
  vtkSmartPointer<vtkTable> summary = transpose->GetOutput();
  for (int i = 0; i < runs->GetNumberOfColumns(); ++i)
    summariseWithoutNan(summary, i, doubleColumn(runs, i));
  return summary;
}

vtkSmartPointer<vtkTable> emptySummary()
{
  auto summary = vtkSmartPointer<vtkTable>::New();
  vtkNew<vtkStringArray> names;
  names->SetName("Quantile");
  summary->AddColumn(names);
  for (const char* name : {"Minimum", "First Quartile", "Median", "Third Quartile", "Maximum"})
    summary->AddColumn(makeColumn(name, {}));
  return summary;
}

void addPairs(vtkTable* summary, const char* name, SummaryColumn lower, SummaryColumn upper)
{
  const vtkIdType rows = summary->GetNumberOfRows();
  vtkNew<vtkDoubleArray> pairs;
  pairs->SetName(name);
  pairs->SetNumberOfComponents(2);
  pairs->SetNumberOfTuples(rows);
  for (vtkIdType i = 0; i < rows; ++i)
    pairs->SetTuple2(i, doubleColumn(summary, lower)->GetValue(i),
                     doubleColumn(summary, upper)->GetValue(i));
  summary->AddColumn(pairs);
}

vtkSmartPointer<vtkDoubleArray> timeColumn(const PlotState& state, vtkIdType count)
{
  vtkSmartPointer<vtkDoubleArray> source =
      doubleColumn(state.table, firstOf(state.metaData->xColumns));
  const bool shareable =
      source && source->GetNumberOfComponents() == 1 && source->GetNumberOfTuples() >= count;
  if (!shareable)
    return copiedTime(state, count);
  double* values = source->GetPointer(0);
  return borrowColumn("Time", values, count,
                      boost::make_shared<vtkSmartPointer<vtkDoubleArray>>(source));
}

} // namespace

void generateQuartiles(PlotState& state)
{
  if (state.metaData->getStride() < 1)
    return;
  vtkSmartPointer<vtkTable> runs = runsByRow(state);
  vtkSmartPointer<vtkTable> summary =
      runs->GetNumberOfRows() > 0 ? summaryOf(runs) : emptySummary();
  addPairs(summary, "Range", minimumColumn, maximumColumn);
  addPairs(summary, "QRange", lowerColumn, upperColumn);
  summary->AddColumn(timeColumn(state, summary->GetNumberOfRows()));
  state.quartileTable = summary;
}

} // namespace Talmesh::plot
