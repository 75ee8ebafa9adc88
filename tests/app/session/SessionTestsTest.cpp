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
