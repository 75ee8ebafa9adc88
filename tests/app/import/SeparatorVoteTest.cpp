#include "app/import/SeparatorVote.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

char separatorOf(const std::string& text)
{
  return Talmesh::app::voteOnSeparator(text, {}).separator;
}

} // namespace

TEST(SeparatorVote, RecognisesTheSeparator)
{
  EXPECT_EQ(separatorOf("a,b\n1,2\n"), ',');
  EXPECT_EQ(separatorOf("a;b\n1;2\n"), ';');
  EXPECT_EQ(separatorOf("a\tb\n1\t2\n"), '\t');
}

TEST(SeparatorVote, DoesNotTakeDecimalCommasForSeparators)
{
  EXPECT_EQ(separatorOf("t;x\n0,5;1,25\n"), ';');
  EXPECT_EQ(separatorOf("t\tx\n0,5\t1,25\n"), '\t');
  EXPECT_EQ(separatorOf("x\n0,5\n1,5\n"), ';');
}

TEST(SeparatorVote, PrefersTheSeparatorThatLeavesNumbers)
{
  EXPECT_EQ(separatorOf("Time, s;Conc, mM\n0,5;1,25\n1,5;2,25\n"), ';');
  EXPECT_EQ(separatorOf("Time, s\tConc, mM\n0,5\t1,25\n"), '\t');
  EXPECT_EQ(separatorOf("name;unit,time\nX;mM,0.5\n"), ',');
  EXPECT_EQ(separatorOf("a,b;c,d\nx,y;z,u\n"), ',');
}

TEST(SeparatorVote, DoesNotLetBlankRowsDecideOnTheSeparator)
{
  EXPECT_EQ(separatorOf("a,b;x\n  \n;\n1,2;3\n"), ';');
  EXPECT_EQ(separatorOf("  \na,b\n \n1,2\n"), ',');
}

TEST(SeparatorVote, DoesNotCountSeparatorsInsideQuotes)
{
  EXPECT_EQ(separatorOf("\"a;b;c\",d\n1,2\n"), ',');
}

TEST(SeparatorVote, KnowsBarsBlanksAndColons)
{
  EXPECT_EQ(separatorOf("a|b\n1|2\n"), '|');
  EXPECT_EQ(separatorOf("a b\n 1   2\n"), ' ');
  EXPECT_EQ(separatorOf("a:b\n1:2\n"), ':');
  EXPECT_EQ(separatorOf("2024-01-01 12:30:00,5\n2024-01-01 12:31:00,6\n"), ',');
}

TEST(SeparatorVote, IsDecidedByMostLinesAndNotByTheFirst)
{
  EXPECT_EQ(separatorOf("made; by; a; machine; of; ours\na,b\n1,2\n3,4\n"), ',');
}
