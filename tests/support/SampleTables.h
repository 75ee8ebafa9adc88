#ifndef SampleTables_h
#define SampleTables_h

#include "plot/TableColumns.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

using NamedValues = std::vector<std::pair<std::string, std::vector<double>>>;

/// A table of double columns.
inline vtkSmartPointer<vtkTable> tableOf(const NamedValues& columns)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (const auto& [name, values] : columns)
    table->AddColumn(Talmesh::plot::makeColumn(name, values));
  return table;
}

/// Four columns of five rows with nothing special about them.
inline vtkSmartPointer<vtkTable> plainTable()
{
  return tableOf({{"a", {0, 1, 2, 3, 4}},
                  {"b", {1, 4, 9, 16, 25}},
                  {"c", {5, 3, 1, 3, 5}},
                  {"d", {-1, 0, 1, 0, -1}}});
}

inline void addStringColumn(vtkTable* table, const std::string& name)
{
  vtkNew<vtkStringArray> column;
  column->SetName(name.c_str());
  for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
    column->InsertNextValue("text");
  table->AddColumn(column);
}

inline std::vector<std::string> columnNames(vtkTable* table)
{
  std::vector<std::string> names;
  for (int c = 0; c < table->GetNumberOfColumns(); ++c)
    names.push_back(Talmesh::plot::columnName(table, c));
  return names;
}

/// The values of a column of text; empty for any other and for null.
inline std::vector<std::string> stringsOf(vtkAbstractArray* column)
{
  std::vector<std::string> strings;
  auto* array = vtkStringArray::SafeDownCast(column);
  for (vtkIdType i = 0; array && i < array->GetNumberOfValues(); ++i)
    strings.push_back(array->GetValue(i));
  return strings;
}

/// Runs of `stride` rows: a column "Time" in steps of 0.5 and a column "value" of the values.
inline vtkSmartPointer<vtkTable> runsOfValues(const std::vector<double>& values, int stride)
{
  std::vector<double> time;
  for (std::size_t row = 0; row < values.size(); ++row)
    time.push_back(0.5 * static_cast<double>(row % static_cast<std::size_t>(stride)));
  return tableOf({{"Time", time}, {"value", values}});
}

#endif
