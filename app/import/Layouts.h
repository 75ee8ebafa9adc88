#ifndef Layouts_h
#define Layouts_h

#include "app/import/ImportProgress.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/Result.h"
#include "app/import/TableText.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// The bytes of a file that lies beside the table, by its name; none when there is no such file.
using FileBeside = std::function<std::optional<std::string>(const std::string& name)>;

/// How well a layout fits a table, from 0 (not at all) to 1, and why.
struct LayoutFit
{
  double score = 0.0;
  std::string reason;
};

/// What a layout works with.
struct LayoutTask
{
  const ImportRequest& request;
  FileBeside beside;
  /// Gets warnings, reasons and what is ignored.
  ImportReport& report;
  /// Only asked whether to go on.
  ImportProgress progress = {};
};

/// One way in which tables are laid out in files.
struct Layout
{
  /// What the command line calls it.
  const char* name;
  /// Looks at columns, not at every row.
  LayoutFit (*recognise)(const TableText& text, const ImportRequest& request);
  /// Brings the cells into the usual order: a row per run and time, a column per quantity, and
  /// roles that say what each column is. The time it takes is linear in the number of cells.
  Result<TableText> (*arrange)(TableText text, const LayoutTask& task);
};

/// All of them; of equal scores the earlier one goes first.
const std::vector<Layout>& layouts();

/// The layout of a name; null without one.
const Layout* findLayout(const std::string& name);

/// The layouts that fit, the best one first. Those of a score of 0 are left out.
std::vector<ImportCandidate> candidatesFor(const TableText& text, const ImportRequest& request);

} // namespace Talmesh::app

#endif
