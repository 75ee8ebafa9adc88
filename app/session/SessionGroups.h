#ifndef SessionGroups_h
#define SessionGroups_h

#include <QJsonObject>

#include <string>
#include <vector>

namespace Talmesh::app
{

/// As many groups as there are colours.
inline constexpr int mostGroups = 12;

/// How the runs are shown beside their own lines or points.
struct RunLook
{
  bool groupColours = false;
  bool groupMeans = false;
  bool quartileBands = false;
  /// In the colours of kept selections, which come before those of groups.
  bool keptColours = false;
};

/// What a session keeps of the panel of groups.
struct SessionGroups
{
  /// The group of every run, from 0; empty without groups.
  std::vector<int> groupOfRun;
  /// Into how many groups runs are sorted next; 0 for as many as the panel begins with.
  int count = 0;
  /// The mode of the container's clustering.
  int mode = 0;
  /// The label of the category whose texts the groups are; empty for others.
  std::string category;
  RunLook look;
};

QJsonObject objectOf(const SessionGroups& groups);

/// What is missing, mistyped or out of bounds keeps its first value.
SessionGroups readGroups(const QJsonObject& object);

} // namespace Talmesh::app

#endif
