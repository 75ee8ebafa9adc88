#ifndef SelectionModes_h
#define SelectionModes_h

#include <vtkIdTypeArray.h>
#include <vtkSmartPointer.h>

#include <vector>

class vtkAnnotationLink;
class vtkTable;

namespace Talmesh::plot
{

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

} // namespace Talmesh::plot

#endif
