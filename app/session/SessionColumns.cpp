#include "app/session/SessionColumns.h"

#include <QJsonArray>

namespace Talmesh::app
{

namespace
{

using List = std::vector<SessionColumn>;

struct ListName
{
  const char* name;
  List SessionColumns::*list;
};

constexpr ListName lists[] = {{"x", &SessionColumns::x},
                              {"y", &SessionColumns::y},
                              {"z", &SessionColumns::z},
                              {"axes", &SessionColumns::axes}};

/// No table has more columns and features that a chart could show.
constexpr int mostEntries = 1000;

QJsonArray arrayOf(const List& list)
{
  QJsonArray array;
  for (const SessionColumn& entry : list)
    array.append(QJsonArray{entry.column, QString::fromStdString(entry.feature)});
  return array;
}

List readList(const QJsonArray& array, int columns)
{
  List list;
  for (const QJsonValue value : array)
  {
    const QJsonArray entry = value.toArray();
    const int column = entry.at(0).toInt(-1);
    if (column < 0 || column >= columns || static_cast<int>(list.size()) == mostEntries)
      continue;
    list.push_back({column, entry.at(1).toString().toStdString()});
  }
  return list;
}

} // namespace

QJsonObject objectOf(const SessionColumns& columns)
{
  QJsonObject object;
  for (const ListName& entry : lists)
    if (!(columns.*entry.list).empty())
      object[QLatin1String(entry.name)] = arrayOf(columns.*entry.list);
  return object;
}

SessionColumns readSessionColumns(const QJsonObject& object, int columns)
{
  SessionColumns read;
  for (const ListName& entry : lists)
    read.*entry.list = readList(object[QLatin1String(entry.name)].toArray(), columns);
  return read;
}

} // namespace Talmesh::app
