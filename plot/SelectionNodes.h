#ifndef SelectionNodes_h
#define SelectionNodes_h

#include "export/ViewerExport.h"

#include <vtkSelection.h>
#include <vtkSmartPointer.h>
#include <vtkType.h>

#include <vector>

class vtkIdTypeArray;

namespace Talmesh::plot
{

/// A selection of table rows in the one form in which this library makes them: a single node of
/// field type ROW and content type INDICES. Nothing checks that a table has the rows.
TALMESHPLOT_VIEWER_EXPORT vtkSmartPointer<vtkSelection>
makeRowSelection(const std::vector<vtkIdType>& rows);

/// As above, with `rows` as the node's list, which is not copied. Null makes an empty selection.
vtkSmartPointer<vtkSelection> wrapRowSelection(vtkIdTypeArray* rows);

/// A copy that shares nothing with `selection` and, unlike VTK's, does not keep the plot alive in
/// which it was made. Null makes an empty selection.
vtkSmartPointer<vtkSelection> copySelection(vtkSelection* selection);

} // namespace Talmesh::plot

#endif
