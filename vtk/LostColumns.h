#ifndef LostColumns_h
#define LostColumns_h

#include <vtkWeakPointer.h>

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

class vtkChart;
class vtkPlot;
class vtkTable;

namespace Talmesh
{

/// Whether column `name` of `table` has numbers in all rows.
bool hasNumbers(vtkTable* table, const std::string& name);

/// Hides plots whose columns have gone: VTK looks columns up by name at every update and reads what
/// it does not find. Clients may remove, rename or shorten columns of a table that a chart shows.
class LostColumns
{
public:
  /// Hides every plot of `chart` that draws a column which its input does not have, or not as
  /// numbers in all rows. It stays hidden. Points that are coloured by such a column lose their
  /// colours. Bars and stacked areas are expected to have the columns that their input had when
  /// they were first seen. Takes time in proportion to plots and columns.
  void hidePlots(vtkChart* chart);

private:
  using Names = std::unordered_set<std::string>;

  struct Seen
  {
    vtkWeakPointer<vtkTable> table;
    Names columns;
  };

  /// The columns of a table that have numbers in all rows, and what tells that they are still
  /// those.
  struct Listed
  {
    std::vector<double> identity;
    Names columns;
  };

  const Names& listNumeric(vtkTable* table, std::map<vtkTable*, Listed>& still);
  bool hasSeries(vtkPlot* plot, const Names& numeric);

  std::map<vtkPlot*, Seen> seen;
  std::map<vtkTable*, Listed> listed;
};

} // namespace Talmesh

#endif
