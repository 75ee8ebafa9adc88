#ifndef SelectionNodes_h
#define SelectionNodes_h

#include <vtkSmartPointer.h>
#include <vtkType.h>

#include <vector>

class vtkIdTypeArray;
class vtkSelection;

namespace Talmesh::plot
{

/// A selection of table rows in the one form in which this library makes them: a single node of
/// field type ROW and content type INDICES. Nothing checks that a table has the rows.
/// @param rows used and not copied; null makes an empty selection
vtkSmartPointer<vtkSelection> makeRowSelection(vtkIdTypeArray* rows);

/// As above, from a copy of `rows`.
vtkSmartPointer<vtkSelection> makeRowSelection(const std::vector<vtkIdType>& rows);

} // namespace Talmesh::plot

#endif
