#include "app/session/SessionTests.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;

TEST(SessionTests, AreReadAsTheyWereWritten)
{
  for (int comparedBy = 0; comparedBy < 3; ++comparedBy)
    for (int adjustment = 0; adjustment < 3; ++adjustment)
    {
      const SessionTests read = readTests(objectOf({comparedBy, adjustment, adjustment == 1}));
      EXPECT_EQ(read.comparedBy, comparedBy);
      EXPECT_EQ(read.adjustment, adjustment);
      EXPECT_EQ(read.halves, adjustment == 1);
    }
}

TEST(SessionTests, KeepTheFirstValueOfWhatIsUnknown)
{
  const SessionTests read = readTests({{"compare", "tea leaves"}, {"adjust", 7}, {"halves", "x"}});
  EXPECT_EQ(read.comparedBy, 0);
  EXPECT_EQ(read.adjustment, 0);
  EXPECT_FALSE(read.halves);
}
