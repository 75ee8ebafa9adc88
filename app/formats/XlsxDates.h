#ifndef XlsxDates_h
#define XlsxDates_h

#include <string>

namespace Talmesh::app
{

/// What a number of a workbook is shown as.
enum class XlsxShown
{
  Number,
  Date,
  DateAndTime,
  Time
};

/// What the number of a built-in format shows.
XlsxShown shownByFormat(int builtIn);

/// What the code of a format shows: "yyyy-mm-dd" a date, "0.00 \"d\"" a number.
XlsxShown shownByCode(const std::string& code);

/// A day number of a workbook, counted from 1900 or 1904, as ISO date and time; the number as it is
/// when it is none, or out of the calendar.
std::string dateText(const std::string& number, XlsxShown shown, bool from1904);

} // namespace Talmesh::app

#endif
