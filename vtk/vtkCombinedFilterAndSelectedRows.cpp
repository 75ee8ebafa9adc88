#include "vtk/vtkCombinedFilterAndSelectedRows.h"

#include "vtk/CombinedSelection.h"
#include "vtk/RowCopies.h"
#include "vtk/SelectionColumns.h"

#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

vtkStandardNewMacro(vtkCombinedFilterAndSelectedRows);

namespace
{
/// The distinct times at which rows are selected.
///
/// Runs mostly repeat the times of the run before, so each position within a run remembers the time
/// last looked up there.
class SelectedTimes
{
public:
  static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

  SelectedTimes(const std::vector<bool>& selected, std::vector<double> rowTimes,
                vtkIdType rowsPerRun)
      : times(std::move(rowTimes))
      , stride(static_cast<std::size_t>(rowsPerRun))
      , remembered(std::min(stride, times.size()))
  {
    for (std::size_t row = 0; row < selected.size(); ++row)
    {
      Memory& memory = remembered[row % stride];
      if (!selected[row] || std::isnan(times[row]) || memory.time == times[row])
        continue;
      memory.time = times[row];
      distinct.push_back(times[row]);
    }
    std::sort(distinct.begin(), distinct.end());
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    std::fill(remembered.begin(), remembered.end(), Memory());
  }

  std::size_t size() const { return distinct.size(); }

  /// Place of the row's time among the selected ones; `none` if it is not one of them.
  std::size_t indexOf(std::size_t row)
  {
    Memory& memory = remembered[row % stride];
    if (memory.time != times[row])
      memory = {times[row], find(times[row])};
    return memory.index;
  }

private:
  struct Memory
  {
    double time = std::numeric_limits<double>::quiet_NaN();
    std::size_t index = none;
  };

  std::size_t find(double time) const
  {
    const auto found = std::lower_bound(distinct.begin(), distinct.end(), time);
    return found != distinct.end() && *found == time
               ? static_cast<std::size_t>(found - distinct.begin())
               : none;
  }

  std::vector<double> times;
  std::size_t stride;
  std::vector<double> distinct;
  std::vector<Memory> remembered;
};

/// Which runs are selected at every selected time.
std::vector<bool> acceptedRuns(const std::vector<bool>& selected, vtkIdType stride,
                               SelectedTimes& times)
{
  const auto rowsPerRun = static_cast<std::size_t>(stride);
  std::vector<bool> accepted;
  // For each time the run, counted from 1, that was last seen at it.
  std::vector<std::size_t> lastRun(times.size(), 0);
  for (std::size_t first = 0; first < selected.size(); first += rowsPerRun)
  {
    const std::size_t run = accepted.size() + 1;
    std::size_t timesOfRun = 0;
    for (std::size_t row = first; row < std::min(selected.size(), first + rowsPerRun); ++row)
    {
      const std::size_t time = selected[row] ? times.indexOf(row) : SelectedTimes::none;
      if (time == SelectedTimes::none || lastRun[time] == run)
        continue;
      lastRun[time] = run;
      ++timesOfRun;
    }
    accepted.push_back(timesOfRun == times.size());
  }
  return accepted;
}

/// One value per row, 0 at first.
class Markers
{
public:
  Markers(const char* name, std::size_t rows)
      : column(vtkSmartPointer<vtkIdTypeArray>::New())
  {
    column->SetName(name);
    column->SetNumberOfValues(static_cast<vtkIdType>(rows));
    values = column->GetPointer(0);
    std::fill_n(values, rows, 0);
  }

  void mark(std::size_t row) { values[row] = 1; }
  vtkIdTypeArray* array() const { return column; }

private:
  vtkSmartPointer<vtkIdTypeArray> column;
  vtkIdType* values;
};

struct Split
{
  explicit Split(std::size_t rowCount)
      : complement(Talmesh::ComplementSelectionColumn, rowCount)
      , reduced(Talmesh::ReducedSelectionColumn, rowCount)
      , remainder(Talmesh::RemainderSelectionColumn, rowCount)
  {
  }

  std::vector<vtkIdType> rows[2];
  Markers complement;
  Markers reduced;
  Markers remainder;
};

/// Nothing without a selected time.
std::optional<Split> splitRows(const std::vector<bool>& selected, vtkIdType stride,
                               SelectedTimes times)
{
  if (times.size() == 0)
    return {};
  const std::vector<bool> accepted = acceptedRuns(selected, stride, times);
  Split split(selected.size());
  // Memory of the list that stays short is never touched.
  for (std::vector<vtkIdType>& rows : split.rows)
    rows.reserve(selected.size());
  for (std::size_t i = 0; i < selected.size(); ++i)
  {
    const auto row = static_cast<vtkIdType>(i);
    if (selected[i])
    {
      const bool isAccepted = accepted[static_cast<std::size_t>(row / stride)];
      split.rows[isAccepted ? 0 : 1].push_back(row);
      (isAccepted ? split.remainder : split.reduced).mark(i);
    }
    else if (times.indexOf(i) != SelectedTimes::none)
    {
      split.rows[1].push_back(row);
      split.complement.mark(i);
    }
  }
  return split;
}

void writeMarkers(const Split& split, vtkTable* table)
{
  table->RemoveColumnByName(Talmesh::ComplementSelectionColumn);
  table->AddColumn(split.complement.array());
  table->AddColumn(split.reduced.array());
  table->AddColumn(split.remainder.array());
}
} // namespace

void vtkCombinedFilterAndSelectedRows::DivideRows(vtkTable* table,
                                                  const Talmesh::SelectedRows& selected,
                                                  vtkTable* const outputs[2])
{
  const vtkIdType stride = std::max<vtkIdType>(this->Stride, 1);
  const std::optional<Split> split = splitRows(
      selected.marked, stride,
      SelectedTimes(selected.marked,
                    Talmesh::rowTimes(vtkDoubleArray::SafeDownCast(this->FindTimeColumn(table)),
                                      table->GetNumberOfRows()),
                    stride));
  for (int output = 0; output < 2; ++output)
    this->FillOutput(table, split ? split->rows[output] : std::vector<vtkIdType>(),
                     outputs[output]);
  if (split)
    writeMarkers(*split, table);
}

// The line numbers in the messages below are fixed, so the reports stand at the end of the file.
bool vtkCombinedFilterAndSelectedRows::CheckInputs(bool hasSelectionSource)
{
  if (!hasSelectionSource)
  {
#line 128
    vtkErrorMacro(<< Talmesh::NoSelectionMessage);
    return false;
  }
  if (this->TimeColumnIndex < 0)
  {
#line 134
    vtkErrorMacro(<< Talmesh::NoTimeColumnMessage);
    return false;
  }
  if (this->ParaCount < 0)
  {
#line 139
    vtkErrorMacro(<< Talmesh::NoParaCountMessage);
    return false;
  }
  return true;
}

void vtkCombinedFilterAndSelectedRows::ReportFailedConversion()
{
#line 186
  vtkErrorMacro(<< Talmesh::ConversionFailedMessage);
}
