#include "stats/RoundTicks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Talmesh::stats::RoundTicks;

namespace
{
std::vector<std::string> labels(const RoundTicks& ticks)
{
  std::vector<std::string> texts;
  for (const double position : ticks.positions())
    texts.push_back(ticks.label(position));
  return texts;
}

RoundTicks ticksOf(double low, double high, double least)
{
  RoundTicks ticks(low, high);
  ticks.take(least);
  return ticks;
}

using Texts = std::vector<std::string>;
} // namespace

TEST(RoundTicks, TakeTheSmallestStepThatIsLargeEnough)
{
  for (const double unit : {1e-300, 1e-5, 1.0, 1e7, 1e300})
  {
    EXPECT_DOUBLE_EQ(ticksOf(0.0, 10.0 * unit, unit).step(), unit);
    EXPECT_DOUBLE_EQ(ticksOf(0.0, 10.0 * unit, 1.1 * unit).step(), 2.0 * unit);
    EXPECT_DOUBLE_EQ(ticksOf(0.0, 10.0 * unit, 2.1 * unit).step(), 5.0 * unit);
    EXPECT_DOUBLE_EQ(ticksOf(0.0, 10.0 * unit, 5.1 * unit).step(), 10.0 * unit);
  }
}

TEST(RoundTicks, AreMultiplesOfTheStepWithinTheEnds)
{
  EXPECT_EQ(labels(ticksOf(-1.3, 0.9, 0.5)), Texts({"-1.0", "-0.5", "0.0", "0.5"}));
  EXPECT_EQ(labels(ticksOf(0.1, 0.3, 0.1)), Texts({"0.1", "0.2", "0.3"}));
  EXPECT_EQ(labels(ticksOf(995.0, 1031.0, 20.0)), Texts({"1000", "1020"}));
  EXPECT_EQ(labels(ticksOf(0.21, 0.29, 0.5)), Texts());
}

TEST(RoundTicks, HaveEquallyManyDecimals)
{
  EXPECT_EQ(labels(ticksOf(0.0, 0.3, 0.05)),
            Texts({"0.00", "0.05", "0.10", "0.15", "0.20", "0.25", "0.30"}));
  EXPECT_EQ(labels(ticksOf(0.9999, 1.0001, 1e-4)), Texts({"0.9999", "1.0000", "1.0001"}));
}

TEST(RoundTicks, HaveExponentsWhereNumbersAreVeryLargeOrSmall)
{
  EXPECT_EQ(labels(ticksOf(0.0, 3e6, 1e6)), Texts({"0", "1e6", "2e6", "3e6"}));
  EXPECT_EQ(labels(ticksOf(0.0, 1.2e7, 5e6)), Texts({"0", "5e6", "1.0e7"}));
  EXPECT_EQ(labels(ticksOf(-2e-5, 2e-5, 2e-5)), Texts({"-2e-5", "0", "2e-5"}));
  EXPECT_EQ(ticksOf(0.0, 3e300, 1e300).longestLabel(), 5U);
}

TEST(RoundTicks, AreAThousandAtMost)
{
  EXPECT_EQ(ticksOf(0.0, 1.0, 1e-9).positions().size(), 1000U);
}
