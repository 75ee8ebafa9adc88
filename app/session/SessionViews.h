#ifndef SessionViews_h
#define SessionViews_h

#include <QJsonObject>

#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What the table of runs shows of each run.
struct ShownRunColumns
{
  bool parameters = true;
  /// As filters call them.
  std::vector<std::string> features;
  /// Columns of the table.
  std::vector<int> items;

  friend bool operator==(const ShownRunColumns& left, const ShownRunColumns& right)
  {
    return left.parameters == right.parameters && left.features == right.features &&
           left.items == right.items;
  }
};

/// What a session keeps of how the user points at runs and looks at them beside the plot: keys of
/// what there is to choose from, empty where a session says nothing.
struct SessionViews
{
  /// What the mouse draws, and which runs a rectangle means.
  std::string tool;
  std::string rule;
  /// Which runs the page of time courses shows.
  std::string courses;
  /// None for what the table begins with.
  std::optional<ShownRunColumns> runTable;
};

QJsonObject objectOf(const SessionViews& views);

/// Columns that a table of so many does not have are left out; what is mistyped is empty.
SessionViews readViews(const QJsonObject& object, int columns);

} // namespace Talmesh::app

#endif
