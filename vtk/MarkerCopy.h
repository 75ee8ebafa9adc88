#ifndef MarkerCopy_h
#define MarkerCopy_h

#include <vtkType.h>

class vtkDataArray;
class vtkIdTypeArray;

namespace Talmesh
{
/// Copies a column of markers, of any type of number, of which all but 0 mark their rows.
/// @return the number of rows marked
vtkIdType copyMarkers(vtkDataArray* markers, vtkIdTypeArray* copy);
} // namespace Talmesh

#endif
