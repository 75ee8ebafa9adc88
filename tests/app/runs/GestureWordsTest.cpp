#include "app/runs/GestureWords.h"

#include <gtest/gtest.h>

#include <string>

using Talmesh::app::DrawnGesture;
using Talmesh::app::GestureRule;
using Talmesh::app::gestureWords;

namespace
{

using Kind = DrawnGesture::Kind;

/// A pixel is 20 in x and 0.5 in y.
DrawnGesture rectangle()
{
  return {Kind::Rectangle, {{9001.234567, 260.04321}, {9501.2, 149.97}}, {}, 20, 0.5};
}

} // namespace

TEST(GestureWords, SayARectangleInNumbersThatAPixelTellsApart)
{
  EXPECT_EQ(gestureWords(rectangle(), GestureRule::Through, {"TetR"}, ""),
            "through(TetR, 9001, 9501, 149.97, 260.04)");
  DrawnGesture coarse = rectangle();
  coarse.unitsX = 2000;
  coarse.unitsY = 50;
  EXPECT_EQ(gestureWords(coarse, GestureRule::Inside, {"TetR"}, ""),
            "inside(TetR, 9000, 9500, 150, 260)");
}

TEST(GestureWords, AreMetByAnyOfTheItems)
{
  EXPECT_EQ(gestureWords(rectangle(), GestureRule::Points, {"TetR", "Molecule: cI"}, "[x]"),
            "dot(TetR over \"[x]\", 9001, 9501, 149.97, 260.04) or "
            "dot(\"Molecule: cI\" over \"[x]\", 9001, 9501, 149.97, 260.04)");
}

TEST(GestureWords, SayWhichAxesAreLogarithmic)
{
  // A pixel is a hundredth of a decade: 2.3 % of the value.
  const DrawnGesture line{Kind::Line, {{0.00123456, 1}, {123.456, 2}}, {true, true}, 0.01, 0.01};
  EXPECT_EQ(gestureWords(line, GestureRule::Through, {"A"}, ""),
            "crosses(A, 0.001235, 1, 123.5, 2, logxy)");
}

TEST(GestureWords, SayTheCornersOfALasso)
{
  const DrawnGesture lasso{Kind::Lasso, {{0, 1e-13}, {-10, 0}, {5, 1e-12}}, {}, 1, 1e-13};
  EXPECT_EQ(gestureWords(lasso, GestureRule::Through, {"A"}, ""),
            "lasso(A, 0, 1e-13, -10, 0, 5, 1e-12)");
  EXPECT_EQ(gestureWords(lasso, GestureRule::Points, {"A"}, ""),
            "dotlasso(A, 0, 1e-13, -10, 0, 5, 1e-12)");
}

TEST(GestureWords, TakeWhatIsLessThanATenthOfAPixelForZero)
{
  const DrawnGesture line{Kind::Line, {{-1e-17, 3}, {1, 4}}, {}, 0.01, 1};
  EXPECT_EQ(gestureWords(line, GestureRule::Through, {"A"}, ""), "crosses(A, 0, 3, 1, 4)");
}
