#include "plot/Quartiles.h"

#include "external/ColumnNames.h"
#include "external/PaddedName.h"
#include "external/PlotMetaData.h"
#include "plot/BorrowedColumn.h"
#include "plot/PlotState.h"
#include "plot/RunTables.h"
#include "plot/TableColumns.h"
#include "stats/Quantile.h"

#include <vtkStringArray.h>
#include <vtkTable.h>

#include <boost/make_shared.hpp>

namespace Talmesh::plot
{

namespace
{

/// Columns of the summary.
enum SummaryColumn
{
  minimumColumn = 1,
  lowerColumn = 2,
  medianColumn = 3,
  upperColumn = 4,
  maximumColumn = 5
};

/// A row per position; none without a run.
vtkSmartPointer<vtkTable> summaryOf(const RunMatrix& runs)
{
  std::vector<stats::FiveNumbers> numbers;
  if (runs.runs > 0)
    numbers = stats::fiveNumbersOfPositions(runs.run(0), static_cast<std::size_t>(runs.runs),
                                            static_cast<std::size_t>(runs.positions));
  auto summary = vtkSmartPointer<vtkTable>::New();
  vtkNew<vtkStringArray> names;
  names->SetName("Quantile");
  for (std::size_t position = 0; position < numbers.size(); ++position)
    names->InsertNextValue(paddedName(static_cast<long long>(position), runs.positions));
  summary->AddColumn(names);
  std::size_t quarter = 0;
  for (const char* name : {"Minimum", "First Quartile", "Median", "Third Quartile", "Maximum"})
  {
    std::vector<double> values;
    for (const stats::FiveNumbers& five : numbers)
      values.push_back(five[quarter]);
    summary->AddColumn(makeColumn(name, values));
    ++quarter;
  }
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
  return borrowColumn(derivedTimeName, values, count,
                      boost::make_shared<vtkSmartPointer<vtkDoubleArray>>(source));
}

ColumnVersion versionOf(const PlotState& state, int column)
{
  vtkAbstractArray* array = columnAt(state.table, column);
  return {column, array ? array->GetMTime() : 0};
}

QuartileInputs quartileInputsNow(const PlotState& state)
{
  const PlotMetaData& settings = *state.metaData;
  return {settings.getStride(), versionOf(state, firstOf(settings.xColumns)),
          versionOf(state, firstOf(settings.yColumns))};
}

} // namespace

void generateQuartiles(PlotState& state)
{
  if (state.metaData->getStride() < 1)
    return;
  vtkSmartPointer<vtkTable> summary = summaryOf(runsOf(state));
  addPairs(summary, "Range", minimumColumn, maximumColumn);
  addPairs(summary, "QRange", lowerColumn, upperColumn);
  summary->AddColumn(timeColumn(state, summary->GetNumberOfRows()));
  state.quartileTable = summary;
  state.quartileInputs = quartileInputsNow(state);
}

void refreshQuartiles(PlotState& state)
{
  const bool current = state.quartileTable && state.quartileInputs &&
                       *state.quartileInputs == quartileInputsNow(state);
  if (!current)
    generateQuartiles(state);
}

} // namespace Talmesh::plot
