#include "app/import/DelimitedText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Talmesh::app::DelimitedText;

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

TEST(DelimitedText, PartsWordsAtAnyNumberOfBlanksAndTabs)
{
  EXPECT_EQ(readAll("  a \t b\n\"c d\" e  \n", ' '), (Records{{"a", "b"}, {"c d", "e"}}));
}

TEST(DelimitedText, SkipsLinesOfComment)
{
  const std::string text = "# x\n a,b\n  # c,d\n1,2 # e\n#\n";
  DelimitedText reader(text, ',', "#");
  std::vector<std::string_view> fields;
  std::vector<std::size_t> lines;
  while (reader.next(fields))
    lines.push_back(reader.line());
  EXPECT_EQ(lines, (std::vector<std::size_t>{2, 4}));
}

TEST(DelimitedText, GoesOnWhereItIsTold)
{
  DelimitedText reader("a,b\n1,2\n3,4\n", ',');
  reader.skipTo(8, 3);
  std::vector<std::string_view> fields;
  ASSERT_TRUE(reader.next(fields));
  EXPECT_EQ(fields, (std::vector<std::string_view>{"3", "4"}));
  EXPECT_EQ(reader.line(), 3u);
}

TEST(DelimitedText, DropsOnlyALeadingByteOrderMark)
{
  EXPECT_EQ(Talmesh::app::withoutByteOrderMark("\xEF\xBB\xBFtime"), "time");
  EXPECT_EQ(Talmesh::app::withoutByteOrderMark("time\xEF\xBB\xBF"), "time\xEF\xBB\xBF");
  EXPECT_EQ(Talmesh::app::withoutByteOrderMark("\xEF\xBB"), "\xEF\xBB");
}
