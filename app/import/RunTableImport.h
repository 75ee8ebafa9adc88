#ifndef RunTableImport_h
#define RunTableImport_h

#include "app/import/ImportProgress.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/Layouts.h"
#include "app/import/Result.h"
#include "app/import/Study.h"
#include "app/import/TableText.h"
#include "external/LinePlotTable.h"

#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// What a user's table turned out to hold: runs or a table. Texts are UTF-8.
struct ImportedTable
{
  /// Runs of equal length, one after another.
  boost::shared_ptr<LinePlotTable> runs;
  /// A table of double columns without an order of rows: no time, no run, no typed header.
  vtkSmartPointer<vtkTable> table;
  /// The columns of runs or table whose numbers stand for texts.
  std::vector<Category> categories;
  /// The times that runs of different times had.
  std::shared_ptr<const MeasuredTimes> measured;
  /// What the user should know although the import succeeded, one line each.
  std::vector<std::string> notes;
};

/// How a table is to be imported. Everything may be left out.
struct ImportTask
{
  ImportRequest request;
  /// Told every few thousand rows.
  ImportProgress progress;
  TextPassed passed;
  FileBeside beside;
  /// Whether the file is of a kind for scans: each row is a run, its first column the parameter.
  bool isScan = false;
};

/// Makes runs or a plain table of named columns, as `request` says or else as the columns
/// themselves tell. Fails where two layouts fit about equally well, naming both.
/// @param report gets what was understood, and the candidates where that is unsure
Result<ImportedTable> importTable(TableText text, const ImportTask& task, ImportReport& report);

/// The same of a delimited text.
Result<ImportedTable> importTable(std::string_view bytes, const ImportTask& task,
                                  ImportReport& report);

/// Reads a delimited table of runs of which nothing else is known: a line of headers, then one row
/// per time point.
///
/// Comma, semicolon and tab are recognised, as are decimal commas between tabs and semicolons.
/// Names that are not valid UTF-8 are taken for Latin-1. Empty cells are NaN. Blank rows are
/// skipped. Headers that carry a kind are taken as written, and so is the order of the columns
/// where the plots find the time in it (see arrangeTypedColumns()). A column with a plain header
/// becomes a parameter if it is constant within each run and differs between runs, otherwise a
/// molecule (a kind that item choosers can report, other than the undefined one). So no plain
/// column is lost, although plots leave out parameters that are the same in all runs; such a
/// parameter can only come from a header that says so, and is noted. A table of plain headers is
/// arranged as line-plot tables are (see arrangePlainColumns()). A run index is added when the file
/// has none; names of runs that are not different whole numbers become 0, 1, 2, ... there. Columns
/// of text, and a first column without a name that counts the rows, are left out with a note. That
/// there is no time column is noted, too.
///
/// The progress is told every few thousand rows.
///
/// Needs memory in proportion to the size of the text, which it lets go as TextPassed says. Touches
/// no object of other threads.
Result<ImportedTable> importRunTable(std::string_view bytes, const ImportProgress& progress = {},
                                     const TextPassed& passed = {});

} // namespace Talmesh::app

#endif
