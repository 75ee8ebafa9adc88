#ifndef NumberText_h
#define NumberText_h

#include <string_view>

namespace Talmesh::app
{

/// How the text of one cell reads.
struct NumberText
{
  enum class Kind
  {
    Missing,
    Number,
    Text
  };
  Kind kind = Kind::Missing;
  /// The value of a number; NaN otherwise.
  double value;
  bool decimalPoint = false;
  bool decimalComma = false;
};

/// Reads one cell, whatever the locale. Surrounding blanks, also non-breaking ones, are ignored.
/// Empty cells and the words for a missing value (NA, N/A, NaN, null, none, "-", ".") are missing;
/// "inf" and "infinity" with an optional sign are numbers. A minus may be the typesetters' U+2212,
/// an exponent that of Fortran (1.0D-03). A number too large for a double is infinite, one too
/// small is 0.
/// @param commas whether a comma may stand for the decimal point.
NumberText readNumber(std::string_view text, bool commas);

} // namespace Talmesh::app

#endif
