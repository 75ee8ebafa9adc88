#ifndef ListedRuns_h
#define ListedRuns_h

#include <QString>

#include <set>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

class TableRuns;

/// Writes the numbers of the selected runs to a small JSON file.
/// @return why that failed, in one line of UTF-8; empty on success
std::string saveSelectedRuns(const QString& path, PlotContainer& container);

/// The runs of a table that a list names.
struct ListedRuns
{
  /// Whether each run of the table is listed.
  std::vector<bool> runs;
  /// The listed numbers that no run has.
  std::set<int> missing;
};

ListedRuns findListed(const std::set<int>& numbers, const TableRuns& table);

/// One line of UTF-8 that says which of the runs of a file are not in the table; empty if all are.
/// @param listed how many the file lists
std::string noteOnMissing(const QString& path, const std::set<int>& missing, std::size_t listed);

} // namespace Talmesh::app

#endif
