#include "app/session/SessionSteps.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace Talmesh::app;

TEST(SessionSteps, AreReadAsTheyWereWritten)
{
  const SessionSteps steps{{"Select 3 runs: max(A) > \u00dc", "Invert Selection: not (all)"}, 12};
  const SessionSteps read = readSteps(objectOf(steps));
  EXPECT_EQ(read.texts, steps.texts);
  EXPECT_EQ(read.forgotten, 12);
}

TEST(SessionSteps, ForgetTheFirstOnesOfTooMany)
{
  SessionSteps steps;
  for (int step = 0; step < 130; ++step)
    steps.texts.push_back("step " + std::to_string(step));
  steps.forgotten = 5;
  const SessionSteps read = readSteps(objectOf(steps));
  ASSERT_EQ(read.texts.size(), mostSessionSteps);
  EXPECT_EQ(read.texts.front(), "step 30");
  EXPECT_EQ(read.texts.back(), "step 129");
  EXPECT_EQ(read.forgotten, 35);
}

TEST(SessionSteps, ForgetThoseBeforeLongOnes)
{
  const std::string longest(mostCharactersOfSteps - 10, 'x');
  const SessionSteps read = readSteps(objectOf({{"too much then", longest, "last"}, 0}));
  EXPECT_EQ(read.texts, (std::vector<std::string>{longest, "last"}));
  EXPECT_EQ(read.forgotten, 1);
}

TEST(SessionSteps, ReadNothingOfWhatIsMistyped)
{
  EXPECT_TRUE(readSteps({{"texts", 7}, {"forgotten", -3}}).texts.empty());
  EXPECT_EQ(readSteps({{"forgotten", -3}}).forgotten, 0);
  EXPECT_EQ(readSteps({{"texts", QJsonArray{"a", 7, "b\nc"}}}).texts,
            (std::vector<std::string>{"a", "b c"}));
}
