#include "plot/PlotTable.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

#include <vtkDataSetAttributes.h>
#include <vtkTable.h>

#include <utility>

namespace Talmesh::plot
{

void replaceTable(PlotState& state, vtkSmartPointer<vtkTable> table)
{
  state.table = std::move(table);
  state.summary = {};
  tableChanged(state);
}

vtkSmartPointer<vtkTable> deepCopyOf(vtkTable* table)
{
  auto copy = vtkSmartPointer<vtkTable>::New();
  const int columns = static_cast<int>(table->GetNumberOfColumns());
  copy->GetRowData()->AllocateArrays(columns);
  // A table takes a column of a name that it knows for the one that it has, so names come last.
  for (int i = 0; i < columns; ++i)
  {
    const auto column = vtkSmartPointer<vtkAbstractArray>::Take(table->GetColumn(i)->NewInstance());
    column->DeepCopy(table->GetColumn(i));
    column->SetName(nullptr);
    copy->GetRowData()->AddArray(column);
  }
  for (int i = 0; i < columns; ++i)
    copy->GetColumn(i)->SetName(table->GetColumn(i)->GetName());
  for (int type = 0; type < vtkDataSetAttributes::NUM_ATTRIBUTES; ++type)
  {
    vtkAbstractArray* active = table->GetRowData()->GetAbstractAttribute(type);
    for (int i = 0; active && i < columns; ++i)
    {
      if (table->GetColumn(i) == active)
        copy->GetRowData()->SetActiveAttribute(i, type);
    }
  }
  copy->GetFieldData()->DeepCopy(table->GetFieldData());
  return copy;
}

void tableChanged(PlotState& state)
{
  state.metaData->rankedDataCurrent = false;
}

} // namespace Talmesh::plot
