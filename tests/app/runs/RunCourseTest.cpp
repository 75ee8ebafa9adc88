#include "app/runs/RunCourse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using Talmesh::app::finalOf;
using Talmesh::app::firstOf;
using Talmesh::app::largestOf;
using Talmesh::app::meanOf;
using Talmesh::app::peaksOf;
using Talmesh::app::periodOf;
using Talmesh::app::RunCourse;
using Talmesh::app::smallestOf;
using Talmesh::app::valueAt;

namespace
{

constexpr double none = std::numeric_limits<double>::quiet_NaN();

using Values = std::vector<double>;

/// Times 0, 1, 2, ...
struct Course
{
  explicit Course(Values values)
      : y(std::move(values))
  {
    for (std::size_t i = 0; i < y.size(); ++i)
      x.push_back(static_cast<double>(i));
  }
  operator RunCourse() const { return {x.data(), y.data(), y.size()}; }

  Values x;
  Values y;
};

/// Peaks straight from the definition: from each highest stretch outwards, point by point.
std::size_t peaksByDefinition(const Values& y, double least)
{
  std::size_t count = 0;
  for (std::size_t i = 1; i + 1 < y.size(); ++i)
  {
    std::size_t last = i;
    while (last + 1 < y.size() && y[last + 1] == y[i])
      ++last;
    if (!(y[i - 1] < y[i]) || last + 1 == y.size() || !(y[last + 1] < y[i]))
      continue;
    double before = y[i];
    for (std::size_t k = i; k-- > 0 && y[k] <= y[i];)
      before = std::min(before, y[k]);
    double behind = y[i];
    for (std::size_t k = last + 1; k < y.size() && y[k] <= y[i]; ++k)
      behind = std::min(behind, y[k]);
    count += y[i] - std::max(before, behind) >= least ? 1 : 0;
  }
  return count;
}

} // namespace

TEST(RunCourse, TellsTheNumbersOfARun)
{
  const Course course({3, 1, 4, 1, 5});
  EXPECT_EQ(smallestOf(course), 1);
  EXPECT_EQ(largestOf(course), 5);
  EXPECT_DOUBLE_EQ(meanOf(course), 2.8);
  EXPECT_EQ(firstOf(course), 3);
  EXPECT_EQ(finalOf(course), 5);
}

TEST(RunCourse, LeavesOutMissingValues)
{
  const Course course({none, 1, none, 4});
  EXPECT_EQ(smallestOf(course), 1);
  EXPECT_EQ(largestOf(course), 4);
  EXPECT_DOUBLE_EQ(meanOf(course), 2.5);
  EXPECT_TRUE(std::isnan(firstOf(course)));
  EXPECT_EQ(finalOf(course), 4);
}

TEST(RunCourse, HasNoNumbersWithoutPoints)
{
  for (const Course& course : {Course({}), Course({none, none})})
  {
    EXPECT_TRUE(std::isnan(smallestOf(course)));
    EXPECT_TRUE(std::isnan(largestOf(course)));
    EXPECT_TRUE(std::isnan(meanOf(course)));
    EXPECT_TRUE(std::isnan(firstOf(course)));
    EXPECT_TRUE(std::isnan(finalOf(course)));
    EXPECT_TRUE(std::isnan(valueAt(course, 0.5)));
    EXPECT_TRUE(peaksOf(course, none).empty());
    EXPECT_TRUE(std::isnan(periodOf(course, none)));
  }
}

TEST(RunCourse, HasTheVeryMeanOfWholeAndOfEqualNumbers)
{
  EXPECT_EQ(meanOf(Course({1, 4, -2})), 1);
  EXPECT_EQ(meanOf(Course(std::vector<double>(10, 0.1))), 0.1);
}

TEST(RunCourse, HasAMeanWhereTheSumOverflows)
{
  EXPECT_DOUBLE_EQ(meanOf(Course({1.5e308, 1.7e308})), 1.6e308);
  EXPECT_DOUBLE_EQ(meanOf(Course({1.7e308, -1.7e308, -1.5e308})), -0.5e308) << "or the rests do";
}

TEST(RunCourse, TakesTheValueAtATimeFromTheLineBetweenPoints)
{
  const Course course({0, 10, none, 30, 20});
  EXPECT_EQ(valueAt(course, 1), 10);
  EXPECT_DOUBLE_EQ(valueAt(course, 0.25), 2.5);
  EXPECT_DOUBLE_EQ(valueAt(course, 3.5), 25);
  EXPECT_EQ(valueAt(course, 4), 20);
  EXPECT_TRUE(std::isnan(valueAt(course, 1.5))) << "beside a missing value";
  EXPECT_TRUE(std::isnan(valueAt(course, -0.1)));
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(std::isnan(valueAt(Course({1, infinity}), 0.5)));
  EXPECT_EQ(valueAt(Course({1, infinity}), 1), infinity);
  EXPECT_TRUE(std::isnan(valueAt(course, 4.1)));
}

TEST(RunCourse, TakesTheValueBetweenPointsFarApart)
{
  EXPECT_DOUBLE_EQ(valueAt(Course({-1.7e308, 1.7e308}), 0.75), 0.85e308);
}

TEST(RunCourse, CountsPeaksThatStandOutByATenthOfTheRange)
{
  // The range is 10: the bump of 0.9 is noise, that of 1 is a peak.
  const Course course({0, 10, 5, 5.9, 5, 6, 0});
  EXPECT_EQ(peaksOf(course, none), (Values{1, 5}));
  EXPECT_EQ(peaksOf(course, 0.5), (Values{1, 3, 5}));
  EXPECT_EQ(peaksOf(course, 1.5), (Values{1}));
}

TEST(RunCourse, PutsALevelPeakInTheMiddle)
{
  EXPECT_EQ(peaksOf(Course({0, 2, 2, 0}), none), (Values{1.5}));
  EXPECT_EQ(peaksOf(Course({0, 2, 2, 3, 0}), none), (Values{3}));
}

TEST(RunCourse, TakesNoEndForAPeak)
{
  EXPECT_TRUE(peaksOf(Course({2, 1, 2}), none).empty());
  EXPECT_TRUE(peaksOf(Course({1, 2, 2}), none).empty());
  EXPECT_TRUE(peaksOf(Course({3, 3, 3}), none).empty());
}

TEST(RunCourse, FindsThePeaksOfManyWavesLikeTheDefinition)
{
  std::mt19937 random(5);
  for (int round = 0; round < 300; ++round)
  {
    Values y(40);
    for (double& value : y)
      value = static_cast<double>(random() % 12);
    for (const double least : {0.0, 1.0, 3.0, 7.0, 11.0})
      ASSERT_EQ(peaksOf(Course(y), least).size(), peaksByDefinition(y, least)) << round;
  }
}

TEST(RunCourse, LooksForPeaksPastMissingPoints)
{
  EXPECT_EQ(peaksOf(Course({0, none, 5, none, 1}), none), (Values{2}));
}

TEST(RunCourse, TakesThePeriodFromTheMiddleDistanceOfPeaks)
{
  // Peaks at 1, 3, 7 and 9: distances 2, 4 and 2.
  EXPECT_EQ(periodOf(Course({0, 1, 0, 1, 0, 0, 0, 1, 0, 1, 0}), none), 2);
  // Peaks at 1, 3 and 7.
  EXPECT_EQ(periodOf(Course({0, 1, 0, 1, 0, 0, 0, 1, 0}), none), 3);
  EXPECT_TRUE(std::isnan(periodOf(Course({0, 1, 0}), none)));
}

TEST(RunCourse, TakesThePeriodOfASine)
{
  Course course(Values(1001));
  for (std::size_t i = 0; i < course.y.size(); ++i)
  {
    course.x[i] = 0.1 * static_cast<double>(i);
    course.y[i] = 1e-12 * std::sin(course.x[i]);
  }
  EXPECT_NEAR(periodOf(course, none), 2 * std::acos(-1.0), 0.1);
  EXPECT_EQ(peaksOf(course, none).size(), 16U) << "100 / 2 pi, from pi / 2 on";
}
