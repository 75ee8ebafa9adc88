#include "app/session/SessionViews.h"

#include "app/session/SettingsReader.h"

#include <QJsonArray>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// More than there are functions of items.
constexpr int mostFeatures = 100;

struct KeyName
{
  const char* name;
  std::string SessionViews::*key;
};

constexpr KeyName keys[] = {{"tool", &SessionViews::tool},
                            {"rule", &SessionViews::rule},
                            {"courses", &SessionViews::courses}};

QJsonObject objectOf(const ShownRunColumns& shown)
{
  QJsonArray features;
  for (const std::string& feature : shown.features)
    features.append(QString::fromStdString(feature));
  QJsonArray items;
  for (const int item : shown.items)
    items.append(item);
  return {{"parameters", shown.parameters}, {"features", features}, {"items", items}};
}

ShownRunColumns readRunColumns(const QJsonObject& object, int columns)
{
  ShownRunColumns shown;
  shown.parameters = object["parameters"].toBool(true);
  for (const QJsonValue value : object["features"].toArray())
    if (value.isString() && static_cast<int>(shown.features.size()) < mostFeatures)
      shown.features.push_back(value.toString().toStdString());
  SettingsReader(object, columns).readColumns("items", shown.items);
  shown.items.erase(std::remove(shown.items.begin(), shown.items.end(), -1), shown.items.end());
  return shown;
}

} // namespace

QJsonObject objectOf(const SessionViews& views)
{
  QJsonObject object;
  for (const KeyName& entry : keys)
    if (!(views.*entry.key).empty())
      object[QLatin1String(entry.name)] = QString::fromStdString(views.*entry.key);
  if (views.runTable)
    object["runTable"] = objectOf(*views.runTable);
  return object;
}

SessionViews readViews(const QJsonObject& object, int columns)
{
  SessionViews views;
  for (const KeyName& entry : keys)
    views.*entry.key = object[QLatin1String(entry.name)].toString().toStdString();
  if (object["runTable"].isObject())
    views.runTable = readRunColumns(object["runTable"].toObject(), columns);
  return views;
}

} // namespace Talmesh::app
