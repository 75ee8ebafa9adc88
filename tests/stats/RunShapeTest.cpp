#include "stats/RunShape.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace Talmesh::stats;

namespace
{

using Values = std::vector<double>;

RunShape shapeOf(const Values& values)
{
  return Talmesh::stats::shapeOf(values.data(), values.size());
}

double distance(const Values& a, const Values& b)
{
  Values unitA(a.size());
  Values unitB(b.size());
  writeUnitVector(a.data(), a.size(), shapeOf(a), unitA.data());
  writeUnitVector(b.data(), b.size(), shapeOf(b), unitB.data());
  return shapeDistance(shapeOf(a), shapeOf(b), dotProduct(unitA.data(), unitB.data(), a.size()));
}

TEST(RunShape, TakesRoundingNoiseForSteady)
{
  EXPECT_EQ(shapeOf({0.1, 0.1 + 1e-16, 0.1}).kind, RunShape::steady);
  EXPECT_EQ(shapeOf({1e300, 1e300 * (1.0 + 1e-15), 1e300}).kind, RunShape::steady);
  EXPECT_EQ(shapeOf({1e-310, 1e-310, 1e-310}).kind, RunShape::steady);
  EXPECT_EQ(shapeOf({-7.0, -7.0 + 5e-12}).kind, RunShape::steady);
  EXPECT_EQ(shapeOf({0.0, 0.0}).kind, RunShape::steady);
  EXPECT_EQ(shapeOf({}).kind, RunShape::steady);
  EXPECT_EQ(shapeOf({1.0, 1.0 + 1e-11}).kind, RunShape::varying);
  EXPECT_EQ(shapeOf({0.0, 1e-300}).kind, RunShape::varying) << "relative to the largest value";
}

TEST(RunShape, IsUndefinedWithAValueThatIsNotFinite)
{
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double bad : {std::nan(""), infinity, -infinity})
  {
    EXPECT_EQ(shapeOf({1.0, bad, 2.0}).kind, RunShape::undefined);
    EXPECT_EQ(shapeOf({bad, 1.0, 1.0}).kind, RunShape::undefined);
  }
}

// R 4.2.2: a <- sin(1:50); b <- cos((1:50) / 3) + (1:50) / 40; print(1 - cor(a, b), digits = 17)
TEST(RunShape, DistanceIsOneMinusTheCorrelation)
{
  Values a;
  Values b;
  for (int i = 1; i <= 50; ++i)
  {
    a.push_back(std::sin(i));
    b.push_back(std::cos(i / 3.0) + i / 40.0);
  }
  EXPECT_NEAR(distance(a, b), 0.9854860808547109, 1e-14);
  for (double& value : b)
    value *= 1e308 / 3.0;
  for (double& value : a)
    value = 5.0 + 1e-3 * value;
  EXPECT_NEAR(distance(a, b), 0.9854860808547109, 1e-12);
}

TEST(RunShape, DistanceWithoutACorrelation)
{
  EXPECT_EQ(distance({1, 1, 1}, {8, 8, 8}), 0.0);
  EXPECT_EQ(distance({1, 1, 1}, {1, 2, 3}), 1.0);
  EXPECT_EQ(distance({1, 2, 3}, {1, 1, 1}), 1.0);
  EXPECT_EQ(distance({1, 2, std::nan("")}, {1, 1, 1}), 2.0);
}

} // namespace
