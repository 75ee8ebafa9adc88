#ifndef RowSelections_h
#define RowSelections_h

#include "export/ViewerExport.h"

#include <vtkIdTypeArray.h>
#include <vtkSelection.h>
#include <vtkSmartPointer.h>
#include <vtkType.h>

#include <vector>

class vtkAnnotationLink;
class vtkTable;

namespace Talmesh
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

/// Whether `selection`, which may be null and is not changed, names each row of `table`. No row is
/// named when VTK cannot say which.
TALMESHPLOT_VIEWER_EXPORT std::vector<bool> markedRows(vtkSelection* selection, vtkTable* table);

/// The rows selected after `hit` was pointed at while `before` was selected; both say so for each
/// row of one table.
/// @param mode one of vtkContextScene's selection modes: hit rows are added, subtracted or toggled;
///   any other mode selects nothing else
std::vector<bool> combineRows(const std::vector<bool>& before, const std::vector<bool>& hit,
                              int mode);

/// Combines `hit` with the rows of `table` that the current selection of `link` names, and makes
/// the result its current selection, which the link announces once. The old one is not changed.
void selectRows(vtkAnnotationLink* link, vtkTable* table, const std::vector<bool>& hit, int mode);

/// A new list, ascending, of the rows of `table` that the current selection of `link` names.
vtkSmartPointer<vtkIdTypeArray> listSelectedRows(vtkAnnotationLink* link, vtkTable* table);

} // namespace Talmesh

#endif
