#ifndef RunCollector_h
#define RunCollector_h

#include "app/import/ColumnWords.h"
#include "app/import/NamedColumn.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace Talmesh::app
{

/// Puts runs that come one by one, each as columns of its own, one after another. A column that a
/// run does not have is missing there: NaN, or an empty text.
class RunCollector
{
public:
  /// @param columns of equal length, at least one; those of the same name become one
  void add(const std::string& run, std::vector<NamedColumn> columns);

  std::size_t numberOfRuns() const { return runs; }
  std::size_t numberOfRows() const { return rows; }
  std::size_t numberOfColumns() const { return collected.size(); }

  /// The columns, that of the names of runs in front.
  std::vector<NamedColumn> take(const std::string& runColumn);

private:
  struct Column
  {
    std::string name;
    std::vector<double> values;
    ColumnWords words;
    bool isText = false;
  };

  Column& columnOf(const std::string& name);
  void append(Column& column, const NamedColumn& added);
  static void makeText(Column& column);

  std::unordered_map<std::string, std::size_t> places;
  std::vector<Column> collected;
  ColumnWords names;
  std::size_t runs = 0;
  std::size_t rows = 0;
};

} // namespace Talmesh::app

#endif
