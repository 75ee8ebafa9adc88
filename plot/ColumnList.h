#ifndef ColumnList_h
#define ColumnList_h

#include "export/ViewerExport.h"

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Talmesh::plot
{

/// Collects columns for a table: in order of their first appearance, the last of several with one
/// name in the place of the first, as a table does it.
///
/// A table looks for each new name among all its columns. This takes the same time for every one,
/// however many there are.
class TALMESHPLOT_VIEWER_EXPORT ColumnList
{
public:
  using Name = std::optional<std::string>;

  /// @param column all must have one length; a name that it has is taken from it until makeTable()
  /// @param name none leaves it unnamed; such columns do not replace each other
  void add(const Name& name, vtkSmartPointer<vtkDataArray> column);

  /// A new table of the columns collected so far, which it shares.
  vtkSmartPointer<vtkTable> makeTable() const;

private:
  std::vector<std::pair<Name, vtkSmartPointer<vtkDataArray>>> columns;
  std::unordered_map<std::string, std::size_t> positions;
};

} // namespace Talmesh::plot

#endif
