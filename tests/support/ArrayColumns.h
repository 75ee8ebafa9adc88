#ifndef ArrayColumns_h
#define ArrayColumns_h

#include <vtkSmartPointer.h>

#include <vector>

/// A column of any array type; null gives it no name.
template <class Array>
vtkSmartPointer<Array> makeColumn(const char* name, const std::vector<double>& values)
{
  auto column = vtkSmartPointer<Array>::New();
  column->SetName(name);
  for (const double value : values)
    column->InsertNextTuple1(value);
  return column;
}

#endif
