#include "plot/RunTables.h"

#include "external/PaddedName.h"
#include "external/PlotMetaData.h"
#include "external/vtkPrepareKMeansTable.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"

#include <vtkTransposeTable.h>

#include <string>

namespace Talmesh::plot
{

vtkSmartPointer<vtkTable> runsByRow(const PlotState& state)
{
  const std::string values = columnName(state.table, firstOf(state.metaData->yColumns));
  if (values.empty())
    return vtkSmartPointer<vtkTable>::New();
  vtkNew<vtkPrepareKMeansTable> regroup;
  regroup->SetInputData(state.table);
  regroup->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_ROWS, values.c_str());
  regroup->SetStride(state.metaData->getStride());
  regroup->Update();
  return regroup->GetOutput();
}

vtkSmartPointer<vtkTable> transposed(vtkTable* table)
{
  vtkNew<vtkTransposeTable> transpose;
  transpose->SetInputData(table);
  transpose->SetAddIdColumn(false);
  transpose->Update();
  vtkSmartPointer<vtkTable> result = transpose->GetOutput();
  const vtkIdType columns = result->GetNumberOfColumns();
  for (vtkIdType i = 0; i < columns; ++i)
    result->GetColumn(i)->SetName(paddedName(i, columns).c_str());
  return result;
}

vtkSmartPointer<vtkDoubleArray> copiedTime(const PlotState& state, vtkIdType count)
{
  auto* source =
      vtkDataArray::SafeDownCast(columnAt(state.table, firstOf(state.metaData->xColumns)));
  auto time = vtkSmartPointer<vtkDoubleArray>::New();
  time->SetName("Time");
  time->SetNumberOfValues(count);
  for (vtkIdType i = 0; i < count; ++i)
  {
    const bool known = source && i < source->GetNumberOfTuples();
    time->SetValue(i, known ? source->GetComponent(i, 0) : static_cast<double>(i));
  }
  return time;
}

} // namespace Talmesh::plot
