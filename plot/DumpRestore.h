#ifndef DumpRestore_h
#define DumpRestore_h

#include "plot/BinaryDump.h"

namespace Talmesh::plot
{

/// Replaces items and table by those of a dump (plot/BinaryDump.h says what a damaged one gives)
/// and brings along what belongs to a table: the selection of its flag column, the axis window that
/// is stored with the settings, and the quartiles. Does not draw.
void restoreDump(PlotState& state, const QByteArray& bytes, double zeroBytes = mostZeroBytes);

} // namespace Talmesh::plot

#endif
