#ifndef CommonGrid_h
#define CommonGrid_h

#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/RunGrouping.h"
#include "app/import/Study.h"
#include "app/import/TableText.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// Puts the rows into the order of their runs, so that `grouping` needs none.
void stackRows(TableText& text, RunGrouping& grouping);

/// Takes the rows of infinite time, the steady states of their runs, out of stacked rows. Their
/// values go into items of their own, "X at steady state", which are the same at all times of a
/// run. Where no run has another time, each steady state is a run's only point.
void takeSteadyStates(TableText& text, RunGrouping& grouping, ImportReport& report);

/// Leaves out the rows of stacked runs that are not kept. Runs without any row go.
void keepRows(TableText& text, RunGrouping& grouping, const std::vector<bool>& kept);

/// Gives stacked runs of different times the same ones: the union of all, in which each run has
/// gaps, or a thinner part of it where that were too many. What `unequal` leaves open is decided by
/// the gaps: those inside runs are crossed by straight lines, as long as nothing was measured.
/// @param measured gets the times that the runs had
/// @return why that cannot be, in one line; empty on success
std::string putOnCommonGrid(TableText& text, RunGrouping& grouping,
                            std::optional<UnequalRuns> unequal, ImportReport& report,
                            std::shared_ptr<const MeasuredTimes>& measured);

/// The value at a time on the straight line between two points.
double onLine(double at, double fromTime, double toTime, double from, double to);

/// Crosses the gaps between two values of an item of a run by straight lines.
void bridgeGaps(TableText& text, const RunGrouping& grouping, ImportReport& report);

/// Whether a column holds one value in each run.
bool isConstantInRuns(const std::vector<double>& values, const RunGrouping& grouping);

} // namespace Talmesh::app

#endif
