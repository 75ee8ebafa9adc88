#ifndef CopiedRuns_h
#define CopiedRuns_h

#include "app/runs/RunFilter.h"

#include <cstddef>
#include <map>
#include <vector>

namespace Talmesh::app
{

/// Some columns of runs in memory of their own, so that another thread can read them while the
/// table changes or goes.
class CopiedRuns : public NumberedRuns
{
public:
  /// @param columns those that will be read; may repeat
  CopiedRuns(const NumberedRuns& runs, const std::vector<int>& columns);

  std::size_t numberOfRuns() const override { return numbers.size(); }
  double runNumber(std::size_t run) const override { return numbers[run]; }
  RunCourse course(std::size_t run, int column, int over) const override;

private:
  std::vector<double> numbers;
  std::size_t points = 0;
  /// Of one run where all share them.
  std::vector<double> times;
  bool haveTimes = false;
  std::map<int, std::vector<double>> values;
};

} // namespace Talmesh::app

#endif
