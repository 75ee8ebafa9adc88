#ifndef TimeCourses_h
#define TimeCourses_h

#include "app/document/GroupedPlots.h"
#include "external/LinePlotData.h"
#include "external/LinePlotTable.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// The item that the courses run over, as in other charts of the runs but never the number of the
/// run; -1 without one.
int timeOfCourses(const LinePlotTable& runs);

/// The numbers that the runs have in the table, or those of their places when they cannot tell the
/// runs apart.
std::vector<int> shownRunNumbers(const LinePlotTable& runs);

/// Numbers by which runs are told alike, see `nearestRuns`: the smallest, largest, mean and final
/// value of each item.
/// @param time as of `timeOfCourses`, not -1
std::vector<std::vector<double>> featuresOfRuns(const LinePlotTable& runs, int time);

/// The courses of some runs, with the vectors that a record only points to.
class RunCourses
{
public:
  /// @param time as of `timeOfCourses`, not -1
  /// @param shown places of runs, not empty; the items of more than one are named with the numbers
  /// of their runs
  RunCourses(const LinePlotTable& runs, int time, const std::vector<std::size_t>& shown);
  RunCourses(const RunCourses&) = delete;
  RunCourses& operator=(const RunCourses&) = delete;

  LinePlotData record;
  /// What the items of the record are called without their runs.
  std::map<std::string, std::string> items;
  /// The places of the runs by the names of their columns.
  std::map<std::string, std::size_t> places;

private:
  std::vector<double> times;
  std::vector<std::vector<double>> values;
};

/// Draws the courses that a container now shows in the colours of the kept selections that their
/// runs are in, and names these beside them in the legend. Other courses stay as they are.
/// @param runs the places of the runs by the names of their columns
void colourCourses(PlotContainer& container, const std::map<std::string, std::size_t>& runs,
                   const RunGroups& kept);

/// Fills a container, which is in a scene, with the time courses of one run, and draws those of its
/// first items as the page does. Draws nothing of runs without a time.
void drawTimeCourses(const LinePlotTable& runs, std::size_t run, std::size_t items,
                     PlotContainer& container);

} // namespace Talmesh::app

#endif
