#include "app/runs/CopiedRuns.h"

namespace Talmesh::app
{

CopiedRuns::CopiedRuns(const NumberedRuns& runs, const std::vector<int>& columns)
{
  const std::size_t count = runs.numberOfRuns();
  numbers.reserve(count);
  for (std::size_t run = 0; run < count; ++run)
    numbers.push_back(runs.runNumber(run));
  if (columns.empty() || count == 0)
    return;
  points = runs.course(0, columns.front(), -1).size;
  const auto timesOf = [&](std::size_t run) { return runs.course(run, columns.front(), -1).x; };
  // Runs without times of their own share what stands in for them.
  haveTimes = count > 1 && timesOf(0) != timesOf(1);
  const std::size_t copied = haveTimes ? count : 1;
  times.reserve(copied * points);
  for (std::size_t run = 0; run < copied; ++run)
    times.insert(times.end(), timesOf(run), timesOf(run) + points);
  for (const int column : columns)
  {
    std::vector<double>& copy = values[column];
    if (!copy.empty())
      continue;
    copy.reserve(count * points);
    for (std::size_t run = 0; run < count; ++run)
    {
      const double* y = runs.course(run, column, -1).y;
      copy.insert(copy.end(), y, y + points);
    }
  }
}

RunCourse CopiedRuns::course(std::size_t run, int column, int over) const
{
  const std::size_t first = run * points;
  const double* x =
      over >= 0 ? values.at(over).data() + first : times.data() + (haveTimes ? first : 0);
  return {x, values.at(column).data() + first, points};
}

} // namespace Talmesh::app
