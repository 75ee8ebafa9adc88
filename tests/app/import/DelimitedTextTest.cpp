#include "app/import/DelimitedText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Talmesh::app::DelimitedText;
using Talmesh::app::detectDelimiter;

namespace
{

using Records = std::vector<std::vector<std::string>>;

Records readAll(const std::string& text, char delimiter)
{
  DelimitedText reader(text, delimiter);
  std::vector<std::string_view> fields;
  Records records;
  while (reader.next(fields))
    records.emplace_back(fields.begin(), fields.end());
  return records;
}

} // namespace

TEST(DelimitedText, SplitsFieldsAtTheDelimiter)
{
  EXPECT_EQ(readAll("a,b\n1,2\n", ','), (Records{{"a", "b"}, {"1", "2"}}));
  EXPECT_EQ(readAll("a;b,c\n", ';'), (Records{{"a", "b,c"}}));
}

TEST(DelimitedText, EndsRecordsAtEveryKindOfLineEnd)
{
  EXPECT_EQ(readAll("a\nb\r\nc\rd", ','), (Records{{"a"}, {"b"}, {"c"}, {"d"}}));
}

TEST(DelimitedText, KeepsEmptyFieldsAndSkipsEmptyLines)
{
  EXPECT_EQ(readAll(",a,,\n\n\r\n,\n", ','), (Records{{"", "a", "", ""}, {"", ""}}));
}

TEST(DelimitedText, ReadsNothingFromNothing)
{
  EXPECT_TRUE(readAll("", ',').empty());
  EXPECT_TRUE(readAll("\n\r\n", ',').empty());
}

TEST(DelimitedText, TakesDelimitersQuotesAndLineEndsInsideQuotes)
{
  EXPECT_EQ(readAll("\"a,b\",\"c \"\"d\"\"\",\"e\nf\"\n\"\",\"\"\"\"\n", ','),
            (Records{{"a,b", "c \"d\"", "e\nf"}, {"", "\""}}));
}

TEST(DelimitedText, TakesALoneQuoteInsideQuotesAsItStands)
{
  EXPECT_EQ(readAll("\"a \"b\" c\",2\n", ','), (Records{{"a \"b\" c", "2"}}));
}

TEST(DelimitedText, TakesAQuoteInsideAPlainFieldAsItStands)
{
  EXPECT_EQ(readAll("5\",6\n", ','), (Records{{"5\"", "6"}}));
}

TEST(DelimitedText, LeavesBlanksAroundQuotesOut)
{
  EXPECT_EQ(readAll("time, \"A\"\n0, \"1.5\"\n", ','), (Records{{"time", "A"}, {"0", "1.5"}}));
  EXPECT_EQ(readAll("\"a\" , \t\"b, c\"  \r\n", ','), (Records{{"a", "b, c"}}));
  EXPECT_EQ(readAll("\"a\" ,\"b\" ", ','), (Records{{"a", "b"}}));
  EXPECT_EQ(readAll("\"a\"\t\"b\"\n", '\t'), (Records{{"a", "b"}}));
}

TEST(DelimitedText, KeepsBlanksOfFieldsWithoutQuotesAndInsideQuotes)
{
  EXPECT_EQ(readAll(" a , \" b \" \n", ','), (Records{{" a ", " b "}}));
  EXPECT_EQ(readAll("\"a \" b\" ,c\n", ','), (Records{{"a \" b", "c"}}));
}

TEST(DelimitedText, TellsAQuoteThatIsNeverClosed)
{
  const std::string text = "a,b\n1,\"2\n3,4\n";
  DelimitedText reader(text, ',');
  std::vector<std::string_view> fields;
  ASSERT_TRUE(reader.next(fields));
  EXPECT_FALSE(reader.endedInsideQuotes());
  ASSERT_TRUE(reader.next(fields));
  EXPECT_TRUE(reader.endedInsideQuotes());
  EXPECT_FALSE(reader.next(fields));
}

TEST(DelimitedText, CountsTheLinesOfItsRecords)
{
  const std::string text = "a\r\n\r\n\"b\r\nc\"\nd\n";
  DelimitedText reader(text, ',');
  std::vector<std::string_view> fields;
  std::vector<std::size_t> lines;
  while (reader.next(fields))
    lines.push_back(reader.line());
  EXPECT_EQ(lines, (std::vector<std::size_t>{1, 3, 5}));
}

TEST(DelimitedText, RecognisesTheDelimiter)
{
  EXPECT_EQ(detectDelimiter("a,b\n1,2\n"), ',');
  EXPECT_EQ(detectDelimiter("a;b\n1;2\n"), ';');
  EXPECT_EQ(detectDelimiter("a\tb\n1\t2\n"), '\t');
}

TEST(DelimitedText, DoesNotTakeDecimalCommasForDelimiters)
{
  EXPECT_EQ(detectDelimiter("t;x\n0,5;1,25\n"), ';');
  EXPECT_EQ(detectDelimiter("t\tx\n0,5\t1,25\n"), '\t');
  EXPECT_EQ(detectDelimiter("x\n0,5\n1,5\n"), ';');
}

TEST(DelimitedText, PrefersTheDelimiterThatLeavesNumbers)
{
  EXPECT_EQ(detectDelimiter("Time, s;Conc, mM\n0,5;1,25\n1,5;2,25\n"), ';');
  EXPECT_EQ(detectDelimiter("Time, s\tConc, mM\n0,5\t1,25\n"), '\t');
  EXPECT_EQ(detectDelimiter("name;unit,time\nX;mM,0.5\n"), ',');
  EXPECT_EQ(detectDelimiter("a,b;c,d\nx,y;z,u\n"), ',');
}

TEST(DelimitedText, DoesNotLetBlankRowsDecideOnTheDelimiter)
{
  EXPECT_EQ(detectDelimiter("a,b;x\n  \n;\n1,2;3\n"), ';');
  EXPECT_EQ(detectDelimiter("  \na,b\n \n1,2\n"), ',');
}

TEST(DelimitedText, DoesNotCountDelimitersInsideQuotes)
{
  EXPECT_EQ(detectDelimiter("\"a;b;c\",d\n1,2\n"), ',');
}

TEST(DelimitedText, DropsOnlyALeadingByteOrderMark)
{
  EXPECT_EQ(Talmesh::app::withoutByteOrderMark("\xEF\xBB\xBFtime"), "time");
  EXPECT_EQ(Talmesh::app::withoutByteOrderMark("time\xEF\xBB\xBF"), "time\xEF\xBB\xBF");
  EXPECT_EQ(Talmesh::app::withoutByteOrderMark("\xEF\xBB"), "\xEF\xBB");
}
