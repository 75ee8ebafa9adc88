#include "plot/TableColumns.h"

#include <vtkDataArray.h>
#include <vtkDataSetAttributes.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>

namespace Talmesh::plot
{

namespace
{

/// Length of the type word and separator that head a parameter's column name, "Parameter: ".
constexpr std::size_t parameterPrefixLength = 11;

} // namespace

vtkAbstractArray* columnAt(vtkTable* table, int index)
{
  if (!table || index < 0 || index >= table->GetNumberOfColumns())
    return nullptr;
  return table->GetColumn(index);
}

vtkAbstractArray* columnNamed(vtkTable* table, const std::string& name)
{
  return table && !name.empty() ? table->GetRowData()->GetAbstractArray(name.c_str()) : nullptr;
}

std::string columnName(vtkTable* table, int index)
{
  vtkAbstractArray* column = columnAt(table, index);
  return column && column->GetName() ? column->GetName() : "";
}

int columnIndex(vtkTable* table, const std::string& name)
{
  int index = -1;
  if (table && !name.empty())
    table->GetRowData()->GetAbstractArray(name.c_str(), index);
  return index;
}

vtkSmartPointer<vtkDoubleArray> makeColumn(const std::string& name,
                                           const std::vector<double>& values)
{
  auto column = vtkSmartPointer<vtkDoubleArray>::New();
  column->SetName(name.c_str());
  column->SetNumberOfValues(static_cast<vtkIdType>(values.size()));
  std::copy(values.begin(), values.end(), column->GetPointer(0));
  return column;
}

vtkSmartPointer<vtkFloatArray> makeFloatColumn(const std::string& name,
                                               const std::vector<double>& values)
{
  auto column = vtkSmartPointer<vtkFloatArray>::New();
  column->SetName(name.c_str());
  column->SetNumberOfValues(static_cast<vtkIdType>(values.size()));
  std::transform(values.begin(), values.end(), column->GetPointer(0),
                 [](double value) { return static_cast<float>(value); });
  return column;
}

vtkDataArray* plottableColumn(vtkTable* table, int index)
{
  return columnName(table, index).empty() ? nullptr
                                          : vtkDataArray::SafeDownCast(columnAt(table, index));
}

vtkDoubleArray* doubleColumn(vtkTable* table, int index)
{
  return vtkDoubleArray::SafeDownCast(columnAt(table, index));
}

std::string withoutPrefix(const std::string& name)
{
  return name.substr(parameterPrefixLength);
}

int firstOf(const std::vector<int>& columns)
{
  return columns.empty() ? -1 : columns.front();
}

void setFirst(std::vector<int>& columns, int value)
{
  if (columns.empty())
    columns.push_back(value);
  else
    columns.front() = value;
}

bool finiteRange(vtkDataArray* column, double range[2])
{
  if (!column || column->GetNumberOfTuples() == 0)
    return false;
  column->GetFiniteRange(range, 0);
  return std::isfinite(range[0]) && std::isfinite(range[1]) && range[0] <= range[1];
}

bool isBounded(vtkDataArray* column)
{
  double range[2];
  if (!finiteRange(column, range))
    return false;
  column->GetRange(range, 0);
  return std::isfinite(range[0]) && std::isfinite(range[1]);
}

} // namespace Talmesh::plot
