#include "app/import/CommonGrid.h"

#include "app/import/MissingValue.h"
#include "app/import/TranslatedText.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// The grid may take so many times the room of what was measured, or so many cells.
constexpr std::size_t mostGrowth = 4;
constexpr std::size_t alwaysCells = 2000000;

class GridBuilder
{
public:
  GridBuilder(TableText& text_, RunGrouping& grouping_)
      : text(text_)
      , grouping(grouping_)
  {
  }

  std::string build(std::optional<UnequalRuns> unequal, ImportReport& report);

  std::vector<double> times;

private:
  void readTimes();
  std::string repeatedTime() const;
  void unite();
  std::size_t mostRows() const;
  void thin();
  bool gapsAreInside() const;
  bool everyRunIsMet() const;
  std::size_t longest() const;
  void regrid(std::size_t column);
  bool isOfRuns(std::size_t column) const;
  bool isStepped(std::size_t column) const;
  void fillRun(std::size_t run, const std::vector<double>& values, bool steps,
               std::vector<double>& gridded) const;
  void tell(ImportReport& report, bool thinned) const;

  TableText& text;
  RunGrouping& grouping;
  std::vector<double> grid;
  bool interpolates = false;
};

/// Without a time column points are numbered.
void GridBuilder::readTimes()
{
  if (text.roles.timeColumn >= 0)
  {
    times = text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
    return;
  }
  times.resize(text.rows);
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
    std::iota(times.begin() + static_cast<std::ptrdiff_t>(grouping.starts[run]),
              times.begin() + static_cast<std::ptrdiff_t>(grouping.starts[run + 1]), 0.0);
}

std::string GridBuilder::repeatedTime() const
{
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
    for (std::size_t row = grouping.starts[run] + 1; row < grouping.starts[run + 1]; ++row)
      if (times[row] == times[row - 1])
        return withValues(translated("CommonGrid",
                                     "line %1: the run has a second point at the same time, and "
                                     "%2. Name the columns that tell the runs apart (--run)"),
                          {std::to_string(text.lineOf(row)), grouping.unequal});
  return {};
}

void GridBuilder::unite()
{
  grid = times;
  std::sort(grid.begin(), grid.end());
  grid.erase(std::unique(grid.begin(), grid.end()), grid.end());
}

std::size_t GridBuilder::longest() const
{
  std::size_t most = 0;
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
    most = std::max(most, grouping.starts[run + 1] - grouping.starts[run]);
  return most;
}

/// Whether each run is at some time of the grid, so that none vanishes.
bool GridBuilder::everyRunIsMet() const
{
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
  {
    const auto at = std::lower_bound(grid.begin(), grid.end(), times[grouping.starts[run]]);
    if (at == grid.end() || *at > times[grouping.starts[run + 1] - 1])
      return false;
  }
  return true;
}

std::size_t GridBuilder::mostRows() const
{
  return std::max(mostGrowth * text.rows, alwaysCells / text.columns.size());
}

/// Keeps as many times as the longest run has, or as there is room for, dense where the measured
/// ones are.
void GridBuilder::thin()
{
  const std::size_t room = mostRows() / grouping.numberOfRuns;
  const std::size_t count = std::max<std::size_t>(std::min(longest(), room), 2);
  std::vector<double> thinned;
  for (std::size_t i = 0; i < count; ++i)
    thinned.push_back(grid[i * (grid.size() - 1) / (count - 1)]);
  grid = std::move(thinned);
}

bool GridBuilder::gapsAreInside() const
{
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
  {
    const std::size_t first = grouping.starts[run];
    const std::size_t last = grouping.starts[run + 1] - 1;
    const auto begin = std::lower_bound(grid.begin(), grid.end(), times[first]);
    const auto end = std::upper_bound(grid.begin(), grid.end(), times[last]);
    if (static_cast<std::size_t>(end - begin) != last + 1 - first)
      return true;
  }
  return false;
}

/// Whether a column says something of whole runs, so that it has no gaps.
bool GridBuilder::isOfRuns(std::size_t column) const
{
  const std::vector<double>& values = text.columns[column].values;
  if (text.uses[column] == ColumnUse::Item || !isConstantInRuns(values, grouping))
    return false;
  if (text.uses[column] == ColumnUse::Parameter || text.roles.headers[column].kind == Parameter)
    return true;
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
  {
    const double value = values[grouping.starts[run]];
    if (value != values.front() && !(std::isnan(value) && std::isnan(values.front())))
      return true;
  }
  return false;
}

/// Between two levels of a category there is nothing.
bool GridBuilder::isStepped(std::size_t column) const
{
  return std::find(text.levelColumns.begin(), text.levelColumns.end(), column) !=
         text.levelColumns.end();
}

void GridBuilder::fillRun(std::size_t run, const std::vector<double>& values, bool steps,
                          std::vector<double>& gridded) const
{
  std::size_t row = grouping.starts[run];
  const std::size_t end = grouping.starts[run + 1];
  for (std::size_t i = 0; i < grid.size(); ++i)
  {
    while (row < end && times[row] < grid[i])
      ++row;
    double& value = gridded[run * grid.size() + i];
    if (row < end && times[row] == grid[i])
      value = values[row];
    else if (interpolates && row < end && row > grouping.starts[run])
      value = steps ? values[row - 1]
                    : onLine(grid[i], times[row - 1], times[row], values[row - 1], values[row]);
  }
}

void GridBuilder::regrid(std::size_t column)
{
  std::vector<double>& values = text.columns[column].values;
  std::vector<double> gridded(grouping.numberOfRuns * grid.size(), missing);
  const bool ofRuns = isOfRuns(column);
  const bool steps = isStepped(column);
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
  {
    const auto begin = gridded.begin() + static_cast<std::ptrdiff_t>(run * grid.size());
    if (static_cast<int>(column) == text.roles.timeColumn)
      std::copy(grid.begin(), grid.end(), begin);
    else if (ofRuns)
      std::fill_n(begin, grid.size(), values[grouping.starts[run]]);
    else
      fillRun(run, values, steps, gridded);
  }
  values.swap(gridded);
}

void GridBuilder::tell(ImportReport& report, bool thinned) const
{
  const std::string points = std::to_string(grid.size());
  if (thinned)
    report.warnings.push_back(
        withValues(translated("CommonGrid", "The runs have different times. They are shown at %1 "
                                            "of them, with straight lines between the points of "
                                            "each run."),
                   {points}));
  else if (interpolates)
    report.warnings.push_back(
        withValues(translated("CommonGrid", "The runs have different times. They are shown at all "
                                            "%1 of them, with straight lines between the points "
                                            "of each run."),
                   {points}));
  else
    report.warnings.push_back(
        withValues(translated("CommonGrid", "The runs have different times. They are shown at all "
                                            "%1 of them, with gaps where a run has no point."),
                   {points}));
}

std::string GridBuilder::build(std::optional<UnequalRuns> unequal, ImportReport& report)
{
  readTimes();
  if (const std::string error = repeatedTime(); !error.empty())
    return error;
  unite();
  const bool tooMany = grid.size() * grouping.numberOfRuns > mostRows();
  if (tooMany && (unequal == UnequalRuns::Union || (text.isMeasured && !unequal)))
    return withValues(translated("CommonGrid", "the runs have %1 different times together, too "
                                               "many to show each run at all of them; "
                                               "--unequal interpolate shows it at fewer"),
                      {std::to_string(grid.size())});
  const bool lines = !text.hasGaps && !text.isMeasured && gapsAreInside();
  interpolates = unequal ? unequal == UnequalRuns::Interpolate : tooMany || lines;
  const std::string all = std::to_string(grid.size());
  if (tooMany)
    thin();
  if (tooMany && !everyRunIsMet())
    return withValues(translated("CommonGrid", "the runs have %1 different times together, too "
                                               "many to show each run at all of them, and some "
                                               "runs have too few points to be shown at fewer; "
                                               "--layout table shows the rows as they are"),
                      {all});
  for (std::size_t i = 0; i < text.columns.size(); ++i)
    if (!text.columns[i].values.empty())
      regrid(i);
  tell(report, tooMany);
  for (std::size_t run = 0; run <= grouping.numberOfRuns; ++run)
    grouping.starts[run] = run * grid.size();
  grouping.pointsPerRun = grid.size();
  grouping.unequal.clear();
  text.rows = grouping.numberOfRuns * grid.size();
  text.lines.clear();
  return {};
}

} // namespace

std::string putOnCommonGrid(TableText& text, RunGrouping& grouping,
                            std::optional<UnequalRuns> unequal, ImportReport& report,
                            std::shared_ptr<const MeasuredTimes>& measured)
{
  if (text.roles.timeColumn >= 0)
  {
    std::vector<bool> kept;
    for (const double time : text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values)
      kept.push_back(!std::isnan(time));
    if (std::find(kept.begin(), kept.end(), false) != kept.end())
    {
      report.warnings.push_back(
          translated("CommonGrid", "Rows without a time are left out, because the runs differ in "
                                   "their times."));
      keepRows(text, grouping, kept);
    }
    if (grouping.numberOfRuns == 0)
      return translated("CommonGrid", "no row has a time");
  }
  auto before = std::make_shared<MeasuredTimes>();
  before->starts = grouping.starts;
  GridBuilder builder(text, grouping);
  std::string error = builder.build(unequal, report);
  before->times = std::move(builder.times);
  measured = before;
  return error;
}

} // namespace Talmesh::app
