#include "app/session/SessionSelections.h"

#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t mostOfAnyRuns = 100;
/// A quarter of what the settings of a session may take.
constexpr std::size_t mostDigits = 1024 * 1024;
constexpr int runsPerDigit = 4;
constexpr int sixteen = 16;
constexpr unsigned highestBit = 8;
constexpr unsigned largestColour = 0xFFFFFF;
constexpr int digitsOfColour = 6;
constexpr int mostCharactersOfName = 200;
constexpr int mostCharactersOfParameter = 1000;
constexpr int mostNames = 100;
constexpr int mostCharactersOfCondition = 20000;

/// Four runs per hexadecimal digit: a list of numbers would make settings of many runs too large.
QString textOf(const std::vector<bool>& runs)
{
  QString text;
  for (std::size_t first = 0; first < runs.size(); first += runsPerDigit)
  {
    unsigned digit = 0;
    for (std::size_t run = first; run < std::min(first + runsPerDigit, runs.size()); ++run)
      digit |= runs[run] ? highestBit >> (run - first) : 0U;
    text.append(QString::number(digit, sixteen));
  }
  return text;
}

/// @return whether the text is one of so many runs
bool readRuns(const QString& text, double count, std::vector<bool>& runs)
{
  // Compared as numbers first, as the count may be any.
  if (!(count >= 1 && std::ceil(count / runsPerDigit) == text.size() && std::floor(count) == count))
    return false;
  for (const QChar sign : text)
  {
    bool isDigit = false;
    const unsigned digit = QString(sign).toUInt(&isDigit, sixteen);
    if (!isDigit)
      return false;
    for (unsigned bit = highestBit; bit != 0; bit >>= 1U)
      runs.push_back((digit & bit) != 0);
  }
  runs.resize(static_cast<std::size_t>(count));
  return true;
}

QString colourText(unsigned colour)
{
  return QLatin1Char('#') + QString::number(colour, sixteen).rightJustified(digitsOfColour, '0');
}

unsigned readColour(const QString& text)
{
  bool isNumber = false;
  const unsigned colour = text.mid(1).toUInt(&isNumber, sixteen);
  return isNumber && text.startsWith(QLatin1Char('#')) ? std::min(colour, largestColour) : 0;
}

} // namespace

std::string shortName(const std::string& name, std::size_t spare)
{
  const int most = mostCharactersOfName - static_cast<int>(spare);
  return QString::fromStdString(name).left(most).trimmed().toStdString();
}

QJsonArray arrayOfNames(const std::vector<std::string>& names)
{
  QJsonArray array;
  for (const std::string& name : names)
    array.append(QString::fromStdString(name));
  return array;
}

std::vector<std::string> readNames(const QJsonArray& array)
{
  std::vector<std::string> names;
  for (const QJsonValue value : array)
    if (const QString name = value.toString(); !name.isEmpty() &&
                                               name.size() <= mostCharactersOfParameter &&
                                               static_cast<int>(names.size()) < mostNames)
      names.push_back(name.toStdString());
  return names;
}

QString wholeWords(const std::string& words)
{
  const QString text = QString::fromStdString(words);
  return text.size() <= mostCharactersOfCondition ? text : QString();
}

std::size_t mostKeptSelections(std::size_t runs)
{
  const std::size_t digits = runs / runsPerDigit + 1;
  return std::clamp<std::size_t>(mostDigits / digits, 1, mostOfAnyRuns);
}

QJsonArray arrayOf(const std::vector<KeptSelection>& kept)
{
  QJsonArray array;
  for (const KeptSelection& selection : kept)
  {
    QJsonObject object{{"name", QString::fromStdString(shortName(selection.name))},
                       {"colour", colourText(selection.colour)},
                       {"of", static_cast<double>(selection.runs.size())},
                       {"runs", textOf(selection.runs)},
                       {"words", wholeWords(selection.words)}};
    if (!selection.asked.empty())
      object["asked"] = arrayOfNames(selection.asked);
    array.append(object);
  }
  return array;
}

std::vector<KeptSelection> readKeptSelections(const QJsonArray& array)
{
  std::vector<KeptSelection> kept;
  for (const QJsonValue value : array)
  {
    const QJsonObject object = value.toObject();
    KeptSelection selection;
    if (!readRuns(object["runs"].toString(), object["of"].toDouble(), selection.runs))
      continue;
    if (kept.size() >= mostKeptSelections(selection.runs.size()))
      break;
    selection.name = shortName(object["name"].toString().toStdString());
    selection.colour = readColour(object["colour"].toString());
    selection.words = wholeWords(object["words"].toString().toStdString()).toStdString();
    selection.asked = readNames(object["asked"].toArray());
    kept.push_back(std::move(selection));
  }
  return kept;
}

} // namespace Talmesh::app
