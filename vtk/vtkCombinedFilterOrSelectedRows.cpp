#include "vtk/vtkCombinedFilterOrSelectedRows.h"

#include "vtk/CombinedSelection.h"
#include "vtk/SelectionColumns.h"

#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkInformationVector.h>
#include <vtkObjectFactory.h>
#include <vtkSelection.h>
#include <vtkTable.h>

#include <algorithm>
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

vtkCombinedFilterOrSelectedRows::vtkCombinedFilterOrSelectedRows()
{
  this->SetNumberOfInputPorts(3);
  this->SetNumberOfOutputPorts(2);
}

void vtkCombinedFilterOrSelectedRows::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
  os << indent << "AddOriginalRowIdsArray: " << this->AddOriginalRowIdsArray << "\n";
}

void vtkCombinedFilterOrSelectedRows::SetSelectionConnection(vtkAlgorithmOutput* in)
{
  this->SetInputConnection(1, in);
}

void vtkCombinedFilterOrSelectedRows::SetAnnotationLayersConnection(vtkAlgorithmOutput* in)
{
  this->SetInputConnection(2, in);
}

int vtkCombinedFilterOrSelectedRows::FillInputPortInformation(int port, vtkInformation* info)
{
  return Talmesh::fillRowFilterPort(port, info);
}

int vtkCombinedFilterOrSelectedRows::RequestData(vtkInformation*,
                                                 vtkInformationVector** inputVector,
                                                 vtkInformationVector* outputVector)
{
  const Talmesh::RowFilterPorts ports(inputVector, outputVector);
  if (!ports.table || !this->CheckInputs(ports.selection || ports.annotations))
    return 0;
  const auto combined = Talmesh::combineSelections(ports.selection, ports.annotations);
  if (combined.sources == 0)
  {
    ports.outputs[0]->ShallowCopy(ports.table);
    return 1;
  }
  const auto indices = Talmesh::toRowIndices(combined.selection, ports.table);
  if (!indices)
  {
    this->ReportFailedConversion();
    return 0;
  }

  const vtkIdType rowCount = ports.table->GetNumberOfRows();
  const auto selected = Talmesh::selectedRows(indices, rowCount);
  vtkAbstractArray* timeColumn = this->TimeColumnIndex < ports.table->GetNumberOfColumns()
                                     ? ports.table->GetColumn(this->TimeColumnIndex)
                                     : nullptr;
  const auto times = Talmesh::rowTimes(timeColumn, rowCount);
  const TimeRange range = rangeOf(times, selected.listed);
  std::vector<vtkIdType> compared;
  std::vector<vtkIdType> complement(static_cast<std::size_t>(rowCount), 0);
  for (std::size_t row = 0; row < complement.size(); ++row)
  {
    if (!selected.marked[row] && range.contains(times[row]))
    {
      compared.push_back(static_cast<vtkIdType>(row));
      complement[row] = 1;
    }
  }

  const std::vector<vtkIdType>* const rows[2] = {&selected.listed, &compared};
  for (int output = 0; output < 2; ++output)
  {
    Talmesh::copyColumnStructure(ports.table, ports.outputs[output]);
    Talmesh::appendRows(ports.table, *rows[output], ports.outputs[output]);
    if (this->AddOriginalRowIdsArray)
      ports.outputs[output]->AddColumn(
          Talmesh::makeIdColumn(Talmesh::OriginalRowIdsColumn, *rows[output]));
  }
  ports.table->RemoveColumnByName(Talmesh::ComplementSelectionColumn);
  ports.table->AddColumn(Talmesh::makeIdColumn(Talmesh::ComplementSelectionColumn, complement));
  return 1;
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
