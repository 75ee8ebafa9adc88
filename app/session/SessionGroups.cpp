#include "app/session/SessionGroups.h"

#include <QString>

namespace Talmesh::app
{

namespace
{

/// One digit per run: a list of numbers would make settings of many runs too large.
const QString digits = QStringLiteral("0123456789ab");
static_assert(mostGroups == 12);

std::vector<int> readMembers(const QString& text)
{
  std::vector<int> groups;
  groups.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar digit : text)
  {
    const int group = digits.indexOf(digit);
    if (group < 0)
      return {};
    groups.push_back(group);
  }
  return groups;
}

QString textOf(const std::vector<int>& groups)
{
  QString text;
  text.reserve(static_cast<int>(groups.size()));
  for (const int group : groups)
    text.append(digits.at(group));
  return text;
}

} // namespace

QJsonObject objectOf(const SessionGroups& groups)
{
  QJsonObject object{{"ofRun", textOf(groups.groupOfRun)},
                     {"count", groups.count},
                     {"mode", groups.mode},
                     {"colours", groups.look.groupColours},
                     {"means", groups.look.groupMeans},
                     {"bands", groups.look.quartileBands},
                     {"kept", groups.look.keptColours}};
  if (!groups.category.empty())
    object["category"] = QString::fromStdString(groups.category);
  return object;
}

SessionGroups readGroups(const QJsonObject& object)
{
  SessionGroups groups;
  groups.groupOfRun = readMembers(object["ofRun"].toString());
  groups.count = object["count"].toInt();
  groups.mode = object["mode"].toInt();
  groups.category = object["category"].toString().toStdString();
  groups.look = {object["colours"].toBool(), object["means"].toBool(), object["bands"].toBool(),
                 object["kept"].toBool()};
  return groups;
}

} // namespace Talmesh::app
