#ifndef DateText_h
#define DateText_h

#include <optional>
#include <string_view>

namespace Talmesh::app
{

/// A date or time as ISO 8601 writes it.
struct DateText
{
  /// Since 1970-01-01 00:00 UTC; since midnight for a time of day alone.
  double seconds = 0.0;
  bool hasDate = false;
  bool hasTime = false;
};

/// Reads 2024-03-01, 2024-03-01T12:30, 2024-03-01 12:30:15.25+01:00, 12:30, 12:30:15; none of
/// anything else. Dates without a zone are taken for UTC.
std::optional<DateText> readDate(std::string_view text);

/// Whether a text is a date in another order, as 01.03.2024 and 3/1/2024, whose day and month could
/// be taken for each other.
bool isLocalDate(std::string_view text);

inline bool isDateText(std::string_view text)
{
  return readDate(text).has_value();
}

} // namespace Talmesh::app

#endif
