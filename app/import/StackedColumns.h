#ifndef StackedColumns_h
#define StackedColumns_h

#include "external/TypedConcentrationName.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace Talmesh::app
{

/// A column on its way into a line-plot table.
struct StackedColumn
{
  enum class Role
  {
    Item,
    Time,
    RunIndex
  };
  TypedConcentrationName item;
  Role role = Role::Item;
  /// Whether the file's header carries the kind.
  bool typed = false;
  std::unique_ptr<double[]> values;
  /// (smallest, largest) finite value; (0, 0) without one.
  std::pair<double, double> range;
  /// The column of the text that it was; `noSource` for one that was added.
  static constexpr std::size_t noSource = static_cast<std::size_t>(-1);
  std::size_t source = noSource;

  bool varies() const { return range.first != range.second; }
};

/// Puts the columns of a table of plain headers into the order in which line-plot tables keep them:
/// plotted items, with those that never vary last, time, ": Run Index", parameters. Where the plots
/// would take another column for the time or the run index, which they look for by parts of names,
/// these two come first, then parameters and items, and the name of the time is made to contain
/// "Time".
void arrangePlainColumns(std::vector<StackedColumn>& columns);

/// Leaves columns of typed headers in their order, unless the plots would put another one than the
/// time on the x axis; then time, run index, parameters and items follow each other. A plain time
/// among them is named and placed so that comparisons find it.
void arrangeTypedColumns(std::vector<StackedColumn>& columns);

/// Gives every column a label of its own. Columns with typed headers keep theirs.
void makeLabelsUnique(std::vector<StackedColumn>& columns);

} // namespace Talmesh::app

#endif
