#include "app/import/FirstRows.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;

namespace
{

using Cells = std::vector<std::vector<std::string>>;
using Lines = std::vector<std::size_t>;

FirstRows rowsOf(const std::string& text, const ImportRequest& request = {})
{
  const Result<FirstRows> rows = firstRowsOf(text, request);
  EXPECT_EQ(rows.error(), "");
  return rows.hasValue() ? rows.value() : FirstRows();
}

} // namespace

TEST(FirstRows, AreCellsWithTheirLines)
{
  const FirstRows rows = rowsOf("# made by hand\n\ntime;A\n0;\"1,5\"\n# later\n1; x \n");
  EXPECT_EQ(rows.separator, ';');
  ASSERT_EQ(rows.columns(), 2U);
  EXPECT_EQ(rows.roles.headers[1].name, "A");
  EXPECT_EQ(rows.cells, (Cells{{"0", "1,5"}, {"1", "x"}}));
  EXPECT_EQ(rows.lines, (Lines{4, 6}));
}

TEST(FirstRows, AreReadWithTheSeparatorThatTheUserSays)
{
  ImportRequest request;
  request.separator = ',';
  const FirstRows rows = rowsOf("time;A\n0;1,5\n1;2,5\n", request);
  EXPECT_EQ(rows.separator, ',');
  EXPECT_EQ(rows.cells.front(), (std::vector<std::string>{"0;1", "5"}));
}

TEST(FirstRows, AreAtMostAHundredOfFiveHundredColumns)
{
  std::string row = "1";
  for (int i = 1; i < 600; ++i)
    row += ",1";
  std::string text = row + "\n";
  for (int i = 0; i < 150; ++i)
    text += row + "\n";
  const FirstRows rows = rowsOf("a" + text);
  EXPECT_EQ(rows.cells.size(), 100U);
  EXPECT_EQ(rows.columns(), 500U);
  EXPECT_EQ(rows.cells.back().size(), 500U);
  EXPECT_EQ(rows.roles.headers.size(), 600U);
}

TEST(FirstRows, AreNoneOfWhatIsNoText)
{
  EXPECT_EQ(rowsOf(std::string("time,A\n0,\0\n", 11)).columns(), 0U);
}

TEST(FirstRows, AreReadFromUtf16)
{
  std::string text = "\xFF\xFE";
  for (const char c : std::string("time,A\n0,1\n"))
    text += std::string{c, '\0'};
  EXPECT_EQ(rowsOf(text).cells, (Cells{{"0", "1"}}));
}

TEST(FirstRows, AreThoseOfColumns)
{
  NamedColumn time;
  time.name = "time";
  time.values = {0.0, 0.25};
  NamedColumn drug;
  drug.name = "drug";
  drug.words = {"none", "aspirin"};
  drug.wordOfRow = {1, 0};
  const FirstRows rows = firstRowsOf({time, drug});
  EXPECT_FALSE(rows.isText());
  EXPECT_EQ(rows.cells, (Cells{{"0", "aspirin"}, {"0.25", "none"}}));
  EXPECT_TRUE(rows.lines.empty());
}

TEST(FirstRows, HaveTheKeyOfTheirHeader)
{
  const std::string key = headerKeyOf(rowsOf("time,A\n0,1\n1,2\n"));
  EXPECT_EQ(key, headerKeyOf(rowsOf("time,A\n5,7\n6,8\n7,9\n")));
  EXPECT_NE(key, headerKeyOf(rowsOf("time,B\n0,1\n1,2\n")));
  EXPECT_NE(key, headerKeyOf(rowsOf("time;A\n0;1\n1;2\n")));
  EXPECT_NE(key, headerKeyOf(rowsOf("A,time\n0,1\n1,2\n")));
}
