#include "app/formats/XlsxDates.h"

#include "app/import/AsciiText.h"

#include <QDateTime>
#include <QString>

#include <cmath>

namespace Talmesh::app
{

namespace
{

constexpr double msOfDay = 86400000.0;
/// Excel ends with the year 9999.
constexpr double lastDay = 2958465.0;

std::string timeText(const QTime& time)
{
  return time
      .toString(time.msec() == 0 ? QStringLiteral("HH:mm:ss") : QStringLiteral("HH:mm:ss.zzz"))
      .toStdString();
}

} // namespace

XlsxShown shownByFormat(int builtIn)
{
  if (builtIn == 22)
    return XlsxShown::DateAndTime;
  if (builtIn >= 14 && builtIn <= 17)
    return XlsxShown::Date;
  const bool time = (builtIn >= 18 && builtIn <= 21) || (builtIn >= 45 && builtIn <= 47);
  return time ? XlsxShown::Time : XlsxShown::Number;
}

XlsxShown shownByCode(const std::string& code)
{
  bool date = false;
  bool time = false;
  for (std::size_t at = 0; at < code.size() && code[at] != ';'; ++at)
  {
    const char c = toLower(code[at]);
    if (c == '"' || c == '[')
    {
      const std::size_t end = code.find(c == '"' ? '"' : ']', at + 1);
      // Hours that go on beyond a day stand in brackets, like colours.
      time = time || (c == '[' && end == at + 2 && toLower(code[at + 1]) == 'h');
      if (end == std::string::npos)
        break;
      at = end;
    }
    else if (c == '\\' || c == '_' || c == '*')
      ++at;
    else
    {
      date = date || c == 'y' || c == 'd';
      time = time || c == 'h' || c == 's';
    }
  }
  if (date)
    return time ? XlsxShown::DateAndTime : XlsxShown::Date;
  return time ? XlsxShown::Time : XlsxShown::Number;
}

std::string dateText(const std::string& number, XlsxShown shown, bool from1904)
{
  bool read = false;
  const double days = QString::fromStdString(number).toDouble(&read);
  if (!read || !(days >= 0.0 && days <= lastDay))
    return number;
  const double whole = std::floor(days);
  const auto ms = static_cast<qint64>(std::round((days - whole) * msOfDay));
  if (shown == XlsxShown::Time)
    return whole == 0.0 && ms < static_cast<qint64>(msOfDay)
               ? timeText(QTime::fromMSecsSinceStartOfDay(static_cast<int>(ms)))
               : number;
  // Excel counts a 29th of February 1900, which never was.
  const QDate first = from1904       ? QDate(1904, 1, 1)
                      : whole < 60.0 ? QDate(1899, 12, 31)
                                     : QDate(1899, 12, 30);
  const QDateTime moment =
      QDateTime(first, QTime(0, 0), Qt::UTC).addDays(static_cast<qint64>(whole)).addMSecs(ms);
  const std::string date = moment.date().toString(Qt::ISODate).toStdString();
  return shown == XlsxShown::Date && ms == 0 ? date : date + 'T' + timeText(moment.time());
}

} // namespace Talmesh::app
