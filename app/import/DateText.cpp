#include "app/import/DateText.h"

#include "app/import/Utf8Text.h"

namespace Talmesh::app
{

namespace
{

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

/// Takes parts of a text from its front.
class Parts
{
public:
  explicit Parts(std::string_view text_)
      : text(text_)
  {
  }

  bool isEmpty() const { return text.empty(); }

  bool take(char c)
  {
    if (text.empty() || text.front() != c)
      return false;
    text.remove_prefix(1);
    return true;
  }

  /// A number of exactly so many digits.
  bool number(std::size_t digits, int& value)
  {
    if (text.size() < digits)
      return false;
    value = 0;
    for (std::size_t i = 0; i < digits; ++i)
    {
      if (!isDigit(text[i]))
        return false;
      value = 10 * value + (text[i] - '0');
    }
    text.remove_prefix(digits);
    return true;
  }

  /// Digits behind a point or a comma.
  double fraction()
  {
    if (text.size() < 2 || (text.front() != '.' && text.front() != ',') || !isDigit(text[1]))
      return 0.0;
    double value = 0.0;
    double place = 0.1;
    for (text.remove_prefix(1); !text.empty() && isDigit(text.front()); text.remove_prefix(1))
    {
      value += place * (text.front() - '0');
      place *= 0.1;
    }
    return value;
  }

private:
  std::string_view text;
};

/// Days from 1970-01-01 in the Gregorian calendar, counted in eras of 400 years whose years begin
/// in March, so that leap days come last.
long long daysFrom1970(int year, int month, int day)
{
  const int y = month <= 2 ? year - 1 : year;
  const int era = y / 400;
  const int yearOfEra = y - era * 400;
  const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return static_cast<long long>(era) * 146097 + dayOfEra - 719468;
}

bool readDay(Parts& parts, double& seconds)
{
  int year = 0;
  int month = 0;
  int day = 0;
  if (!parts.number(4, year) || !parts.take('-') || !parts.number(2, month) || !parts.take('-') ||
      !parts.number(2, day))
    return false;
  if (month < 1 || month > 12 || day < 1 || day > 31)
    return false;
  seconds = 86400.0 * static_cast<double>(daysFrom1970(year, month, day));
  return true;
}

bool readClock(Parts& parts, double& seconds)
{
  int hours = 0;
  int minutes = 0;
  int whole = 0;
  if (!parts.number(2, hours) || !parts.take(':') || !parts.number(2, minutes))
    return false;
  if (parts.take(':') && !parts.number(2, whole))
    return false;
  seconds = 3600.0 * hours + 60.0 * minutes + whole + parts.fraction();
  return hours < 24 && minutes < 60 && whole <= 60;
}

/// Seconds that the clocks of a zone are ahead.
bool readZone(Parts& parts, double& seconds)
{
  if (parts.isEmpty() || parts.take('Z'))
    return true;
  const bool behind = parts.take('-');
  int hours = 0;
  int minutes = 0;
  if ((!behind && !parts.take('+')) || !parts.number(2, hours))
    return false;
  parts.take(':');
  if (!parts.isEmpty() && !parts.number(2, minutes))
    return false;
  seconds = (behind ? -1.0 : 1.0) * (3600.0 * hours + 60.0 * minutes);
  return hours < 24 && minutes < 60;
}

} // namespace

std::optional<DateText> readDate(std::string_view cell)
{
  const std::string_view text = withoutOuterBlanks(cell);
  constexpr std::size_t shortest = 5;
  if (text.size() < shortest || !isDigit(text.front()))
    return std::nullopt;
  DateText date;
  Parts parts(text);
  date.hasDate = text[2] != ':';
  if (date.hasDate && !readDay(parts, date.seconds))
    return std::nullopt;
  date.hasTime = !date.hasDate || parts.take('T') || parts.take(' ');
  double clock = 0.0;
  double zone = 0.0;
  if (date.hasTime && (!readClock(parts, clock) || (date.hasDate && !readZone(parts, zone))))
    return std::nullopt;
  date.seconds += clock - zone;
  return parts.isEmpty() ? std::make_optional(date) : std::nullopt;
}

bool isLocalDate(std::string_view cell)
{
  const std::string_view text = withoutOuterBlanks(cell);
  std::size_t at = 0;
  const auto digits = [&]
  {
    const std::size_t begin = at;
    while (at < text.size() && isDigit(text[at]))
      ++at;
    return at - begin;
  };
  for (int part = 0; part < 2; ++part)
  {
    const std::size_t length = digits();
    if (length < 1 || length > 2 || at == text.size() ||
        (text[at] != '.' && text[at] != '/' && text[at] != '-'))
      return false;
    ++at;
  }
  return digits() == 4 && (at == text.size() || text[at] == ' ' || text[at] == ',');
}

} // namespace Talmesh::app
