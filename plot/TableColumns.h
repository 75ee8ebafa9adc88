#ifndef TableColumns_h
#define TableColumns_h

#include "export/ViewerExport.h"

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkSmartPointer.h>

#include <string>
#include <vector>

class vtkTable;

namespace Talmesh::plot
{

/// Column `index` of `table`; null for a null table or an index outside it.
TALMESHPLOT_VIEWER_EXPORT vtkAbstractArray* columnAt(vtkTable* table, int index);

/// Column `name` of `table`; null when there is none. Never warns.
TALMESHPLOT_VIEWER_EXPORT vtkAbstractArray* columnNamed(vtkTable* table, const std::string& name);

/// Name of column `index`; empty for an index outside the table and for an unnamed column.
TALMESHPLOT_VIEWER_EXPORT std::string columnName(vtkTable* table, int index);

/// Position of the first column named `name`; -1 when there is none.
TALMESHPLOT_VIEWER_EXPORT int columnIndex(vtkTable* table, const std::string& name);

/// A double column that holds `values`.
TALMESHPLOT_VIEWER_EXPORT vtkSmartPointer<vtkDoubleArray>
makeColumn(const std::string& name, const std::vector<double>& values);

/// A single-precision column that holds `values`.
TALMESHPLOT_VIEWER_EXPORT vtkSmartPointer<vtkFloatArray>
makeFloatColumn(const std::string& name, const std::vector<double>& values);

/// Column `index` if a chart can draw it: numeric and named. Null otherwise.
TALMESHPLOT_VIEWER_EXPORT vtkDataArray* plottableColumn(vtkTable* table, int index);

/// Column `index` if it is a vtkDoubleArray. Null otherwise.
TALMESHPLOT_VIEWER_EXPORT vtkDoubleArray* doubleColumn(vtkTable* table, int index);

/// `name` without its first 11 characters.
/// @throws std::out_of_range for a shorter name
std::string withoutPrefix(const std::string& name);

/// The first entry of a column list; -1, which is no column, for an empty list.
TALMESHPLOT_VIEWER_EXPORT int firstOf(const std::vector<int>& columns);

/// Sets the first entry of a column list, which gains one when it is empty.
void setFirst(std::vector<int>& columns, int value);

/// Range of the finite part of component 0.
/// @return false when there is no finite value; `range` is then unspecified
TALMESHPLOT_VIEWER_EXPORT bool finiteRange(vtkDataArray* column, double range[2]);

/// Whether component 0 holds a finite value and no infinity. NaN does no harm. For charts that
/// compute the range of an axis from the column by themselves and would not finish an infinite one.
bool isBounded(vtkDataArray* column);

} // namespace Talmesh::plot

#endif
