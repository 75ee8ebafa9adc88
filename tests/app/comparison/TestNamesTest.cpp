#include "app/comparison/TestNames.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;
using Talmesh::stats::Adjustment;
using Talmesh::stats::ComparedBy;

TEST(TestNames, HaveAKeyOfTheirOwnForEachThatCanBeChosen)
{
  EXPECT_EQ(comparedByNames().size(), static_cast<int>(ComparedBy::counts) + 1);
  EXPECT_EQ(adjustmentNames().size(), static_cast<int>(Adjustment::maxT) + 1);
  for (const QList<ChoiceName>& names : {comparedByNames(), adjustmentNames()})
    for (int position = 0; position < names.size(); ++position)
    {
      EXPECT_EQ(positionOf(names[position].key, names), position);
      EXPECT_FALSE(names[position].text.isEmpty());
      EXPECT_FALSE(names[position].toolTip.isEmpty());
    }
}

// Sessions of other versions have them.
TEST(TestNames, KeepTheirKeys)
{
  EXPECT_EQ(comparedByNames()[static_cast<int>(ComparedBy::distribution)].key, "distributions");
  EXPECT_EQ(comparedByNames()[static_cast<int>(ComparedBy::rankSum)].key, "ranks");
  EXPECT_EQ(comparedByNames()[static_cast<int>(ComparedBy::counts)].key, "counts");
  EXPECT_EQ(adjustmentNames()[static_cast<int>(Adjustment::benjaminiHochberg)].key,
            "benjaminiHochberg");
  EXPECT_EQ(adjustmentNames()[static_cast<int>(Adjustment::holm)].key, "holm");
  EXPECT_EQ(adjustmentNames()[static_cast<int>(Adjustment::maxT)].key, "maxT");
}

TEST(TestNames, TakeTheFirstForAKeyThatNobodyKnows)
{
  EXPECT_EQ(positionOf("tea leaves", comparedByNames()), 0);
  EXPECT_EQ(positionOf({}, adjustmentNames()), 0);
}
