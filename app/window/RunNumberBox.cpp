#include "app/window/RunNumberBox.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr int nowhere = -1;

} // namespace

void RunNumberBox::setNumbers(std::vector<int> numbers)
{
  const QSignalBlocker silent(this);
  runNumbers = std::move(numbers);
  setRange(0, std::max(0, static_cast<int>(runNumbers.size()) - 1));
  setValue(0);
  // The same place may have another number now.
  lineEdit()->setText(textFromValue(value()));
}

QString RunNumberBox::textFromValue(int place) const
{
  const bool known = place >= 0 && place < static_cast<int>(runNumbers.size());
  return QString::number(known ? runNumbers[static_cast<std::size_t>(place)] : place);
}

int RunNumberBox::placeOf(const QString& text) const
{
  bool isNumber = false;
  const int number = text.trimmed().toInt(&isNumber);
  const auto found = std::find(runNumbers.begin(), runNumbers.end(), number);
  return isNumber && found != runNumbers.end() ? static_cast<int>(found - runNumbers.begin())
                                               : nowhere;
}

int RunNumberBox::valueFromText(const QString& text) const
{
  const int place = placeOf(text);
  return place == nowhere ? value() : place;
}

QValidator::State RunNumberBox::validate(QString& text, int&) const
{
  if (placeOf(text) != nowhere)
    return QValidator::Acceptable;
  const QString typed = text.trimmed();
  const bool digits = std::all_of(typed.begin(), typed.end(),
                                  [](QChar sign) { return sign.isDigit() || sign == '-'; });
  return digits ? QValidator::Intermediate : QValidator::Invalid;
}

} // namespace Talmesh::app
