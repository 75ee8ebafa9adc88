#ifndef SettingsReader_h
#define SettingsReader_h

#include <QJsonObject>

#include <vector>

namespace Talmesh::app
{

/// Reads single values of one JSON object, which it refers to and which may come from anywhere.
class SettingsReader
{
public:
  /// @param columns of the table that the settings are for
  SettingsReader(const QJsonObject& object, int columns);

  /// The fallback for what is missing, mistyped or out of bounds.
  double number(const char* name, double fallback, double lowest, double highest) const;
  /// The same for whole numbers only.
  int whole(const char* name, int fallback, int lowest, int highest) const;
  /// Columns that the table does not have become -1, and of a repeated one the first entry counts.
  /// A list that is missing or empty leaves `list` as it is.
  void readColumns(const char* name, std::vector<int>& list) const;

private:
  const QJsonObject& object;
  int columns;
};

} // namespace Talmesh::app

#endif
