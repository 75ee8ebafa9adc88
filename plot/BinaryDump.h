#ifndef BinaryDump_h
#define BinaryDump_h

#include "export/ViewerExport.h"

#include <QByteArray>

namespace Talmesh::plot
{

struct PlotState;

/// The typed items and the table as bytes. The format is frozen: big-endian, without magic number
/// or version,
///   int32 N, then N items: int32 kind, string name;
///   int32 C, int32 R, then C columns: string name, byte isDouble, R values.
/// A string is its length in bytes as uint32 (0xFFFFFFFF for none), then UTF-16; names are Latin-1.
/// A value is an IEEE double where isDouble is 1, otherwise an int32.
///
/// Numeric columns other than int and double are written as double. A column that is not numeric
/// is left out with one line on standard error. What no byte array can hold gives one line and an
/// empty array.
TALMESHPLOT_VIEWER_EXPORT QByteArray writeDump(const PlotState& state);

/// Largest memory that a dump cut short gets for values that it does not hold.
inline constexpr double mostZeroBytes = 256.0 * 1024 * 1024;

/// Memory that the columns of any dump may take beside their values. A dump of more than a
/// sixteenth of it may take 16 times its size.
inline constexpr qint64 mostColumnBytes = 64 * 1024 * 1024;

/// Replaces items and table by those of a dump. From the first byte that is missing on everything
/// reads as zero. A negative count is 0, and no count makes more than the bytes can hold, except
/// for the zeros that a dump cut short calls for, up to `zeroBytes`; beyond them, and with more
/// columns than `mostColumnBytes` allows, there is one line on standard error and the table stays
/// empty.
TALMESHPLOT_VIEWER_EXPORT void readDump(PlotState& state, const QByteArray& bytes,
                                        double zeroBytes = mostZeroBytes);

/// As above, and brings along what belongs to a table: the selection of its flag column, the axis
/// window that is stored with the settings, and the quartiles. Does not draw.
void restoreDump(PlotState& state, const QByteArray& bytes, double zeroBytes = mostZeroBytes);

} // namespace Talmesh::plot

#endif
