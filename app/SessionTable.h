#ifndef SessionTable_h
#define SessionTable_h

#include "app/RunTableImport.h"
#include "app/Study.h"
#include "app/TableText.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <QByteArray>

#include <string>
#include <utility>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// The columns of an imported table and room for those that are added to it later.
inline constexpr int mostSessionColumns = static_cast<int>(mostColumns) + 100;

/// The name of two columns of a study's runs, which a dump could not tell apart; empty when there
/// are none.
std::string repeatedItem(const Study& study);

/// The binary dump of what a container shows of a study: the typed items, all columns of the study
/// (also the constant parameters, which a container leaves out), further columns of the container's
/// table, and last the flags of the selected rows. What the library marks rows with is left out.
/// Empty when it would be too large.
QByteArray dumpStudy(const Study& study, PlotContainer& container);

/// Where the columns of the container's table will be found once its dump has been read and shown.
class DumpedPlaces
{
public:
  explicit DumpedPlaces(vtkTable* shown);
  /// -1 for a column that is left out and for none.
  int of(int column) const;

private:
  std::vector<int> places;
};

/// A table that was dumped with its study.
struct DumpedTable
{
  Study study;
  /// Columns of the container's table that are no items of the study, in their order; null or
  /// without columns when there are none.
  vtkSmartPointer<vtkTable> further;
  /// 1 for each selected row; null when nothing is known.
  vtkSmartPointer<vtkIntArray> selected;
  /// One line; empty on success.
  std::string error;
  bool cancelled = false;
};

/// Reads such a dump. It is refused when a value is missing, an item has no column of its own or
/// there are too many columns.
/// @param pointsPerRun 0 for a table without runs
/// @param ranges the bounds of the parameters; those that are missing are found from the values
DumpedTable readStudyDump(const QByteArray& dump, int pointsPerRun,
                          const std::vector<std::pair<double, double>>& ranges,
                          const ImportProgress& progress = {});

} // namespace Talmesh::app

#endif
