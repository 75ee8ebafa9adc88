#include "vtk/vtkCombinedRowFilter.h"

#include "vtk/CombinedSelection.h"
#include "vtk/RowCopies.h"
#include "vtk/SelectionColumns.h"

#include <vtkAnnotationLayers.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkInformationVector.h>
#include <vtkSelection.h>
#include <vtkTable.h>

namespace
{
enum InputPort
{
  TablePort,
  SelectionPort,
  AnnotationsPort,
  PortCount
};
} // namespace

vtkCombinedRowFilter::vtkCombinedRowFilter()
{
  this->SetNumberOfInputPorts(PortCount);
  this->SetNumberOfOutputPorts(2);
}

void vtkCombinedRowFilter::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
  os << indent << "AddOriginalRowIdsArray: " << this->AddOriginalRowIdsArray << "\n";
}

void vtkCombinedRowFilter::SetSelectionConnection(vtkAlgorithmOutput* in)
{
  this->SetInputConnection(SelectionPort, in);
}

void vtkCombinedRowFilter::SetAnnotationLayersConnection(vtkAlgorithmOutput* in)
{
  this->SetInputConnection(AnnotationsPort, in);
}

int vtkCombinedRowFilter::FillInputPortInformation(int port, vtkInformation* info)
{
  const char* const types[PortCount] = {"vtkTable", "vtkSelection", "vtkAnnotationLayers"};
  if (port < 0 || port >= PortCount)
    return 0;
  info->Set(vtkAlgorithm::INPUT_REQUIRED_DATA_TYPE(), types[port]);
  if (port != TablePort)
    info->Set(vtkAlgorithm::INPUT_IS_OPTIONAL(), 1);
  return 1;
}

int vtkCombinedRowFilter::RequestData(vtkInformation*, vtkInformationVector** inputVector,
                                      vtkInformationVector* outputVector)
{
  vtkTable* table = vtkTable::GetData(inputVector[TablePort]);
  vtkSelection* selection = vtkSelection::GetData(inputVector[SelectionPort]);
  vtkAnnotationLayers* annotations = vtkAnnotationLayers::GetData(inputVector[AnnotationsPort]);
  vtkTable* const outputs[2] = {vtkTable::GetData(outputVector, 0),
                                vtkTable::GetData(outputVector, 1)};
  if (!table || !this->CheckInputs(selection || annotations))
    return 0;
  const auto combined = Talmesh::combineSelections(selection, annotations);
  if (combined.sources == 0)
  {
    outputs[0]->ShallowCopy(table);
    return 1;
  }
  const auto indices = Talmesh::toRowIndices(combined.selection, table);
  if (!indices)
  {
    this->ReportFailedConversion();
    return 0;
  }
  this->DivideRows(table, Talmesh::selectedRows(indices, table->GetNumberOfRows()), outputs);
  return 1;
}

vtkAbstractArray* vtkCombinedRowFilter::FindTimeColumn(vtkTable* table) const
{
  return this->TimeColumnIndex < table->GetNumberOfColumns()
             ? table->GetColumn(this->TimeColumnIndex)
             : nullptr;
}

void vtkCombinedRowFilter::FillOutput(vtkTable* table, const std::vector<Talmesh::RowBlock>& rows,
                                      vtkTable* output) const
{
  Talmesh::copyColumnStructure(table, output);
  Talmesh::appendRows(table, rows, output);
  if (this->AddOriginalRowIdsArray)
    output->AddColumn(Talmesh::makeIdColumn(Talmesh::OriginalRowIdsColumn, Talmesh::rowsOf(rows)));
}
