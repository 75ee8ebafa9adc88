#include "app/session/SessionViews.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace Talmesh::app;

TEST(SessionViews, AreReadAsTheyWereWritten)
{
  const ShownRunColumns shown{false, {"min", "period"}, {2, 0}};
  const SessionViews read = readViews(objectOf({"lasso", "inside", "nearest", shown}), 3);
  EXPECT_EQ(read.tool, "lasso");
  EXPECT_EQ(read.rule, "inside");
  EXPECT_EQ(read.courses, "nearest");
  ASSERT_TRUE(read.runTable);
  EXPECT_EQ(*read.runTable, shown);
}

TEST(SessionViews, SayNothingOfWhatNobodyHasChosen)
{
  EXPECT_TRUE(objectOf(SessionViews()).isEmpty());
  EXPECT_FALSE(readViews({}, 3).runTable);
}

TEST(SessionViews, LeaveOutColumnsThatTheTableDoesNotHave)
{
  const SessionViews read = readViews(objectOf({{}, {}, {}, ShownRunColumns{true, {}, {1, 3}}}), 3);
  ASSERT_TRUE(read.runTable);
  EXPECT_EQ(read.runTable->items, std::vector<int>{1});
}

TEST(SessionViews, AreEmptyWhereTheyAreMistyped)
{
  const SessionViews read = readViews(
      {{"tool", 7}, {"runTable", QJsonObject{{"features", QJsonArray{3, "max"}}, {"items", "x"}}}},
      3);
  EXPECT_EQ(read.tool, "");
  ASSERT_TRUE(read.runTable);
  EXPECT_TRUE(read.runTable->parameters);
  EXPECT_EQ(read.runTable->features, std::vector<std::string>{"max"});
  EXPECT_TRUE(read.runTable->items.empty());
}
