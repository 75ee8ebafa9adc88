#ifndef FiniteTable_h
#define FiniteTable_h

#include <vtkSmartPointer.h>

class vtkTable;

namespace Talmesh::plot
{

/// The table for charts that span their axes over all values of a column: `table` itself, unless
/// some of its columns hold infinite values beside finite ones. Then another table of the same
/// columns, in which those are copies that have no number there.
vtkSmartPointer<vtkTable> withoutInfinities(vtkTable* table);

} // namespace Talmesh::plot

#endif
