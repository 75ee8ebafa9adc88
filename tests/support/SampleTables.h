#ifndef SampleTables_h
#define SampleTables_h

#include "plot/TableColumns.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

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

#endif
