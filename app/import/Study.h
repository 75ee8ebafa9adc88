#ifndef Study_h
#define Study_h

#include "external/LinePlotTable.h"

#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace Talmesh::app
{

struct ImportRequest;
struct OwnChart;

/// A column whose numbers 0, 1, 2, ... stand for texts.
struct Category
{
  /// The column's label: "Parameter: drug" of runs, "drug" of a plain table.
  std::string column;
  /// The text of each number.
  std::vector<std::string> levels;
};

/// The times that runs had before they got common ones.
struct MeasuredTimes
{
  /// Where the times of each run start, and behind the last run the number of all.
  std::vector<std::size_t> starts;
  std::vector<double> times;
};

/// The data that the viewer shows: runs or, for data without runs, a plain table, or else a chart
/// that is computed. Texts are UTF-8.
struct Study
{
  /// What the window's title calls it.
  std::string name;
  boost::shared_ptr<LinePlotTable> runs;
  vtkSmartPointer<vtkTable> table;
  /// Null for data whose chart the user composes.
  std::shared_ptr<const OwnChart> chart = nullptr;
  std::vector<Category> categories = {};
  /// Null where all runs were read at the times that they have.
  std::shared_ptr<const MeasuredTimes> measured = nullptr;
  /// How its table was read; null for a study that is no table, or where nobody knows.
  std::shared_ptr<const ImportRequest> reading = nullptr;
};

/// The state of every run at its last point, as a study of one point per run; of a plain table the
/// table itself.
Study lastPoints(const Study& study);

/// How many runs of several points there are; 0 for data without runs over time.
int runsOverTime(const Study& study);

/// How much is loaded, in one line: "400 runs, 200 points each, 4 parameters". Parameters that are
/// the same in all runs do not count; parameter values that are missing are named if there are any.
std::string studySize(const Study& study);

} // namespace Talmesh::app

#endif
