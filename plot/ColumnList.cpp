#include "plot/ColumnList.h"

#include <vtkDataSetAttributes.h>

namespace Talmesh::plot
{

void ColumnList::add(const Name& name, vtkSmartPointer<vtkDataArray> column)
{
  // A table appends unnamed columns without a search.
  column->SetName(nullptr);
  const std::size_t end = columns.size();
  const std::size_t position = name ? positions.emplace(*name, end).first->second : end;
  if (position == end)
    columns.emplace_back();
  columns[position] = {name, std::move(column)};
}

vtkSmartPointer<vtkTable> ColumnList::makeTable() const
{
  auto table = vtkSmartPointer<vtkTable>::New();
  vtkDataSetAttributes* rowData = table->GetRowData();
  rowData->AllocateArrays(static_cast<int>(columns.size()));
  for (const auto& entry : columns)
    rowData->AddArray(entry.second);
  for (const auto& [name, column] : columns)
  {
    if (name)
      column->SetName(name->c_str());
  }
  return table;
}

} // namespace Talmesh::plot
