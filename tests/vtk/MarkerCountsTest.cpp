#include "vtk/MarkerCounts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

using Talmesh::MarkerSprite;
using Talmesh::SpriteShape;

namespace
{
// Rows from the top.
std::string pictureOf(SpriteShape shape, int size, bool highlighted = false, int stroke = 1)
{
  const MarkerSprite sprite(static_cast<int>(shape), size, highlighted, stroke);
  std::string picture;
  for (int row = size - 1; row >= 0; --row)
  {
    for (int column = 0; column < size; ++column)
      picture += sprite.mask()[static_cast<std::size_t>(row * size + column)] ? '#' : '.';
    picture += '|';
  }
  return picture;
}

const MarkerSprite square(static_cast<int>(SpriteShape::Square), 3, false);

Talmesh::OpacityImage draw(const std::vector<float>& points, double opacity,
                           const MarkerSprite& sprite = square)
{
  return Talmesh::drawMarkers({points.data(), static_cast<std::int64_t>(points.size() / 2)}, {}, 20,
                              10, sprite, opacity);
}

int at(const Talmesh::OpacityImage& image, int x, int y)
{
  return image.values[static_cast<std::size_t>(y * image.width + x)];
}
} // namespace

TEST(MarkerCounts, HaveTheShapesOfTheScreen)
{
  EXPECT_EQ(pictureOf(SpriteShape::Plus, 5), "..#..|..#..|#####|..#..|..#..|");
  EXPECT_EQ(pictureOf(SpriteShape::Plus, 5, true), ".###.|#####|#####|#####|.###.|");
  EXPECT_EQ(pictureOf(SpriteShape::Cross, 5), "#...#|.#.#.|..#..|.#.#.|#...#|");
  EXPECT_EQ(pictureOf(SpriteShape::Square, 3), "###|###|###|");
  EXPECT_EQ(pictureOf(SpriteShape::Diamond, 5), "..#..|.###.|#####|.###.|..#..|");
  EXPECT_EQ(pictureOf(SpriteShape::Circle, 4), "....|.###|.###|.###|");
  EXPECT_EQ(pictureOf(static_cast<SpriteShape>(99), 3), pictureOf(SpriteShape::Plus, 3));
}

TEST(MarkerCounts, HaveTheStrokesOfLargerPixelRatios)
{
  EXPECT_EQ(pictureOf(SpriteShape::Plus, 5, false, 3), pictureOf(SpriteShape::Plus, 5, true));
  EXPECT_EQ(pictureOf(SpriteShape::Plus, 4, false, 2), ".##.|####|####|.##.|");
  EXPECT_EQ(pictureOf(SpriteShape::Cross, 5, false, 3), "##.##|#####|.###.|#####|##.##|");
  EXPECT_EQ(pictureOf(SpriteShape::Plus, 9, true, 2),
            "..######.|..######.|#########|#########|#########|#########|#########|#########|"
            "..######.|");
  EXPECT_EQ(pictureOf(SpriteShape::Square, 3, false, 2), pictureOf(SpriteShape::Square, 3));
}

TEST(MarkerCounts, LieAroundTheirPoints)
{
  const auto image = draw({7.5f, 4.5f}, 1.0);
  for (int y = 0; y < 10; ++y)
  {
    for (int x = 0; x < 20; ++x)
      EXPECT_EQ(at(image, x, y), x >= 6 && x <= 8 && y >= 3 && y <= 5 ? 255 : 0) << x << " " << y;
  }
}

TEST(MarkerCounts, AddUpTheirOpacity)
{
  for (const double a : {0.05, 0.4, 1.0})
  {
    for (const int m : {1, 3, 500})
    {
      std::vector<float> points;
      for (int i = 0; i < m; ++i)
        points.insert(points.end(), {7.5f, 4.5f});
      points.insert(points.end(), {9.5f, 4.5f});
      const auto image = draw(points, a);
      EXPECT_NEAR(at(image, 6, 4), 255 * (1 - std::pow(1 - a, m)), 1) << a << " " << m;
      EXPECT_NEAR(at(image, 8, 4), 255 * (1 - std::pow(1 - a, m + 1)), 1);
      EXPECT_NEAR(at(image, 10, 4), 255 * a, 1);
    }
  }
}

TEST(MarkerCounts, ReachIntoThePictureFromBesideIt)
{
  const auto image =
      draw({-0.5f, 4.5f, 20.5f, 4.5f, 10.5f, 10.5f, 10.5f, -0.5f, 15.5f, 12.5f}, 1.0);
  EXPECT_EQ(at(image, 0, 4), 255);
  EXPECT_EQ(at(image, 1, 4), 0);
  EXPECT_EQ(at(image, 19, 4), 255);
  EXPECT_EQ(at(image, 10, 9), 255);
  EXPECT_EQ(at(image, 10, 0), 255);
  EXPECT_EQ(at(image, 15, 9), 0);
}

TEST(MarkerCounts, PassOverPointsThatAreNone)
{
  const float bad = std::numeric_limits<float>::quiet_NaN();
  const float infinite = std::numeric_limits<float>::infinity();
  const auto image =
      draw({bad, 4.5f, 5.5f, bad, infinite, 4.5f, 5.5f, -infinite, 1e30f, 1e30f}, 1.0);
  EXPECT_EQ(image.values, std::vector<unsigned char>(200, 0));
  const std::vector<float> points{5.5f, 5.5f, 9.5f, 5.5f};
  const std::vector<unsigned char> broken{1, 0};
  const auto one = Talmesh::drawMarkers({points.data(), 2, broken.data()}, {}, 20, 10, square, 1.0);
  EXPECT_EQ(at(one, 5, 5), 0);
  EXPECT_EQ(at(one, 9, 5), 255);
  EXPECT_EQ(draw({5.5f, 5.5f}, 0.0).values, std::vector<unsigned char>(200, 0));
}

TEST(MarkerCounts, OfColoursLieOverEarlierOnes)
{
  const std::vector<float> points{5.5f, 5.5f, 6.5f, 5.5f, 5.5f, 5.5f, 15.5f, 5.5f};
  const std::vector<unsigned char> colors{1, 1, 1, 255, 2, 2, 2, 255, 3, 3, 3, 255, 4, 4, 4, 255};
  const auto image =
      Talmesh::drawColoredMarkers({points.data(), 4}, colors.data(), {}, 20, 10, square);
  const auto red = [&](int x, int y) { return image[static_cast<std::size_t>(4 * (y * 20 + x))]; };
  EXPECT_EQ(red(4, 5), 3);
  EXPECT_EQ(red(6, 5), 3) << "the third point's marker, over the second's";
  EXPECT_EQ(red(7, 5), 2);
  EXPECT_EQ(red(15, 5), 4);
  EXPECT_EQ(image[4 * (5 * 20 + 10) + 3], 0);
  EXPECT_EQ(image[4 * (5 * 20 + 15) + 3], 255);
}
