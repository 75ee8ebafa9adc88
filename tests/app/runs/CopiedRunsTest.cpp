#include "app/runs/CopiedRuns.h"

#include "app/runs/SampleCourses.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;

namespace
{

std::vector<double> pointsOf(const double* first)
{
  return {first, first + 3};
}

/// Runs with times of their own: those of each begin one later.
class TimedCourses : public SampleCourses
{
public:
  RunCourse course(std::size_t run, int column, int over) const override
  {
    RunCourse course = SampleCourses::course(run, column, over);
    if (over < 0)
      course.x = times.data() + run;
    return course;
  }

private:
  std::vector<double> times{0, 1, 2, 3, 4, 5};
};

template <typename Runs>
void expectCopied(const Runs& runs)
{
  const CopiedRuns copy(runs, {1, 2, 1});
  ASSERT_EQ(copy.numberOfRuns(), 4U);
  for (std::size_t run = 0; run < 4; ++run)
    for (const int over : {-1, 2})
    {
      const RunCourse own = runs.course(run, 2, over);
      const RunCourse copied = copy.course(run, 2, over);
      EXPECT_EQ(copied.size, 3U);
      EXPECT_EQ(copy.runNumber(run), runs.runNumber(run));
      EXPECT_EQ(pointsOf(copied.x), pointsOf(own.x)) << run << ' ' << over;
      EXPECT_EQ(pointsOf(copied.y), pointsOf(own.y)) << run << ' ' << over;
    }
}

} // namespace

TEST(CopiedRuns, HaveTheCoursesOfTheRuns)
{
  expectCopied(SampleCourses());
  expectCopied(TimedCourses());
}

TEST(CopiedRuns, ShareTheTimesThatTheRunsShare)
{
  const CopiedRuns shared(SampleCourses(), {1});
  EXPECT_EQ(shared.course(0, 1, -1).x, shared.course(3, 1, -1).x);
  const CopiedRuns timed(TimedCourses(), {1});
  EXPECT_NE(timed.course(0, 1, -1).x, timed.course(3, 1, -1).x);
}
