#include "vtk/LineCounts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <thread>
#include <vector>

#include "LineReference.h"

using Talmesh::LinePen;
using Talmesh::PixelMap;

namespace
{
constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
constexpr PixelMap asGiven{};

/// Runs of points, x and y in turn.
struct Runs
{
  std::vector<float> points;
  Talmesh::LinesToCount lines;

  void add(const std::vector<float>& run, std::int64_t weight = 1)
  {
    const auto first = static_cast<std::int64_t>(points.size() / 2);
    points.insert(points.end(), run.begin(), run.end());
    lines.runs.push_back({first, static_cast<std::int64_t>(run.size() / 2), weight});
    lines.points = points.data();
  }

  Talmesh::OpacityImage draw(int width, int height, const LinePen& pen,
                             const PixelMap& map = asGiven) const
  {
    return Talmesh::drawLines(lines, map, width, height, pen);
  }
};

int at(const Talmesh::OpacityImage& image, int x, int y)
{
  return image.values[static_cast<std::size_t>(y * image.width + x)];
}

int level(double opacity)
{
  return static_cast<int>(std::lround(255 * opacity));
}

int inked(const Talmesh::OpacityImage& image)
{
  return static_cast<int>(image.values.size()) -
         static_cast<int>(std::count(image.values.begin(), image.values.end(), 0));
}
} // namespace

TEST(LineCounts, AddsUpOpacityWhereRunsCross)
{
  for (const double a : {0.05, 0.3, 150.0 / 255.0, 1.0})
  {
    for (const int m : {1, 2, 7, 200})
    {
      Runs runs;
      for (int i = 0; i < m; ++i)
        runs.add({-5, 3.5, 15, 3.5});
      const auto image = runs.draw(10, 8, {1.0, a, 0});
      EXPECT_NEAR(at(image, 4, 3), level(1 - std::pow(1 - a, m)), 1) << a << " " << m;
      EXPECT_EQ(at(image, 4, 2), 0);
      EXPECT_EQ(at(image, 4, 4), 0);
    }
  }
}

TEST(LineCounts, CountsARunAsOftenAsItsWeightSays)
{
  Runs repeated;
  Runs weighted;
  const std::vector<float> run{0, 1, 4, 9.3f, 11, 2, 20, 8};
  for (int i = 0; i < 5; ++i)
    repeated.add(run);
  weighted.add(run, 5);
  const LinePen pen{3.2, 0.2, 0};
  EXPECT_EQ(weighted.draw(20, 12, pen).values, repeated.draw(20, 12, pen).values);
}

TEST(LineCounts, CountsPartsOfPixelsSoThatLayersBlendExactly)
{
  Runs runs;
  for (int i = 0; i < 2; ++i)
    runs.add({-5, 3.75, 15, 3.75});
  // A line from 3.25 to 4.25: 3 / 4 of pixel 3, 1 / 4 of pixel 4.
  const auto image = runs.draw(10, 8, {1.0, 1.0, 0});
  EXPECT_NEAR(at(image, 4, 3), level(1 - 0.25 * 0.25), 1);
  EXPECT_NEAR(at(image, 4, 4), level(1 - 0.75 * 0.75), 1);
}

TEST(LineCounts, ShowsAPeakOfOneSampleAmongThousands)
{
  Runs runs;
  std::vector<float> run;
  for (int i = 0; i < 5000; ++i)
    run.insert(run.end(), {static_cast<float>(i), i == 2550 ? 40.0f : 5.0f});
  runs.add(run);
  const auto image = runs.draw(50, 50, {1.0, 1.0, 0}, {0.01, 0, 1, 0});
  for (int row = 6; row < 39; ++row)
    EXPECT_EQ(at(image, 25, row), 255) << row;
  EXPECT_EQ(at(image, 24, 20), 0);
  EXPECT_EQ(at(image, 26, 20), 0);
}

TEST(LineCounts, CountsOnceWhatARunCoversTwice)
{
  Runs runs;
  runs.add({1, 5.5, 18, 5.5, 2, 5.5, 17, 5.5, 10, 1, 10, 10, 10, 1});
  const auto image = runs.draw(20, 12, {1.0, 0.4, 0});
  for (int column = 3; column < 16; ++column)
    EXPECT_NEAR(at(image, column, 5), level(0.4), 1) << column;
}

TEST(LineCounts, BreaksLinesAtWhatIsNoNumber)
{
  const float infinite = std::numeric_limits<float>::infinity();
  for (const float bad : {NaN, infinite, -infinite})
  {
    Runs runs;
    runs.add({0, 2.5, 5, 2.5, 7, bad, 9, 2.5, 20, 2.5, bad, 2.5});
    const auto image = runs.draw(20, 5, {1.0, 1.0, 0});
    EXPECT_EQ(at(image, 3, 2), 255);
    EXPECT_EQ(at(image, 7, 2), 0) << bad;
    EXPECT_EQ(at(image, 12, 2), 255);
  }
}

TEST(LineCounts, BreaksLinesAtMarkedPoints)
{
  Runs runs;
  runs.add({0, 2.5, 5, 2.5, 7, 2.5, 9, 2.5, 20, 2.5});
  const std::vector<unsigned char> broken{0, 0, 1, 0, 0};
  runs.lines.broken = broken.data();
  const auto image = runs.draw(20, 5, {1.0, 1.0, 0});
  EXPECT_EQ(at(image, 3, 2), 255);
  EXPECT_EQ(at(image, 7, 2), 0);
  EXPECT_EQ(at(image, 12, 2), 255);
}

TEST(LineCounts, DrawsADotForAPointWithoutLineOnlyWhereAsked)
{
  Runs runs;
  runs.add({10, 10});
  runs.add({20, 10, 25, NaN, 30, 10, 38, 10});
  EXPECT_EQ(at(runs.draw(40, 20, {1.0, 1.0, 0}), 10, 10), 0);
  EXPECT_EQ(at(runs.draw(40, 20, {1.0, 1.0, 0}), 20, 10), 0);
  const auto image = runs.draw(40, 20, {1.0, 1.0, 4.0});
  for (const int x : {10, 20})
  {
    EXPECT_EQ(at(image, x, 10), 255);
    EXPECT_EQ(at(image, x - 1, 9), 255);
    EXPECT_EQ(at(image, x + 3, 10), 0);
    EXPECT_EQ(at(image, x, 13), 0);
  }
  EXPECT_EQ(at(image, 30, 12), 0) << "the end of a line";
}

TEST(LineCounts, DrawsLinesThatComeFromFarOutside)
{
  Runs runs;
  runs.add({-1e30f, 2.5, 1e30f, 2.5});
  runs.add({-100, -100, 110, 110});
  runs.add({5.5, -1e30f, 5.5, 1e30f});
  const auto image = runs.draw(10, 10, {1.0, 1.0, 0});
  EXPECT_EQ(at(image, 0, 2), 255);
  EXPECT_EQ(at(image, 9, 2), 255);
  EXPECT_GT(at(image, 8, 8), 150);
  EXPECT_EQ(at(image, 5, 0), 255);
  EXPECT_EQ(at(image, 5, 9), 255);
}

TEST(LineCounts, LeavesOutWhatLiesOutside)
{
  Runs runs;
  runs.add({-20, 5, -5, 5});
  runs.add({25, 5, 40, 5, 30, 5});
  runs.add({0, 50, 20, 60});
  runs.add({0, -50, 20, -60});
  EXPECT_EQ(inked(runs.draw(20, 10, {4.0, 1.0, 6.0})), 0);
}

TEST(LineCounts, IsEmptyWithoutRunsPixelsOrOpacity)
{
  Runs runs;
  EXPECT_EQ(inked(runs.draw(20, 10, {1.0, 1.0, 0})), 0);
  runs.add({0, 5, 20, 5});
  for (int i = 0; i < 5000; ++i)
    runs.add({0, 5, 20, 5});
  EXPECT_EQ(inked(runs.draw(20, 10, {1.0, 0.0, 0})), 0);
  EXPECT_TRUE(runs.draw(0, 10, {1.0, 1.0, 0}).values.empty());
  EXPECT_TRUE(runs.draw(10, 0, {1.0, 1.0, 0}).values.empty());
}

TEST(LineCounts, DrawsSteepLinesAsWideAsLevelOnes)
{
  for (const float width : {1.0f, 2.0f, 4.7f})
  {
    Runs level;
    level.add({-10, 20.3f, 60, 20.3f});
    Runs steep;
    steep.add({20.3f, -10, 20.31f, 60});
    Runs slanted;
    slanted.add({-10, -10, 60, 60});
    const auto ink = [&](const Runs& runs)
    {
      const auto image = runs.draw(40, 40, {width, 1.0, 0});
      double sum = 0;
      for (const unsigned char value : image.values)
        sum += value / 255.0;
      return sum / 40;
    };
    EXPECT_NEAR(ink(level), width, 0.05) << width;
    EXPECT_NEAR(ink(steep), width, 0.26) << "a quarter of a pixel is the finest column";
    EXPECT_NEAR(ink(slanted), width * std::sqrt(2.0), 0.05 * width * std::sqrt(2.0)) << width;
  }
}

TEST(LineCounts, BoundsWhatItsThreadsHoldTogether)
{
  using Talmesh::workersFor;
  const std::int64_t many = 10000000;
  EXPECT_EQ(workersFor(many, 1000000), std::clamp(std::thread::hardware_concurrency(), 1u, 8u));
  EXPECT_EQ(workersFor(1000, 1000000), 1u);
  EXPECT_EQ(workersFor(many, 35000000), 1u) << "one page at 600 dots per inch";
  EXPECT_EQ(workersFor(many, 1000000000), 1u);
}
