#include "external/vtkPrepareKMeansTable.h"

#include "external/PaddedName.h"

#include <vtkDataArray.h>
#include <vtkDataSetAttributes.h>
#include <vtkDoubleArray.h>
#include <vtkInformation.h>
#include <vtkInformationVector.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkTable.h>

vtkStandardNewMacro(vtkPrepareKMeansTable);

void vtkPrepareKMeansTable::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
  os << indent << "Stride: " << this->Stride << "\n";
}

int vtkPrepareKMeansTable::RequestData(vtkInformation*, vtkInformationVector** inputVector,
                                       vtkInformationVector* outputVector)
{
  vtkTable* output = vtkTable::GetData(outputVector);
  output->Initialize();
  // Asking for an array that was never chosen is an error to VTK.
  if (!this->GetInformation()->Has(vtkAlgorithm::INPUT_ARRAYS_TO_PROCESS()))
    return 1;
  auto* values = vtkDataArray::SafeDownCast(this->GetInputAbstractArrayToProcess(0, inputVector));
  // Without a whole run there are no columns either: a stride far beyond the table would allocate
  // one array per row that is not there.
  if (!values || this->Stride < 1 || values->GetNumberOfTuples() < this->Stride)
    return 1;

  const vtkIdType runs = values->GetNumberOfTuples() / this->Stride;
  vtkDataSetAttributes* rowData = output->GetRowData();
  rowData->AllocateArrays(this->Stride);
  for (int position = 0; position < this->Stride; ++position)
  {
    vtkNew<vtkDoubleArray> column;
    column->SetNumberOfValues(runs);
    for (vtkIdType run = 0; run < runs; ++run)
      column->SetValue(run, values->GetComponent(run * this->Stride + position, 0));
    // A table looks for a name among all its columns before it adds a column.
    rowData->AddArray(column);
    column->SetName(Talmesh::paddedName(position, this->Stride).c_str());
  }
  return 1;
}
