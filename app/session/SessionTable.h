#ifndef SessionTable_h
#define SessionTable_h

#include "app/import/Study.h"

#include <QByteArray>

#include <string>
#include <vector>

class PlotContainer;
class vtkTable;

namespace Talmesh::app
{

/// The name of two columns of a study's runs, which a dump could not tell apart; empty when there
/// are none.
std::string repeatedItem(const Study& study);

/// The binary dump of what a container shows of a study: the typed items, all columns of the study
/// (also the constant parameters, which a container leaves out), further columns of the container's
/// table, and last the flags of the selected rows. What the library marks rows with is left out.
/// Empty when it would be too large.
/// @param shown the container's table, or one with the same columns and other values
QByteArray dumpStudy(const Study& study, PlotContainer& container, vtkTable* shown);

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

} // namespace Talmesh::app

#endif
