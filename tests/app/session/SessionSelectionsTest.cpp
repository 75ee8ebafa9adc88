#include "app/session/SessionSelections.h"

#include "app/session/SessionSettings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

SessionSettings settingsIn(const QByteArray& text)
{
  const Result<SessionSettings> read = readSettings(text, 4);
  EXPECT_EQ(read.error(), "");
  return read.value();
}

SessionSettings throughAFile(const std::vector<KeptSelection>& kept, const std::string& words = {})
{
  SessionSettings settings;
  settings.kept = kept;
  settings.words = words;
  return settingsIn(settingsText(settings));
}

using Bits = std::vector<bool>;

} // namespace

TEST(SessionSelections, AreADigitForFourRuns)
{
  const std::vector<KeptSelection> kept{
      {"oscillating \xC3\xBC", 0x01FF80, {true, false, false, false, false, true}, "k > 1"},
      {"silent", 0, Bits(8, true), ""},
      {"none", 0xFFFFFF, Bits(4, false), ""}};
  const QByteArray text = [&kept]
  {
    SessionSettings settings;
    settings.kept = kept;
    return settingsText(settings);
  }();
  for (const char* part : {"\"84\"", "\"#01ff80\"", "\"ff\"", "\"#000000\"", "\"0\""})
    EXPECT_TRUE(text.contains(part)) << part << text.toStdString();
  EXPECT_EQ(settingsIn(text).kept, kept);
}

TEST(SessionSelections, OfAnyNumberOfRunsComeBack)
{
  for (std::size_t runs = 1; runs < 40; ++runs)
  {
    Bits bits;
    for (std::size_t run = 0; run < runs; ++run)
      bits.push_back(run * run % 7 < 3);
    const std::vector<KeptSelection> kept{{"a", 1, bits, "b"}};
    EXPECT_EQ(throughAFile(kept).kept, kept) << runs;
  }
}

TEST(SessionSelections, AreNoneInSessionsThatDoNotKnowThem)
{
  const SessionSettings read = settingsIn(R"({"name": "old"})");
  EXPECT_TRUE(read.kept.empty());
  EXPECT_EQ(read.words, "");
}

TEST(SessionSelections, AreLeftOutWhereTheyAreDamaged)
{
  for (const char* selection :
       {R"({})", R"("84")", R"({"of": 6})", R"({"of": 6, "runs": 84})",
        R"({"of": 6, "runs": "8g"})", R"({"of": 6, "runs": "8"})", R"({"of": 6, "runs": "840"})",
        R"({"of": -6, "runs": "84"})", R"({"of": 0, "runs": ""})", R"({"of": 5.5, "runs": "84"})",
        R"({"of": 1e300, "runs": "84"})", R"({"of": "6", "runs": "84"})",
        R"({"of": 6, "runs": "-4"})", R"([1])", "null"})
  {
    const std::string text = std::string(R"({"kept": [)") + selection +
                             R"(, {"name": "whole", "of": 6, "runs": "84"}]})";
    const std::vector<KeptSelection> kept = settingsIn(QByteArray(text.c_str())).kept;
    ASSERT_EQ(kept.size(), 1U) << selection;
    EXPECT_EQ(kept.front().name, "whole");
    EXPECT_EQ(kept.front().runs, (Bits{true, false, false, false, false, true}));
    EXPECT_EQ(kept.front().colour, 0U);
  }
  for (const char* text : {R"({"kept": {}})", R"({"kept": "84"})", R"({"kept": 1, "words": 1})"})
    EXPECT_TRUE(settingsIn(text).kept.empty()) << text;
}

TEST(SessionSelections, HaveTheColourBlackWhereThatIsDamaged)
{
  for (const char* colour : {R"("red")", R"("#xyz")", "12", R"("")"})
  {
    const std::string text =
        std::string(R"({"kept": [{"of": 1, "runs": "8", "colour": )") + colour + "}]}";
    ASSERT_EQ(settingsIn(text.c_str()).kept.size(), 1U) << colour;
    EXPECT_EQ(settingsIn(text.c_str()).kept.front().colour, 0U) << colour;
  }
}

TEST(SessionSelections, AreAsManyAsASessionHasRoomFor)
{
  EXPECT_EQ(mostKeptSelections(400), 100U);
  EXPECT_EQ(mostKeptSelections(100'000'000), 1U);
  const std::size_t runs = 1'000'000;
  EXPECT_EQ(mostKeptSelections(runs), 4U);
  EXPECT_EQ(throughAFile(std::vector<KeptSelection>(6, {"a", 1, Bits(runs, true), ""})).kept.size(),
            4U);
}

TEST(SessionSelections, KeepNoWordsThatAreTooLong)
{
  const std::string longest(20000, 'k');
  EXPECT_EQ(throughAFile({{"a", 1, {true}, longest}}, longest).kept.front().words, longest);
  EXPECT_EQ(throughAFile({}, longest).words, longest);
  EXPECT_EQ(throughAFile({{"a", 1, {true}, longest + 'k'}}).kept.front().words, "");
  EXPECT_EQ(throughAFile({}, longest + 'k').words, "");
}
