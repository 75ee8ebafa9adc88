#ifndef DumpRestore_h
#define DumpRestore_h

class QByteArray;

namespace Talmesh::plot
{

struct PlotState;

/// Replaces items and table by those of a dump (plot/BinaryDump.h says what a damaged one gives)
/// and brings along what belongs to a table: the selection of its flag column, the axis window that
/// is stored with the settings, and the quartiles. Does not draw.
void restoreDump(PlotState& state, const QByteArray& bytes);

} // namespace Talmesh::plot

#endif
