#ifndef SessionTable_h
#define SessionTable_h

#include "app/Study.h"

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

/// The binary dump of what a container shows of a study: the typed items, all columns of the study
/// (also the constant parameters, which a container leaves out), further columns of the container's
/// table, and last the flags of the selected rows. What the library marks rows with is left out.
/// Empty when it would be too large.
/// @param shown the container's table, or one with the same columns and other values
QByteArray dumpStudy(const Study& study, PlotContainer& container, vtkTable* shown);

/// Where column `column` of the container's table will be found once its dump has been read and
/// shown; -1 when it is left out.
int columnInDump(vtkTable* shown, int column);

/// A table that was dumped with its study.
struct DumpedTable
{
  Study study;
  /// Columns of the container's table that are no items of the study, in their order; null or
  /// without columns when there are none.
  vtkSmartPointer<vtkTable> further;
  /// 1 for each selected row; null when nothing is known.
  vtkSmartPointer<vtkIntArray> selected;
  std::string error;
};

/// Reads such a dump.
/// @param pointsPerRun 0 for a table without runs
/// @param ranges the bounds of the parameters; those that are missing are found from the values
DumpedTable readStudyDump(const QByteArray& dump, int pointsPerRun,
                          const std::vector<std::pair<double, double>>& ranges);

} // namespace Talmesh::app

#endif
