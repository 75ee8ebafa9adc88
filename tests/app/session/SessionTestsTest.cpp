#include "app/session/SessionTests.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;

TEST(SessionTests, AreReadAsTheyWereWritten)
{
  for (const bool halves : {false, true})
  {
    const SessionTests read = readTests(objectOf({"ranks", "holm", halves}));
    EXPECT_EQ(read.comparedBy, "ranks");
    EXPECT_EQ(read.adjustment, "holm");
    EXPECT_EQ(read.halves, halves);
  }
}

TEST(SessionTests, AreEmptyWhereTheyAreMistyped)
{
  const SessionTests read = readTests({{"adjust", 7}, {"halves", "x"}});
  EXPECT_TRUE(read.comparedBy.isEmpty());
  EXPECT_TRUE(read.adjustment.isEmpty());
  EXPECT_FALSE(read.halves);
}

TEST(SessionTests, KeepSeedAndSides)
{
  SessionTests tests;
  tests.seed = 4711.0;
  tests.compared = "low \u2264 1";
  tests.comparedWith = "high";
  tests.looked = 12;
  const SessionTests read = readTests(objectOf(tests));
  EXPECT_EQ(read.seed, 4711.0);
  EXPECT_EQ(read.compared, tests.compared);
  EXPECT_EQ(read.comparedWith, "high");
  EXPECT_EQ(read.looked, 12);
  for (const double seed : {0.0, -3.0, 1e17})
    EXPECT_EQ(readTests({{"seed", seed}}).seed, 1.0);
  EXPECT_EQ(readTests({{"looked", -1}}).looked, 0);
}

TEST(SessionTests, KeepTheDesign)
{
  SessionTests tests;
  tests.design = "saltelli";
  tests.designedParameters = 4;
  const SessionTests read = readTests(objectOf(tests));
  EXPECT_EQ(read.design, "saltelli");
  EXPECT_EQ(read.designedParameters, 4);
  EXPECT_FALSE(objectOf(SessionTests()).contains("design"));
  EXPECT_EQ(readTests({{"designedParameters", -4}}).designedParameters, 0);
}
