#ifndef ScientificFormat_h
#define ScientificFormat_h

#include "../export/TalmeshPlotExport.h"

#include <QString>

namespace Talmesh
{

/// Writes a number text in scientific notation, "mantissa x base^exponent": ("1250", 2, 10, false)
/// gives "1.25 x 10^3".
/// @param text a number as QString::toDouble reads it. Any other text, an infinity and a NaN are
///   returned unchanged.
/// @param precision decimals of the mantissa; negative values count as 0.
/// @param base base of the power; the mantissa lies in [1, base), also after rounding, and zero
///   keeps exponent 0. A base below 2 returns the text unchanged.
/// @param richText write the exponent as an HTML superscript instead of behind a caret.
TALMESHPLOT_EXPORT QString getScientificFormat(const QString& text, int precision, int base,
                                               bool richText);

} // namespace Talmesh

#endif
