#ifndef TableColumns_h
#define TableColumns_h

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkSmartPointer.h>

#include <string>
#include <vector>

class vtkTable;

namespace Talmesh::plot
{

/// Column `index` of `table`; null for a null table or an index outside it.
vtkAbstractArray* columnAt(vtkTable* table, int index);

/// Column `name` of `table`; null when there is none. Never warns.
vtkAbstractArray* columnNamed(vtkTable* table, const std::string& name);

/// Name of column `index`; empty for an index outside the table and for an unnamed column.
std::string columnName(vtkTable* table, int index);

/// Position of the first column named `name`; -1 when there is none.
int columnIndex(vtkTable* table, const std::string& name);

/// A double column that holds `values`.
vtkSmartPointer<vtkDoubleArray> makeColumn(const std::string& name,
                                           const std::vector<double>& values);

/// A single-precision column that holds `values`.
vtkSmartPointer<vtkFloatArray> makeFloatColumn(const std::string& name,
                                               const std::vector<double>& values);

/// Column `index` if a chart can draw it: numeric and named. Null otherwise.
vtkDataArray* plottableColumn(vtkTable* table, int index);

/// Column `index` if it is a vtkDoubleArray. Null otherwise.
vtkDoubleArray* doubleColumn(vtkTable* table, int index);

/// `name` without its first 11 characters.
/// @throws std::out_of_range for a shorter name
std::string withoutPrefix(const std::string& name);

/// The first entry of a column list; -1, which is no column, for an empty list.
int firstOf(const std::vector<int>& columns);

/// Sets the first entry of a column list, which gains one when it is empty.
void setFirst(std::vector<int>& columns, int value);

/// Range of the finite part of component 0.
/// @return false when there is no finite value; `range` is then unspecified
bool finiteRange(vtkDataArray* column, double range[2]);

/// Whether component 0 holds a finite value and no infinity. NaN does no harm. For charts that
/// compute the range of an axis from the column by themselves and would not finish an infinite one.
bool isBounded(vtkDataArray* column);

} // namespace Talmesh::plot

#endif
