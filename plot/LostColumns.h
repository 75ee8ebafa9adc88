#ifndef LostColumns_h
#define LostColumns_h

#include <vtkWeakPointer.h>

#include <map>
#include <string>
#include <vector>

class vtkChart;
class vtkPlot;
class vtkTable;

namespace Talmesh::plot
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
  /// colours. Bars and stacked areas are expected to
  /// have the columns that their input had when they were first seen.
  void hidePlots(vtkChart* chart);

private:
  struct Seen
  {
    vtkWeakPointer<vtkTable> table;
    std::vector<std::string> columns;
  };

  bool hasSeries(vtkPlot* plot);

  std::map<vtkPlot*, Seen> seen;
};

} // namespace Talmesh::plot

#endif
