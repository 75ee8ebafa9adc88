#ifndef LayoutFacts_h
#define LayoutFacts_h

#include "app/import/ImportRequest.h"
#include "app/import/TableText.h"

#include <string_view>
#include <vector>

/// What several layouts look at to recognise themselves.
namespace Talmesh::app
{

/// The columns that come into question for what a layout looks for: with plain headers, not left
/// out, neither time nor run.
std::vector<std::size_t> freeColumns(const TableText& text);

/// Those of them that hold texts, or numbers.
std::vector<std::size_t> textColumns(const TableText& text);
std::vector<std::size_t> numberColumns(const TableText& text);

/// The column of a name, whatever the case of its letters; -1 without one.
int columnCalled(const TableText& text, std::string_view name);

/// Whether several rows of a run follow each other at the same time, or two rows of a named run
/// have it; of rows of one item, where the column of items is given, whose texts are kept. Looks
/// at the first ten thousand rows.
bool pointsRepeat(const TableText& text, int item = -1);

/// Whether a column names runs.
bool namesRuns(const TableText& text);

/// Whether a column names a run of its own for each row.
bool everyRowIsNamed(const TableText& text);

/// Whether the user has said what only a table of runs over time has.
bool asksForRuns(const ImportRequest& request);

} // namespace Talmesh::app

#endif
