#include "app/session/SettingsReader.h"

#include <QJsonArray>

#include <cmath>
#include <set>

namespace Talmesh::app
{

SettingsReader::SettingsReader(const QJsonObject& readObject, int tableColumns)
    : object(readObject)
    , columns(tableColumns)
{
}

double SettingsReader::number(const char* name, double fallback, double lowest,
                              double highest) const
{
  const double value = object[QLatin1String(name)].toDouble(fallback);
  return value >= lowest && value <= highest ? value : fallback;
}

int SettingsReader::whole(const char* name, int fallback, int lowest, int highest) const
{
  const double value = number(name, fallback, lowest, highest);
  return std::floor(value) == value ? static_cast<int>(value) : fallback;
}

void SettingsReader::readColumns(const char* name, std::vector<int>& list) const
{
  const QJsonArray array = object[QLatin1String(name)].toArray();
  if (array.isEmpty() && !list.empty())
    return;
  list.clear();
  std::set<int> listed;
  for (const QJsonValue value : array)
  {
    const double number = value.toDouble(-1.0);
    const bool exists = number >= 0.0 && number < columns && std::floor(number) == number;
    const int column = exists ? static_cast<int>(number) : -1;
    // A chart for each repetition would make much of a small file.
    if (listed.insert(column).second)
      list.push_back(column);
  }
}

} // namespace Talmesh::app
