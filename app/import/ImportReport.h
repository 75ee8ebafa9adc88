#ifndef ImportReport_h
#define ImportReport_h

#include "app/import/ImportRequest.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// One way in which a table may be meant.
struct ImportCandidate
{
  /// What the command line calls it: "--layout tidy".
  std::string option;
  /// The layout; empty where something else is unsure.
  std::string layout;
  /// How well it fits, from 0 to 1.
  double score = 0.0;
  /// What speaks for it, in one line.
  std::string reason;
};

/// What was understood of a table. Texts are UTF-8, one line each.
struct ImportReport
{
  std::string layout;
  std::size_t runs = 0;
  /// Of a run, before all get a common grid.
  std::size_t fewestPoints = 0;
  std::size_t mostPoints = 0;
  /// The column of time; empty without one.
  std::string time;
  std::vector<std::string> items;
  std::vector<std::string> parameters;
  /// Columns of text whose levels are kept.
  std::vector<std::string> categories;
  /// Columns that are not shown.
  std::vector<std::string> ignored;
  /// What the user should know although the table could be read, with the lines that it concerns.
  std::vector<std::string> warnings;
  /// Why the table is read as it is, a line for each guess.
  std::vector<std::string> reasons;
  /// What fits about equally well, the best one first; empty when all is clear.
  std::vector<ImportCandidate> candidates;
  /// What the user would have to say for the table to be read in the same way, whatever its cells
  /// suggest.
  ImportRequest settled;

  bool isUnsure() const { return !candidates.empty(); }
};

/// The report as one JSON object. Its keys are layout, runs, points (a number, or the fewest and
/// the most in a list), time, items, parameters, categories, ignored, warnings and reasons; and
/// candidates where something is unsure. What there is none of is null, or an empty list.
std::string jsonOf(const ImportReport& report);

} // namespace Talmesh::app

#endif
