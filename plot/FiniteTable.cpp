#include "plot/FiniteTable.h"

#include "plot/TableColumns.h"

#include <vtkDataArray.h>
#include <vtkDataSetAttributes.h>
#include <vtkTable.h>

#include <cmath>
#include <limits>

namespace Talmesh::plot
{

namespace
{

bool needsCopy(vtkDataArray* column)
{
  double range[2];
  return finiteRange(column, range) && !isBounded(column);
}

vtkSmartPointer<vtkDataArray> finiteCopyOf(vtkDataArray* column)
{
  const auto copy = vtkSmartPointer<vtkDataArray>::Take(column->NewInstance());
  copy->DeepCopy(column);
  for (vtkIdType i = 0; i < copy->GetNumberOfTuples(); ++i)
  {
    if (std::isinf(copy->GetComponent(i, 0)))
      copy->SetComponent(i, 0, std::numeric_limits<double>::quiet_NaN());
  }
  return copy;
}

} // namespace

vtkSmartPointer<vtkTable> withoutInfinities(vtkTable* table)
{
  vtkSmartPointer<vtkTable> finite = table;
  for (int i = 0; i < table->GetNumberOfColumns(); ++i)
  {
    vtkDataArray* column = plottableColumn(table, i);
    // Charts look columns up by name and find the first one.
    if (!needsCopy(column) || columnIndex(table, columnName(table, i)) != i)
      continue;
    if (finite == table)
    {
      finite = vtkSmartPointer<vtkTable>::New();
      finite->ShallowCopy(table);
    }
    finite->GetRowData()->AddArray(finiteCopyOf(column));
  }
  return finite;
}

} // namespace Talmesh::plot
