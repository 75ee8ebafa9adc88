#include "external/ScientificFormat.h"

#include <algorithm>
#include <cmath>

namespace
{

struct ScientificNumber
{
  QString mantissa;
  int exponent;
};

ScientificNumber decimal(double number, int precision)
{
  // Decimal output is correctly rounded, which a division by a power of ten is not.
  const QString text = QString::number(number, 'e', precision);
  const int mark = text.indexOf(QLatin1Char('e'));
  return {text.left(mark), text.mid(mark + 1).toInt()};
}

ScientificNumber withBase(double number, int precision, int base)
{
  int exponent =
      number == 0.0
          ? 0
          : static_cast<int>(std::floor(std::log(std::fabs(static_cast<long double>(number))) /
                                        std::log(static_cast<long double>(base))));
  const auto mantissa = [&]()
  { return static_cast<double>(number / std::pow(static_cast<long double>(base), exponent)); };
  // The logarithm may miss an exact power by one in either direction.
  if (number != 0.0 && std::fabs(mantissa()) < 1.0)
    --exponent;
  if (std::fabs(QString::number(mantissa(), 'f', precision).toDouble()) >= base)
    ++exponent;
  return {QString::number(mantissa(), 'f', precision), exponent};
}

} // namespace

QString Talmesh::getScientificFormat(const QString& text, int precision, int base, bool richText)
{
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  if (!isNumber || !std::isfinite(number) || base < 2)
    return text;
  const int decimals = std::max(precision, 0);
  const ScientificNumber result =
      base == 10 ? decimal(number, decimals) : withBase(number, decimals, base);
  const QString pattern =
      richText ? QStringLiteral("%1 x %2<sup>%3</sup>") : QStringLiteral("%1 x %2^%3");
  return pattern.arg(result.mantissa).arg(base).arg(result.exponent);
}
