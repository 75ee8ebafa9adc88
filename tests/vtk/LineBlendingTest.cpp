#include "vtk/LineCounts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "LineReference.h"

/// Random studies drawn by counting and by exact blending of one line after another.
namespace
{
constexpr int width = 48;
constexpr int height = 40;
constexpr int runCount = 10;

struct Study
{
  std::vector<float> points;
  Talmesh::LinesToCount lines;
  Talmesh::PixelMap map;
};

enum class Shape
{
  TimeCourse, ///< x grows
  Noise,      ///< x grows, and every sample jumps
  Backwards,  ///< x falls
  Portrait,   ///< x goes to and fro
  Logarithms  ///< of times and values, some of which have none
};

Study makeStudy(Shape shape, int stride, double gaps, unsigned seed)
{
  std::mt19937 random(seed);
  std::normal_distribution<double> normal;
  std::uniform_real_distribution<double> uniform;
  Study study;
  for (int run = 0; run < runCount; ++run)
  {
    const double phase = 6.28 * uniform(random);
    for (int i = 0; i < stride; ++i)
    {
      const double t = static_cast<double>(i) / std::max(1, stride - 1);
      double x = width * (shape == Shape::Backwards ? 1 - t : t);
      double y = 20 + 14 * std::sin(9 * t + phase) + 0.3 * normal(random);
      if (shape == Shape::Noise)
        y = 20 + 6 * normal(random);
      if (shape == Shape::Portrait)
        x = 24 + 20 * std::cos(7 * t + 2 * phase);
      if (shape == Shape::Logarithms)
      {
        // As on a decade of times and on three of values, which sink below zero.
        x = width * std::log10(1 + 9 * t);
        y = 14 * std::log10(1 + 800 * std::sin(4 * t + 0.2 * phase));
      }
      if (uniform(random) < gaps)
        y = std::numeric_limits<double>::quiet_NaN();
      study.points.push_back(static_cast<float>(0.01 * x - 3));
      study.points.push_back(static_cast<float>(7 * y + 100));
    }
    study.lines.runs.push_back({run * stride, stride, run % 3 == 0 ? 4 : 1});
  }
  study.lines.points = study.points.data();
  study.map = {100, 300 + 0.37, 1 / 7.0, -100 / 7.0};
  return study;
}

struct Difference
{
  double mean = 0;  ///< over the pixels that either way colours
  double worst = 0; ///< beyond what the reference shows within one pixel
};

Difference compare(const std::vector<double>& exact, const Talmesh::OpacityImage& image)
{
  Difference found;
  int inked = 0;
  for (int row = 0; row < height; ++row)
  {
    for (int column = 0; column < width; ++column)
    {
      const auto here = static_cast<std::size_t>(row * width + column);
      const double value = image.values[here] / 255.0;
      double least = 1;
      double most = 0;
      for (int j = std::max(0, row - 1); j <= std::min(height - 1, row + 1); ++j)
      {
        for (int i = std::max(0, column - 1); i <= std::min(width - 1, column + 1); ++i)
        {
          least = std::min(least, exact[static_cast<std::size_t>(j * width + i)]);
          most = std::max(most, exact[static_cast<std::size_t>(j * width + i)]);
        }
      }
      found.worst = std::max({found.worst, value - most, least - value});
      if (value > 0 || exact[here] > 0)
      {
        found.mean += std::abs(value - exact[here]);
        ++inked;
      }
    }
  }
  found.mean /= std::max(1, inked);
  return found;
}

/// Greatest differences, in parts of the darkest pixel.
struct Tolerance
{
  double penWidth;
  double mean;
  double worst;
};

class LineBlending : public ::testing::TestWithParam<Shape>
{
protected:
  // The greatest differences over studies and opacities, in parts of the darkest pixel.
  Difference greatest(int finest, double penWidth)
  {
    Difference found;
    for (const auto& [stride, gaps] : {std::pair(1, 0.0), std::pair(2, 0.0), std::pair(15, 0.15),
                                       std::pair(150, 0.0), std::pair(150, 0.05)})
    {
      const Study study = makeStudy(GetParam(), stride, gaps, static_cast<unsigned>(stride));
      for (const double opacity : {0.05, 150.0 / 255.0, 1.0})
      {
        // A point without a line has a dot, but where the gaps are many.
        const Talmesh::LinePen pen{penWidth, opacity, gaps < 0.1 ? penWidth + 3 : 0, finest};
        const std::vector<double> exact = blendedLines(study.lines, study.map, width, height, pen);
        const double darkest = *std::max_element(exact.begin(), exact.end());
        const Difference difference =
            compare(exact, Talmesh::drawLines(study.lines, study.map, width, height, pen));
        found.mean = std::max(found.mean, difference.mean / darkest);
        found.worst = std::max(found.worst, difference.worst / darkest);
      }
    }
    return found;
  }
};
} // namespace

// A sample counts as lying in the middle of its quarter of a column, and the pen is a whole number
// of quarters wide. So tips of peaks, joints and ends differ by parts of a pixel: no pixel lies
// more than half a line outside of what the exact picture shows within one pixel of it, or a
// quarter of a line where the pen is wide enough to have pixels between its edges. On average it is
// an eighth of a pixel along the two edges of a line, so the wider the pen the less.
TEST_P(LineBlending, GivesThePictureOfExactBlending)
{
  const Tolerance tolerances[] = {{1.0, 0.12, 0.5}, {2.0, 0.08, 0.5}, {4.7, 0.04, 0.25}};
  for (const auto& [penWidth, mean, worst] : tolerances)
  {
    const Difference difference = greatest(4, penWidth);
    EXPECT_LT(difference.mean, mean) << penWidth;
    EXPECT_LT(difference.worst, worst) << penWidth;
  }
}

// A steep line is then as ragged as it is without antialiasing, so that single pixels say nothing.
TEST_P(LineBlending, StaysCloseWithAsManyColumnsAsPixels)
{
  const Tolerance tolerances[] = {{1.0, 0.2, 1.0}, {2.0, 0.15, 1.0}, {5.0, 0.14, 1.0}};
  for (const auto& [penWidth, mean, worst] : tolerances)
  {
    const Difference difference = greatest(1, penWidth);
    EXPECT_LT(difference.mean, mean) << penWidth;
    EXPECT_LT(difference.worst, worst) << penWidth;
  }
}

INSTANTIATE_TEST_SUITE_P(Studies, LineBlending,
                         ::testing::Values(Shape::TimeCourse, Shape::Noise, Shape::Backwards,
                                           Shape::Portrait, Shape::Logarithms));
