#ifndef UnitText_h
#define UnitText_h

#include <string>
#include <string_view>

namespace Talmesh::app
{

/// Whether a cell below a name is the unit of the column: anything in brackets or parentheses, a
/// well-known unit, or a mark for none (-, 1, a.u.).
bool isUnit(std::string_view text);

/// "time [s]" of "time" and "s" or "[s]"; the name alone where the unit is none or stands in it.
std::string withUnit(const std::string& name, std::string_view unit);

/// Whether a cell says that a value lies beyond what could be measured: <BLQ, BLQ, <LOD, <0.5,
/// >100.
bool isCensored(std::string_view text);

/// Whether a text is a number with commas, points, apostrophes or blanks between its thousands, and
/// perhaps a decimal mark of another kind: 1,234,567, 1.234,5, 1 000,5.
bool looksLikeThousands(std::string_view text);

/// Whether a text is a number with a percent sign behind it.
bool isPercentage(std::string_view text);

} // namespace Talmesh::app

#endif
