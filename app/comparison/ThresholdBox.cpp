#include "app/comparison/ThresholdBox.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

namespace Talmesh::app
{

namespace
{

/// The most that the base class takes. With fewer it would round.
constexpr int allDecimals = 323;
/// A sum shows its rounding error in the digits behind these.
constexpr int stepDigits = 12;
constexpr double firstRelativeStep = 1e-4;

/// In a number without groups a point cannot be taken for a separator of thousands.
QLocale withoutGroups(QLocale locale)
{
  locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator |
                          QLocale::OmitLeadingZeroInExponent);
  return locale;
}

std::optional<double> numberIn(const QString& text, const QLocale& locale)
{
  for (const QLocale& writing : {locale, QLocale::c()})
  {
    bool isNumber = false;
    const double number = withoutGroups(writing).toDouble(text.trimmed(), &isNumber);
    if (isNumber && std::isfinite(number))
      return number;
  }
  return {};
}

} // namespace

ThresholdBox::ThresholdBox(Steps steps, QWidget* parent)
    : QDoubleSpinBox(parent)
    , kind(steps)
{
  setRange(0.0, 1.0);
  setDecimals(allDecimals);
}

QString ThresholdBox::textFromValue(double value) const
{
  return withoutGroups(locale()).toString(value, 'g', QLocale::FloatingPointShortest);
}

double ThresholdBox::valueFromText(const QString& text) const
{
  return numberIn(text, locale()).value_or(value());
}

QValidator::State ThresholdBox::validate(QString& text, int&) const
{
  // The beginnings of numbers, among them 5 of 5e-3.
  static const QRegularExpression beginning(
      QStringLiteral("^\\s*\\d*([.,]\\d*)?([eE][-+]?\\d*)?\\s*$"));
  const std::optional<double> number = numberIn(text, locale());
  if (number && *number >= minimum() && *number <= maximum())
    return QValidator::Acceptable;
  return beginning.match(text).hasMatch() ? QValidator::Intermediate : QValidator::Invalid;
}

double ThresholdBox::stepped(int count) const
{
  if (kind == Steps::equal)
    return value() + count * singleStep();
  if (value() <= 0.0)
    return count * firstRelativeStep;
  // From a power of ten the steps down are as small as those that lead back to it.
  const double within = count < 0 ? value() / 1.01 : value();
  return value() + count * std::pow(10.0, std::floor(std::log10(within)) - 1.0);
}

void ThresholdBox::stepBy(int count)
{
  interpretText();
  const double wished = std::clamp(stepped(count), minimum(), maximum());
  setValue(QString::number(wished, 'g', stepDigits).toDouble());
}

} // namespace Talmesh::app
