#include "vtk/vtkCombinedFilterAndSelectedRows.h"

#include "stats/ParallelParts.h"
#include "vtk/CombinedSelection.h"
#include "vtk/KeptMemory.h"
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
#include <vector>

vtkStandardNewMacro(vtkCombinedFilterAndSelectedRows);

namespace
{
/// The rows to divide.
struct Rows
{
  std::size_t count() const { return selected.size(); }
  std::size_t countRuns() const { return count() / stride + (count() % stride != 0 ? 1 : 0); }

  const std::vector<bool>& selected;
  const double* times;
  std::size_t stride;
};

/// The distinct times at which rows are selected, ascending. Runs mostly repeat the times of the
/// run before: only a time that differs from the last one at its position is looked at.
std::vector<double> selectedTimes(const Rows& rows)
{
  std::vector<double> last(std::min(rows.stride, rows.count()),
                           std::numeric_limits<double>::quiet_NaN());
  std::vector<double> distinct;
  std::size_t position = 0;
  for (std::size_t row = 0; row < rows.count(); ++row, ++position)
  {
    if (position == rows.stride)
      position = 0;
    const double time = rows.times[row];
    if (!rows.selected[row] || std::isnan(time) || last[position] == time)
      continue;
    last[position] = time;
    distinct.push_back(time);
  }
  std::sort(distinct.begin(), distinct.end());
  distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
  return distinct;
}

/// Finds times among the selected ones. Each position within a run remembers the time last looked
/// up there.
class TimeFinder
{
public:
  static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

  TimeFinder(const std::vector<double>& selectedOnes, std::size_t positions)
      : distinct(selectedOnes)
      , remembered(positions)
  {
  }

  /// Place of the time; `none` if it is not one of them.
  std::size_t indexOf(double time, std::size_t position)
  {
    Memory& memory = remembered[position];
    if (memory.time != time)
      memory = {time, find(time)};
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

  const std::vector<double>& distinct;
  std::vector<Memory> remembered;
};

/// One value per row.
class Markers
{
public:
  Markers(const char* name, std::size_t rows)
  {
    column->SetName(name);
    Talmesh::giveRoom(column, static_cast<vtkIdType>(rows));
    values = column->GetPointer(0);
  }

  void set(std::size_t row, bool marked) { values[row] = marked ? 1 : 0; }
  vtkIdTypeArray* array() const { return column; }

private:
  vtkSmartPointer<vtkIdTypeArray> column = vtkSmartPointer<vtkIdTypeArray>::New();
  vtkIdType* values;
};

using Blocks = std::vector<Talmesh::RowBlock>;

struct Split
{
  explicit Split(std::size_t rowCount)
      : complement(Talmesh::ComplementSelectionColumn, rowCount)
      , reduced(Talmesh::ReducedSelectionColumn, rowCount)
      , remainder(Talmesh::RemainderSelectionColumn, rowCount)
  {
  }

  Blocks outputs[2];
  Markers complement;
  Markers reduced;
  Markers remainder;
};

/// Divides runs that follow each other.
class RunDivider
{
public:
  RunDivider(const Rows& allRows, const std::vector<double>& selectedTimes)
      : rows(allRows)
      , finder(selectedTimes, std::min(rows.stride, rows.count()))
      , lastRun(selectedTimes.size(), 0)
  {
  }

  /// Marks the rows of a run, and adds them to the blocks.
  void divide(std::size_t run, Split& marks, Blocks (&outputs)[2])
  {
    const std::size_t first = run * rows.stride;
    const std::size_t end = std::min(rows.count(), first + rows.stride);
    const bool accepted = isAccepted(run + 1, first, end);
    for (std::size_t row = first; row < end; ++row)
    {
      const bool selected = rows.selected[row];
      const bool compared =
          !selected && finder.indexOf(rows.times[row], row - first) != TimeFinder::none;
      marks.complement.set(row, compared);
      marks.reduced.set(row, selected && !accepted);
      marks.remainder.set(row, selected && accepted);
      if (selected || compared)
        Talmesh::addRow(outputs[selected && accepted ? 0 : 1], static_cast<vtkIdType>(row));
    }
  }

private:
  /// Whether a run is selected at every selected time.
  /// @param number counted from 1
  bool isAccepted(std::size_t number, std::size_t first, std::size_t end)
  {
    std::size_t timesOfRun = 0;
    for (std::size_t row = first; row < end; ++row)
    {
      const std::size_t time =
          rows.selected[row] ? finder.indexOf(rows.times[row], row - first) : TimeFinder::none;
      if (time == TimeFinder::none || lastRun[time] == number)
        continue;
      lastRun[time] = number;
      ++timesOfRun;
    }
    return timesOfRun == lastRun.size();
  }

  const Rows& rows;
  TimeFinder finder;
  std::vector<std::size_t> lastRun; ///< that was seen at each time, counted from 1
};

/// Nothing without a selected time.
std::optional<Split> splitRows(const Rows& rows)
{
  const std::vector<double> times = selectedTimes(rows);
  if (times.empty())
    return {};
  Split split(rows.count());
  // A part has a place for each selected time, which must not take longer than its rows.
  const std::size_t runsOfPart =
      std::max<std::size_t>(std::max(Talmesh::stats::numbersOfPart, times.size()) / rows.stride, 1);
  struct Outputs
  {
    Blocks blocks[2];
  };
  std::vector<Outputs> parts(rows.countRuns() / runsOfPart + 1);
  Talmesh::stats::inParallelParts(rows.countRuns(), runsOfPart,
                                  [&](std::size_t first, std::size_t last)
                                  {
                                    RunDivider divider(rows, times);
                                    for (std::size_t run = first; run < last; ++run)
                                      divider.divide(run, split, parts[first / runsOfPart].blocks);
                                  });
  for (const Outputs& part : parts)
    for (int output = 0; output < 2; ++output)
      split.outputs[output].insert(split.outputs[output].end(), part.blocks[output].begin(),
                                   part.blocks[output].end());
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
  auto* const column = vtkDoubleArray::SafeDownCast(this->FindTimeColumn(table));
  const vtkIdType rowCount = table->GetNumberOfRows();
  std::vector<double> copied;
  const bool plain =
      column && column->GetNumberOfComponents() == 1 && column->GetNumberOfValues() >= rowCount;
  if (!plain)
    copied = Talmesh::rowTimes(column, rowCount);
  const std::optional<Split> split =
      splitRows({selected.marked, plain ? column->GetPointer(0) : copied.data(),
                 static_cast<std::size_t>(std::max<vtkIdType>(this->Stride, 1))});
  for (int output = 0; output < 2; ++output)
    this->FillOutput(table, split ? split->outputs[output] : Blocks(), outputs[output]);
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
