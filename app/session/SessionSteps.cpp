#include "app/session/SessionSteps.h"

#include <QJsonArray>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// @param before how many were forgotten before these
SessionSteps lastOf(const QStringList& texts, int before)
{
  SessionSteps steps;
  int characters = 0;
  int first = texts.size();
  while (first > 0 && steps.texts.size() < mostSessionSteps &&
         characters + texts[first - 1].size() <= mostCharactersOfSteps)
  {
    characters += texts[--first].size();
    steps.texts.push_back(texts[first].toStdString());
  }
  std::reverse(steps.texts.begin(), steps.texts.end());
  steps.forgotten = before + first;
  return steps;
}

} // namespace

QJsonObject objectOf(const SessionSteps& steps)
{
  QStringList texts;
  for (const std::string& text : steps.texts)
    texts.append(QString::fromStdString(text));
  const SessionSteps kept = lastOf(texts, steps.forgotten);
  QJsonArray array;
  for (const std::string& text : kept.texts)
    array.append(QString::fromStdString(text));
  return {{"texts", array}, {"forgotten", kept.forgotten}};
}

SessionSteps readSteps(const QJsonObject& object)
{
  QStringList texts;
  for (const QJsonValue value : object["texts"].toArray())
    if (value.isString())
      texts.append(value.toString().simplified());
  return lastOf(texts, std::max(0, object["forgotten"].toInt()));
}

} // namespace Talmesh::app
