#ifndef SampleCourses_h
#define SampleCourses_h

#include "app/runs/RunFilter.h"

#include <limits>
#include <string>
#include <vector>

/// Four runs of three points at 0, 10 and 20, called 101 to 104:
///
/// | run | alpha | TetR      | Molecule: cI |
/// |-----|-------|-----------|--------------|
/// | 101 | 1     | 0 10 0    | 5 5 5        |
/// | 102 | 2     | 0 100 0   | 1 2 3        |
/// | 103 | none  | 50 50 50  | 3 2 1        |
/// | 104 | 40    | 5 none 70 | 9 9 9        |
class SampleCourses : public Talmesh::app::FilteredRuns
{
public:
  std::size_t numberOfRuns() const override { return 4; }
  double runNumber(std::size_t run) const override { return 101 + static_cast<double>(run); }
  Talmesh::app::Result<int> column(const std::string& name) const override
  {
    for (std::size_t i = 0; i < names.size(); ++i)
    {
      if (names[i] == name)
        return static_cast<int>(i);
    }
    return Talmesh::app::Result<int>::failed("no column " + name);
  }
  bool isOfWholeRun(int column) const override { return column == 0; }
  Talmesh::app::RunCourse course(std::size_t run, int column, int over) const override
  {
    const double* x = over < 0 ? times.data() : values(over, run);
    return {x, values(column, run), 3};
  }

private:
  const double* values(int column, std::size_t run) const
  {
    return columns[static_cast<std::size_t>(column)].data() + 3 * run;
  }

  static constexpr double none = std::numeric_limits<double>::quiet_NaN();
  std::vector<std::string> names{"alpha", "TetR", "Molecule: cI"};
  std::vector<double> times{0, 10, 20};
  std::vector<std::vector<double>> columns{{1, 1, 1, 2, 2, 2, none, none, none, 40, 40, 40},
                                           {0, 10, 0, 0, 100, 0, 50, 50, 50, 5, none, 70},
                                           {5, 5, 5, 1, 2, 3, 3, 2, 1, 9, 9, 9}};
};

#endif
