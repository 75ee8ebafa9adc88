#include "app/session/SessionColumns.h"

#include "app/session/SessionSettings.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;

namespace
{

SessionColumns readFrom(const char* shown)
{
  const Result<SessionSettings> read =
      readSettings(QByteArray("{\"shown\": ") + shown + ", \"plot\": {}}", 4);
  EXPECT_EQ(read.error(), "");
  return read.value().shown;
}

} // namespace

TEST(SessionColumns, AreReadAsTheyWereWritten)
{
  SessionSettings settings;
  settings.shown.x = {{2, "max"}};
  settings.shown.y = {{0, ""}, {0, "period"}, {3, "final"}};
  settings.shown.axes = {{1, ""}};
  const SessionColumns read = readSettings(settingsText(settings), 4).value().shown;
  ASSERT_EQ(read.x.size(), 1u);
  EXPECT_EQ(read.x.front().column, 2);
  EXPECT_EQ(read.x.front().feature, "max");
  ASSERT_EQ(read.y.size(), 3u);
  EXPECT_EQ(read.y[0].feature, "");
  EXPECT_EQ(read.y[2].column, 3);
  EXPECT_TRUE(read.z.empty());
  ASSERT_EQ(read.axes.size(), 1u);
  EXPECT_EQ(read.axes.front().column, 1);
}

TEST(SessionColumns, AreNotWrittenWhereThereAreNone)
{
  EXPECT_FALSE(settingsText({}).contains("shown"));
}

TEST(SessionColumns, LeaveOutWhatTheTableDoesNotHave)
{
  const SessionColumns read =
      readFrom("{\"x\": [[4, \"max\"], [-1, \"max\"], 7, [\"2\"], []], \"y\": [[3, 5]], \"z\": 8}");
  EXPECT_TRUE(read.x.empty());
  ASSERT_EQ(read.y.size(), 1u);
  EXPECT_EQ(read.y.front().feature, "");
  EXPECT_TRUE(read.z.empty());
  EXPECT_TRUE(readFrom("[]").x.empty());
}
