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
  times.reserve(count * points);
  for (std::size_t run = 0; run < count; ++run)
  {
    const double* x = runs.course(run, columns.front(), -1).x;
    times.insert(times.end(), x, x + points);
  }
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
  const std::vector<double>& x = over >= 0 ? values.at(over) : times;
  return {x.data() + run * points, values.at(column).data() + run * points, points};
}

} // namespace Talmesh::app
