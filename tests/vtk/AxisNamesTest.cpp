#include "vtk/AxisNames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Talmesh::AxisName;
using Talmesh::PlacedName;
using Talmesh::placeNames;

namespace
{

/// Ten pixels for each byte.
float tenPixels(const std::string& text)
{
  return 10.0F * static_cast<float>(text.size());
}

std::vector<PlacedName> placed(const std::vector<std::string>& texts, float first, float distance,
                               float width)
{
  std::vector<AxisName> names;
  for (const std::string& text : texts)
    names.push_back({text, first + distance * static_cast<float>(names.size())});
  return placeNames(names, width, tenPixels);
}

} // namespace

TEST(AxisNames, StandInOneRowBelowTheirAxesWhereTheyFit)
{
  const auto names = placed({"alpha", "beta", "max(A)"}, 60, 100, 320);
  ASSERT_EQ(names.size(), 3u);
  for (std::size_t i = 0; i < names.size(); ++i)
  {
    EXPECT_EQ(names[i].row, 0);
    EXPECT_EQ(names[i].x, 60 + 100 * static_cast<float>(i));
  }
  EXPECT_EQ(names[2].text, "max(A)");
}

TEST(AxisNames, TakeTurnsInTwoRowsWhereTheyWouldOverlap)
{
  const auto names = placed({"max(Alpha)", "beta", "max(Gamma)", "n"}, 60, 70, 400);
  EXPECT_EQ(names[0].text, "max(Alpha)");
  EXPECT_EQ(names[2].text, "max(Gamma)");
  for (std::size_t i = 0; i < names.size(); ++i)
    EXPECT_EQ(names[i].row, static_cast<int>(i % 2));
}

TEST(AxisNames, LoseTheirMiddleWhereTwoRowsAreNotEnough)
{
  const auto names = placed({"maximum(A)", "maximum(B)", "maximum(C)"}, 60, 40, 400);
  for (const PlacedName& name : names)
  {
    EXPECT_LE(tenPixels(name.text), 2 * 40 - 6);
    EXPECT_NE(name.text.find("..."), std::string::npos) << name.text;
    EXPECT_EQ(name.text.front(), 'm');
    EXPECT_EQ(name.text.back(), ')');
  }
}

TEST(AxisNames, StayWithinThePage)
{
  const auto names = placed({"a name of 20 letters", "b", "c name of 20 letters"}, 30, 250, 560);
  EXPECT_EQ(names[0].x, 106);
  EXPECT_EQ(names[1].x, 280);
  EXPECT_EQ(names[2].x, 560 - 106);
}

TEST(AxisNames, AreCutBetweenCharacters)
{
  // Two bytes each.
  const std::string text = "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6\xC3\xBC";
  for (const float distance : {20.0F, 30.0F, 35.0F, 40.0F, 45.0F, 50.0F})
  {
    const auto names = placed({text, text}, 60, distance, 400);
    std::string kept = names[0].text;
    const std::size_t at = kept.find("...");
    ASSERT_NE(at, std::string::npos) << distance;
    EXPECT_EQ(at % 2, 0u) << distance;
    EXPECT_EQ((kept.size() - 3) % 2, 0u) << distance;
  }
}

TEST(AxisNames, MayBeNoneOrOneOrLongerThanThePage)
{
  EXPECT_TRUE(placed({}, 0, 0, 100).empty());
  EXPECT_EQ(placed({"abc"}, 50, 0, 100).front().text, "abc");
  const PlacedName narrow = placed({"abcdefghijklmnopqrstuvwxyz", "b"}, 5, 4, 10).front();
  EXPECT_EQ(narrow.text, "...");
}
