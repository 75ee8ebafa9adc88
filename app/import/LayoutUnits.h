#ifndef LayoutUnits_h
#define LayoutUnits_h

#include "app/import/Layouts.h"

/// One layout per source of this name.
namespace Talmesh::app
{

/// A table of measurements or simulations in the PEtab format.
extern const Layout petabLayout;
/// A row per value: run, time, which item, its value.
extern const Layout tidyLayout;
/// A row per time, a column per run.
extern const Layout wideLayout;
/// A row per run.
extern const Layout rowsLayout;
/// A row per run and time, the runs one after another.
extern const Layout stackedLayout;
/// A table without an order of its rows.
extern const Layout plainLayout;

} // namespace Talmesh::app

#endif
