#include "vtk/vtkCombinedFilterOrSelectedRows.h"

#include "vtk/CombinedSelection.h"
#include "vtk/RowCopies.h"
#include "vtk/SelectionColumns.h"

#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkTable.h>

#include <limits>

vtkStandardNewMacro(vtkCombinedFilterOrSelectedRows);

namespace
{
struct TimeRange
{
  double first = std::numeric_limits<double>::infinity();
  double last = -std::numeric_limits<double>::infinity();

  bool contains(double time) const { return first <= time && time <= last; }
};

// Comparisons with NaN are false, so NaN times neither widen the range nor lie in it.
TimeRange rangeOf(const std::vector<double>& times, const std::vector<vtkIdType>& rows)
{
  TimeRange range;
  for (const vtkIdType row : rows)
  {
    const double time = times[static_cast<std::size_t>(row)];
    if (time < range.first)
      range.first = time;
    if (time > range.last)
      range.last = time;
  }
  return range;
}
} // namespace

void vtkCombinedFilterOrSelectedRows::DivideRows(vtkTable* table,
                                                 const Talmesh::SelectedRows& selected,
                                                 vtkTable* const outputs[2])
{
  const auto times = Talmesh::rowTimes(this->FindTimeColumn(table), table->GetNumberOfRows());
  const TimeRange range = rangeOf(times, selected.listed);
  std::vector<Talmesh::RowBlock> listed;
  for (const vtkIdType row : selected.listed)
    Talmesh::addRow(listed, row);
  std::vector<Talmesh::RowBlock> compared;
  std::vector<vtkIdType> complement(times.size(), 0);
  for (std::size_t row = 0; row < times.size(); ++row)
  {
    if (!selected.marked[row] && range.contains(times[row]))
    {
      Talmesh::addRow(compared, static_cast<vtkIdType>(row));
      complement[row] = 1;
    }
  }
  this->FillOutput(table, listed, outputs[0]);
  this->FillOutput(table, compared, outputs[1]);
  table->RemoveColumnByName(Talmesh::ComplementSelectionColumn);
  table->AddColumn(Talmesh::makeIdColumn(Talmesh::ComplementSelectionColumn, complement));
}

// The line numbers in the messages below are fixed, so the reports stand at the end of the file.
bool vtkCombinedFilterOrSelectedRows::CheckInputs(bool hasSelectionSource)
{
  if (!hasSelectionSource)
  {
#line 119
    vtkErrorMacro(<< Talmesh::NoSelectionMessage);
    return false;
  }
  if (this->TimeColumnIndex < 0)
  {
    vtkErrorMacro(<< Talmesh::NoTimeColumnMessage);
    return false;
  }
  return true;
}

void vtkCombinedFilterOrSelectedRows::ReportFailedConversion()
{
#line 166
  vtkErrorMacro(<< Talmesh::ConversionFailedMessage);
}
