#ifndef LayoutUnits_h
#define LayoutUnits_h

#include "app/import/Layouts.h"

/// One layout per source of this name.
namespace Talmesh::app
{

/// A row per run and time, the runs one after another.
extern const Layout stackedLayout;
/// A table without an order of its rows.
extern const Layout plainLayout;

} // namespace Talmesh::app

#endif
