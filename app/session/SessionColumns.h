#ifndef SessionColumns_h
#define SessionColumns_h

#include <QJsonObject>

#include <string>
#include <vector>

namespace Talmesh::app
{

/// A column of the table, or what it says of a whole run.
struct SessionColumn
{
  int column = -1;
  /// As filters call it; empty for the column itself.
  std::string feature;
};

/// What a session keeps of the columns chosen that the plot's settings cannot: those that are
/// features of a run, and axes that were moved.
struct SessionColumns
{
  /// At most one of x and z. All are empty where the settings say everything.
  std::vector<SessionColumn> x;
  std::vector<SessionColumn> y;
  std::vector<SessionColumn> z;
  std::vector<SessionColumn> axes;
};

QJsonObject objectOf(const SessionColumns& columns);

/// What is mistyped, or a column that a table of so many does not have, is left out.
SessionColumns readSessionColumns(const QJsonObject& object, int columns);

} // namespace Talmesh::app

#endif
