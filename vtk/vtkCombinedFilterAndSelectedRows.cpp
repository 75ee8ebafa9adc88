#include "vtk/vtkCombinedFilterAndSelectedRows.h"

#include "vtk/CombinedSelection.h"
#include "vtk/SelectionColumns.h"

#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <set>

vtkStandardNewMacro(vtkCombinedFilterAndSelectedRows);

namespace
{
using Runs = std::set<vtkIdType>;
using RunsAtTime = std::map<double, Runs>;

RunsAtTime selectedRunsByTime(const std::vector<bool>& selected, const std::vector<double>& times,
                              vtkIdType stride)
{
  RunsAtTime runs;
  for (std::size_t row = 0; row < selected.size(); ++row)
  {
    if (selected[row] && !std::isnan(times[row]))
      runs[times[row]].insert(static_cast<vtkIdType>(row) / stride);
  }
  return runs;
}

Runs runsAtEveryTime(const RunsAtTime& runsAtTime)
{
  Runs accepted = runsAtTime.begin()->second;
  for (auto later = std::next(runsAtTime.begin()); later != runsAtTime.end(); ++later)
  {
    Runs common;
    std::set_intersection(accepted.begin(), accepted.end(), later->second.begin(),
                          later->second.end(), std::inserter(common, common.end()));
    accepted.swap(common);
  }
  return accepted;
}

struct Split
{
  explicit Split(std::size_t rowCount)
      : complement(rowCount, 0)
      , reduced(rowCount, 0)
      , remainder(rowCount, 0)
  {
  }

  std::vector<vtkIdType> rows[2];
  std::vector<vtkIdType> complement;
  std::vector<vtkIdType> reduced;
  std::vector<vtkIdType> remainder;
};

Split splitRows(const std::vector<bool>& selected, const std::vector<double>& times,
                vtkIdType stride, const RunsAtTime& runsAtTime)
{
  const Runs accepted = runsAtEveryTime(runsAtTime);
  Split split(selected.size());
  for (std::size_t i = 0; i < selected.size(); ++i)
  {
    const auto row = static_cast<vtkIdType>(i);
    if (selected[i])
    {
      const bool isAccepted = accepted.count(row / stride) != 0;
      split.rows[isAccepted ? 0 : 1].push_back(row);
      (isAccepted ? split.remainder : split.reduced)[i] = 1;
    }
    // A map's find() would take NaN for equal to every key.
    else if (!std::isnan(times[i]) && runsAtTime.count(times[i]) != 0)
    {
      split.rows[1].push_back(row);
      split.complement[i] = 1;
    }
  }
  return split;
}

void writeMarkers(const Split& split, vtkTable* table)
{
  table->RemoveColumnByName(Talmesh::ComplementSelectionColumn);
  table->AddColumn(Talmesh::makeIdColumn(Talmesh::ComplementSelectionColumn, split.complement));
  table->AddColumn(Talmesh::makeIdColumn(Talmesh::ReducedSelectionColumn, split.reduced));
  table->AddColumn(Talmesh::makeIdColumn(Talmesh::RemainderSelectionColumn, split.remainder));
}
} // namespace

void vtkCombinedFilterAndSelectedRows::DivideRows(vtkTable* table,
                                                  const Talmesh::SelectedRows& selected,
                                                  vtkTable* const outputs[2])
{
  const auto times = Talmesh::rowTimes(vtkDoubleArray::SafeDownCast(this->FindTimeColumn(table)),
                                       table->GetNumberOfRows());
  const vtkIdType stride = std::max<vtkIdType>(this->Stride, 1);
  const RunsAtTime runsAtTime = selectedRunsByTime(selected.marked, times, stride);
  Split split(0);
  if (!runsAtTime.empty())
    split = splitRows(selected.marked, times, stride, runsAtTime);
  for (int output = 0; output < 2; ++output)
    this->FillOutput(table, split.rows[output], outputs[output]);
  if (!runsAtTime.empty())
    writeMarkers(split, table);
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
