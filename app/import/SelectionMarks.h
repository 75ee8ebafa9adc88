#ifndef SelectionMarks_h
#define SelectionMarks_h

#include "plot/SelectionFlags.h"
#include "vtk/SelectionColumns.h"

#include <string>

namespace Talmesh::app
{

/// Whether a column is one in which the library marks rows for the selection of the moment.
inline bool isSelectionMark(const std::string& name)
{
  return name == plot::selectionFlagColumn || name == ComplementSelectionColumn ||
         name == ReducedSelectionColumn || name == RemainderSelectionColumn ||
         name == OriginalRowIdsColumn;
}

} // namespace Talmesh::app

#endif
