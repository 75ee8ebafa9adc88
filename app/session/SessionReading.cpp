#include "app/session/SessionReading.h"

#include "app/import/Layouts.h"

#include <QJsonArray>
#include <QString>

#include <string_view>

namespace Talmesh::app
{

namespace
{

struct NamedText
{
  const char* key;
  std::string ImportRequest::*text;
};

constexpr NamedText texts[] = {{"layout", &ImportRequest::layout}, {"time", &ImportRequest::time},
                               {"item", &ImportRequest::item},     {"value", &ImportRequest::value},
                               {"sheet", &ImportRequest::sheet},   {"files", &ImportRequest::files},
                               {"join", &ImportRequest::join}};

struct NamedList
{
  const char* key;
  std::vector<std::string> ImportRequest::*list;
};

constexpr NamedList lists[] = {{"run", &ImportRequest::run},
                               {"parameter", &ImportRequest::parameters},
                               {"condition", &ImportRequest::conditions},
                               {"ignore", &ImportRequest::ignored},
                               {"measured", &ImportRequest::measured}};

constexpr std::string_view separators = ",;|: \t";
constexpr std::string_view decimalMarks = ".,";
const QString unionKey = QStringLiteral("union");
const QString interpolateKey = QStringLiteral("interpolate");

QString textOf(char character)
{
  return QString(QLatin1Char(character));
}

/// One of these characters.
std::optional<char> readCharacter(const QJsonValue& value, std::string_view known)
{
  const std::string text = value.toString().toStdString();
  const bool isKnown = text.size() == 1 && known.find(text) != std::string_view::npos;
  return isKnown ? std::optional<char>(text.front()) : std::nullopt;
}

bool isOneOf(const std::string& text, std::initializer_list<const char*> known)
{
  for (const char* word : known)
    if (text == word)
      return true;
  return false;
}

} // namespace

QJsonObject objectOf(const ImportRequest& reading)
{
  QJsonObject object;
  for (const NamedText& entry : texts)
    if (!(reading.*entry.text).empty())
      object[QLatin1String(entry.key)] = QString::fromStdString(reading.*entry.text);
  for (const NamedList& entry : lists)
  {
    QJsonArray names;
    for (const std::string& name : reading.*entry.list)
      names.append(QString::fromStdString(name));
    if (!names.isEmpty())
      object[QLatin1String(entry.key)] = names;
  }
  if (reading.separator)
    object["separator"] = textOf(*reading.separator);
  if (reading.decimalMark)
    object["decimal"] = textOf(*reading.decimalMark);
  if (reading.unequal)
    object["unequal"] = *reading.unequal == UnequalRuns::Union ? unionKey : interpolateKey;
  return object;
}

ImportRequest readReading(const QJsonObject& object)
{
  ImportRequest reading;
  for (const NamedText& entry : texts)
    reading.*entry.text = object[QLatin1String(entry.key)].toString().toStdString();
  for (const NamedList& entry : lists)
    for (const QJsonValue name : object[QLatin1String(entry.key)].toArray())
      if (!name.toString().isEmpty())
        (reading.*entry.list).push_back(name.toString().toStdString());
  if (!findLayout(reading.layout))
    reading.layout.clear();
  if (!isOneOf(reading.files, {"runs", "items"}))
    reading.files.clear();
  if (!isOneOf(reading.join, {"name", "order"}))
    reading.join.clear();
  reading.separator = readCharacter(object["separator"], separators);
  reading.decimalMark = readCharacter(object["decimal"], decimalMarks);
  const QString unequal = object["unequal"].toString();
  if (unequal == unionKey || unequal == interpolateKey)
    reading.unequal = unequal == unionKey ? UnequalRuns::Union : UnequalRuns::Interpolate;
  return reading;
}

} // namespace Talmesh::app
