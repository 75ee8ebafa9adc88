#ifndef LayoutChoice_h
#define LayoutChoice_h

#include "app/import/Layouts.h"

namespace Talmesh::app
{

/// The layout that the user names, else the one that fits best. Fails where another one fits about
/// as well; both are named then, and in `report`.
Result<const Layout*> chooseLayout(const TableText& text, const ImportRequest& request,
                                   ImportReport& report);

/// Says in a request what a candidate stands for.
/// @return whether the table can be read so; commas between thousands are not
bool takeCandidate(const ImportCandidate& candidate, ImportRequest& request);

} // namespace Talmesh::app

#endif
