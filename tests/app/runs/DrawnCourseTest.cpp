#include "app/runs/NearestPlace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using Talmesh::app::crossesLine;
using Talmesh::app::DrawnManner;
using Talmesh::app::DrawnPoint;
using Talmesh::app::DrawnScale;
using Talmesh::app::DrawnWindow;
using Talmesh::app::entersPolygon;
using Talmesh::app::NearestPlace;
using Talmesh::app::nearestPlace;
using Talmesh::app::passesThrough;
using Talmesh::app::RunCourse;
using Talmesh::app::staysInside;

namespace
{

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr DrawnScale plain{};
constexpr DrawnScale logY{false, true};

struct Course
{
  operator RunCourse() const { return {x.data(), y.data(), y.size()}; }

  std::vector<double> x;
  std::vector<double> y;
};

/// From (0, 0) up to (10, 100) and down to (20, 0).
const Course roof{{0, 10, 20}, {0, 100, 0}};

} // namespace

TEST(DrawnCourse, PassesThroughAWindowBetweenItsPoints)
{
  EXPECT_TRUE(passesThrough(roof, {4, 6, 45, 55}, plain));
  EXPECT_FALSE(passesThrough(roof, {4, 6, 75, 95}, plain));
  EXPECT_FALSE(passesThrough(roof, {8, 12, 0, 50}, plain)) << "below the roof";
  EXPECT_TRUE(passesThrough(roof, {-5, 25, -5, 105}, plain)) << "all within";
}

TEST(DrawnCourse, PassesThroughTheSidesOfAWindow)
{
  EXPECT_TRUE(passesThrough(roof, {9, 11, 100, 200}, plain)) << "touches the peak";
  EXPECT_TRUE(passesThrough(roof, {20, 30, -10, 10}, plain)) << "touches the end";
  EXPECT_FALSE(passesThrough(roof, {20.001, 30, -10, 10}, plain));
}

TEST(DrawnCourse, TakesTheSidesOfAWindowInAnyOrder)
{
  EXPECT_TRUE(passesThrough(roof, {6, 4, 55, 45}, plain));
}

TEST(DrawnCourse, BreaksItsLineAtMissingPoints)
{
  const Course broken{{0, 10, 20}, {0, none, 0}};
  EXPECT_FALSE(passesThrough(broken, {5, 15, -1, 1}, plain));
  EXPECT_TRUE(passesThrough(broken, {19, 21, -1, 1}, plain)) << "the last point stands alone";
  EXPECT_FALSE(crossesLine(broken, {10, -1}, {10, 1}, plain));
}

TEST(DrawnCourse, DrawsStraightLinesBetweenTheDecadesOfALogAxis)
{
  const Course rise{{0, 10}, {1, 100}};
  // Half way the line is at 50.5, on a logarithmic axis at 10.
  EXPECT_TRUE(passesThrough(rise, {4.9, 5.1, 9, 11}, logY));
  EXPECT_FALSE(passesThrough(rise, {4.9, 5.1, 9, 11}, plain));
  EXPECT_FALSE(passesThrough(rise, {4.9, 5.1, 45, 55}, logY));
  EXPECT_TRUE(passesThrough(rise, {4.9, 5.1, 45, 55}, plain));
}

TEST(DrawnCourse, MissesWhatALogAxisCannotShow)
{
  const Course decay{{0, 10, 20}, {1, 0, 1}};
  EXPECT_FALSE(passesThrough(decay, {5, 15, 1e-300, 10}, logY));
  EXPECT_TRUE(passesThrough(decay, {-1, 1, -5, 10}, logY)) << "a window from below the axis";
}

TEST(DrawnCourse, StaysInsideAtEveryTimeThatTheWindowCovers)
{
  const Course wave{{0, 1, 2, 3}, {5, 6, 5, 50}};
  EXPECT_TRUE(staysInside(wave, {0, 2, 4, 7}, plain));
  EXPECT_FALSE(staysInside(wave, {0, 3, 4, 7}, plain));
  EXPECT_TRUE(staysInside(wave, {0.2, 0.8, 5.1, 5.9}, plain)) << "between two points";
  EXPECT_FALSE(staysInside(wave, {0.2, 0.8, 5.1, 5.7}, plain));
  EXPECT_FALSE(staysInside(wave, {2.1, 2.2, 4, 7}, plain)) << "the line is at 9.5 already";
}

TEST(DrawnCourse, StaysInsideNoWindowThatCoversNoneOfItsTimes)
{
  EXPECT_FALSE(staysInside(roof, {30, 40, -10, 110}, plain));
  EXPECT_TRUE(staysInside(roof, {-30, 40, -10, 110}, plain)) << "where it has times";
}

TEST(DrawnCourse, StaysInsideNothingWhereItIsBroken)
{
  const Course broken{{0, 1, 2, 3, 4}, {5, 5, none, 5, 5}};
  EXPECT_FALSE(staysInside(broken, {0, 4, 4, 6}, plain));
  EXPECT_FALSE(staysInside(broken, {0, 1.5, 4, 6}, plain)) << "no line from 1 to 1.5";
  EXPECT_FALSE(staysInside(broken, {2.5, 4, 4, 6}, plain)) << "nor from 2.5 to 3";
  EXPECT_FALSE(staysInside(broken, {1.2, 1.8, 4, 6}, plain));
  EXPECT_TRUE(staysInside(broken, {0, 1, 4, 6}, plain)) << "broken elsewhere";
  EXPECT_TRUE(staysInside(broken, {3, 4, 4, 6}, plain)) << "broken elsewhere";
  EXPECT_TRUE(staysInside(broken, {0.5, 0.7, 4, 6}, plain)) << "broken elsewhere";
}

TEST(DrawnCourse, CrossesALine)
{
  EXPECT_TRUE(crossesLine(roof, {5, 0}, {5, 100}, plain));
  EXPECT_FALSE(crossesLine(roof, {5, 60}, {5, 100}, plain));
  EXPECT_TRUE(crossesLine(roof, {10, 100}, {10, 200}, plain)) << "touches";
  EXPECT_TRUE(crossesLine(roof, {-5, -50}, {5, 50}, plain)) << "lies on it in part";
  EXPECT_FALSE(crossesLine(roof, {-5, -50}, {-1, -10}, plain)) << "on its straight extension";
}

TEST(DrawnCourse, CrossesALineOnALogAxis)
{
  const Course rise{{0, 10}, {1, 100}};
  EXPECT_TRUE(crossesLine(rise, {5, 9}, {5, 11}, logY));
  EXPECT_FALSE(crossesLine(rise, {5, 45}, {5, 55}, logY));
  EXPECT_FALSE(crossesLine(rise, {5, -1}, {5, 55}, logY)) << "ends nowhere on the axis";
}

TEST(DrawnCourse, EntersAPolygon)
{
  const std::vector<DrawnPoint> triangle = {{4, 40}, {8, 40}, {4, 80}};
  EXPECT_TRUE(entersPolygon(roof, triangle, plain));
  EXPECT_FALSE(entersPolygon(roof, {{8, 10}, {12, 10}, {10, 60}}, plain)) << "below the roof";
  EXPECT_TRUE(entersPolygon(roof, {{-99, -99}, {99, -99}, {0, 999}}, plain)) << "all within";
  EXPECT_FALSE(entersPolygon(roof, {{4, 40}, {8, 80}}, plain)) << "no inside";
}

TEST(DrawnCourse, EntersNoCornersOnOneLine)
{
  EXPECT_FALSE(entersPolygon(roof, {{4, 50}, {5, 50}, {6, 50}}, plain)) << "across the line";
  EXPECT_FALSE(entersPolygon(roof, {{5, 50}, {5, 50}, {5, 50}}, plain)) << "a point of it";
  EXPECT_FALSE(entersPolygon(Course{{0, 2}, {1, 100}}, {{0, 100}, {1, 10}, {2, 1}}, logY))
      << "on one line where it is drawn";
  EXPECT_TRUE(entersPolygon(Course{{0, 2}, {1, 100}}, {{0, 100}, {1, 50}, {2, 1}}, logY));
}

TEST(DrawnCourse, EntersTheLegsButNotTheGapOfAHorseshoe)
{
  // Two legs below x = 4 and above x = 6, joined above y = 8.
  const std::vector<DrawnPoint> horseshoe = {{2, 0}, {4, 0}, {4, 8},  {6, 8},
                                             {6, 0}, {8, 0}, {8, 10}, {2, 10}};
  EXPECT_FALSE(entersPolygon(Course{{5, 5}, {1, 7}}, horseshoe, plain));
  EXPECT_TRUE(entersPolygon(Course{{5, 5}, {1, 9}}, horseshoe, plain));
  EXPECT_TRUE(entersPolygon(Course{{3, 3.5}, {1, 7}}, horseshoe, plain));
}

TEST(DrawnCourse, HasPointsOnTheBorderOfAPolygonAsWell)
{
  const Course two{{0, 4}, {0, 4}};
  EXPECT_TRUE(hasPointIn(two, {{4, 4}, {1, 3}, {1, 0.5}}, plain)) << "at a corner";
  EXPECT_TRUE(hasPointIn(two, {{1, 4}, {9, 4}, {5, 1}}, plain)) << "on a side";
  EXPECT_TRUE(hasPointIn(two, {{-1, 1}, {1, 1}, {0, -2}}, plain)) << "within";
  EXPECT_FALSE(hasPointIn(two, {{1, 1}, {3, 1}, {3, 3}}, plain)) << "only the line is there";
}

TEST(DrawnCourse, TellsTheDistanceFromAPointInUnitsOfTheScreen)
{
  // 0.1 in x and 10 in y are a pixel: the left slope has the direction (100, 10) pixels.
  const DrawnManner manner{plain, 0.1, 10, true};
  const auto distanceFrom = [&manner](const Course& course, const DrawnPoint& place)
  { return nearestPlace(course, place, manner, 50).distance; };
  EXPECT_NEAR(distanceFrom(roof, {5, 60}), 1 * 100 / std::hypot(100, 10), 1e-12);
  EXPECT_NEAR(distanceFrom(roof, {21, 0}), 10, 1e-12) << "beyond the end";
  EXPECT_EQ(distanceFrom(roof, {10, 100}), 0);
  EXPECT_EQ(distanceFrom(Course{{}, {}}, {0, 0}), infinity);
  EXPECT_EQ(nearestPlace(roof, {5, 60}, manner, 0.9).distance, infinity) << "not that near";
}

TEST(DrawnCourse, TellsThePlaceOfTheLineThatIsNearest)
{
  const DrawnManner manner{plain, 0.1, 10, true};
  const DrawnPoint onLine = nearestPlace(roof, {5, 50}, manner, 5).point;
  EXPECT_NEAR(onLine.x, 5, 1e-12);
  EXPECT_NEAR(onLine.y, 50, 1e-12);
  // Of (10, 100) it is 2 pixels away, of the slope less.
  const DrawnPoint own = nearestPlace(roof, {9.8, 100}, manner, 5).point;
  EXPECT_NEAR(own.x, 10, 1e-12);
  EXPECT_NEAR(own.y, 100, 1e-12);
  const DrawnManner points{plain, 0.1, 10, false};
  EXPECT_EQ(nearestPlace(roof, {5, 50}, points, 5).distance, infinity) << "no line is drawn";
}

TEST(DrawnCourse, IsNearestWhereLogarithmicAxesShowIt)
{
  // A decade is 100 pixels high: in the middle of the line lies the geometric mean.
  const Course rise{{0, 10}, {1, 100}};
  const DrawnManner manner{{false, true}, 0.1, 0.01, true};
  const NearestPlace middle = nearestPlace(rise, {5, 10}, manner, 5);
  EXPECT_NEAR(middle.distance, 0, 1e-12);
  EXPECT_NEAR(middle.point.y, 10, 1e-12);
  EXPECT_EQ(nearestPlace(rise, {5, 50}, manner, 5).distance, infinity);
  EXPECT_EQ(nearestPlace(Course{{0, 10}, {-1, 10}}, {9, 9}, manner, 5).distance, infinity)
      << "broken at what such an axis cannot show";
}

TEST(DrawnCourse, DrawsNoLineToInfinity)
{
  const Course spike{{0, 10, 20, 30}, {1, infinity, 1, 1}};
  EXPECT_FALSE(passesThrough(spike, {2, 18, 0, 1000}, plain));
  EXPECT_FALSE(staysInside(spike, {2, 18, 0, 2}, plain));
  EXPECT_TRUE(passesThrough(spike, {22, 28, 0, 1000}, plain));
}
