#ifndef DumpedTable_h
#define DumpedTable_h

#include "app/import/Result.h"
#include "app/import/RunTableImport.h"
#include "app/import/Study.h"
#include "app/import/TableText.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <QByteArray>

#include <string>
#include <utility>
#include <vector>

namespace Talmesh::app
{

/// The columns of an imported table and room for those that are added to it later.
inline constexpr int mostSessionColumns = static_cast<int>(mostColumns) + 100;

/// A table that was dumped with its study.
struct DumpedTable
{
  Study study;
  /// Columns of the container's table that are no items of the study, in their order; null or
  /// without columns when there are none.
  vtkSmartPointer<vtkTable> further;
  /// 1 for each selected row; null when nothing is known.
  vtkSmartPointer<vtkIntArray> selected;
};

/// Reads a dump as dumpStudy() writes it. It is refused when a value is missing, an item has no
/// column of its own or there are too many columns.
/// @param pointsPerRun 0 for a table without runs
/// @param ranges the bounds of the parameters; those that are missing are found from the values
Result<DumpedTable> readStudyDump(const QByteArray& dump, int pointsPerRun,
                                  const std::vector<std::pair<double, double>>& ranges,
                                  const ImportProgress& progress = {});

} // namespace Talmesh::app

#endif
