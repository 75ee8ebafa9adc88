#include "app/session/SessionGroups.h"

#include "app/session/SessionSettings.h"

#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

SessionGroups groupsIn(const QByteArray& text)
{
  const Result<SessionSettings> read = readSettings(text, 4);
  EXPECT_EQ(read.error(), "");
  return read.value().groups;
}

class SessionGroupsInWindow : public WorkInWindow
{
};

} // namespace

TEST(SessionGroups, AreOneDigitPerRun)
{
  SessionSettings settings;
  settings.groups.groupOfRun = {0, 11, 10, 1};
  settings.groups.count = 12;
  settings.groups.mode = 2;
  settings.groups.look = {true, false, true};
  const QByteArray text = settingsText(settings);
  EXPECT_TRUE(text.contains("\"0ba1\"")) << text.toStdString();
  const SessionGroups read = groupsIn(text);
  EXPECT_EQ(read.groupOfRun, settings.groups.groupOfRun);
  EXPECT_EQ(read.count, 12);
  EXPECT_EQ(read.mode, 2);
  EXPECT_TRUE(read.look.groupColours);
  EXPECT_FALSE(read.look.groupMeans);
  EXPECT_TRUE(read.look.quartileBands);
}

TEST(SessionGroups, AreNoneInSessionsThatDoNotKnowThem)
{
  const SessionGroups read = groupsIn(R"({"name": "old"})");
  EXPECT_TRUE(read.groupOfRun.empty());
  EXPECT_FALSE(read.look.groupColours);
}

TEST(SessionGroups, AreNoneWhenDamaged)
{
  for (const char* text : {R"({"groups": {"ofRun": "01c"}})", R"({"groups": {"ofRun": [0, 1]}})",
                           R"({"groups": "01"})", R"({"groups": {"ofRun": "-1"}})"})
    EXPECT_TRUE(groupsIn(text).groupOfRun.empty()) << text;
}

TEST(SessionGroups, KeepTheNameOfTheFileThatTheyBelongTo)
{
  SessionSettings settings;
  settings.origin = {QString::fromUtf8("/a b/50%/\xc2\xb5.talmesh"), QByteArray("\x00\xff", 2)};
  const SessionOrigin read = readSettings(settingsText(settings), 4).value().origin;
  EXPECT_EQ(read.path, settings.origin.path);
  EXPECT_EQ(read.end, settings.origin.end);
}

TEST_F(SessionGroupsInWindow, AreLeftOutOfATableWithOtherRuns)
{
  group(2);
  ASSERT_TRUE(window.saveSessionTo(path("a.talmesh")));
  SessionParts parts = loadSessionFile(path("a.talmesh")).value().parts;
  ASSERT_TRUE(parts.settings.contains("\"010101\""));
  parts.settings.replace("\"010101\"", "\"0101010\"");
  ASSERT_EQ(saveSessionFile(path("b.talmesh"), parts), "");
  openIn(window, path("b.talmesh"));
  EXPECT_EQ(find<QListWidget>("clusterList")->count(), 0);
  EXPECT_FALSE(find<QCheckBox>("groupColours")->isChecked());
  openIn(window, path("a.talmesh"));
  EXPECT_EQ(find<QListWidget>("clusterList")->count(), 2);
  EXPECT_TRUE(find<QCheckBox>("groupColours")->isChecked());
}
