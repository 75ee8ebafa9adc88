#include "app/runs/FilterSyntax.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using Talmesh::app::deepestFilter;
using Talmesh::app::FilterFault;
using Talmesh::app::filterName;
using Talmesh::app::FilterNode;
using Talmesh::app::parseFilter;

namespace
{

/// "3: what is wrong"
std::string faultOf(const std::string& text)
{
  FilterNode filter;
  const FilterFault fault = parseFilter(text, filter);
  return std::to_string(fault.position) + ": " + fault.text;
}

FilterNode read(const std::string& text)
{
  FilterNode filter;
  EXPECT_EQ(parseFilter(text, filter).text, "") << text;
  return filter;
}

std::string repeated(const std::string& text, int times)
{
  std::string all;
  for (int i = 0; i < times; ++i)
    all += text;
  return all;
}

} // namespace

TEST(FilterSyntax, KnowsWhereEachPieceBegins)
{
  const FilterNode filter = read("  max(TetR) > 150 and alpha < 50");
  EXPECT_EQ(filter.kind, FilterNode::Kind::And);
  ASSERT_EQ(filter.children.size(), 2U);
  EXPECT_EQ(filter.children[0].position, 2U);
  EXPECT_EQ(filter.children[1].position, 22U);
  EXPECT_EQ(filter.children[1].marks, "+<");
}

TEST(FilterSyntax, ReadsNamesWithBlanksAndBracketsInDoubleQuotes)
{
  EXPECT_EQ(read("\"[P] of a \"\"b\"\"\"").name, "[P] of a \"b\"");
  EXPECT_EQ(read("\"and\"").name, "and");
  EXPECT_EQ(read("\"\"").name, "");
  EXPECT_EQ(read("Übergang.2").name, "Übergang.2");
}

TEST(FilterSyntax, WritesNamesSoThatItReadsThemAgain)
{
  for (const std::string name :
       {"TetR", "k.1", "_x", "Über", "and", "OVER", "a b", "[P]", "a\"b", "", "1a", "-", "a)"})
    EXPECT_EQ(read(filterName(name)).name, name);
  EXPECT_EQ(filterName("TetR"), "TetR");
  EXPECT_EQ(filterName("Molecule: P"), "\"Molecule: P\"");
}

TEST(FilterSyntax, TakesWordsThatBeginLikeOthersForNames)
{
  EXPECT_EQ(read("infinity").name, "infinity");
  EXPECT_EQ(read("nanobody").name, "nanobody");
  EXPECT_EQ(read("orange").name, "orange");
  EXPECT_EQ(read("notable").name, "notable");
}

TEST(FilterSyntax, PointsToTheByteThatIsWrong)
{
  EXPECT_EQ(faultOf(""), "0: a name or a number is missing here");
  EXPECT_EQ(faultOf("   "), "3: a name or a number is missing here");
  EXPECT_EQ(faultOf("a >  "), "5: a name or a number is missing here");
  EXPECT_EQ(faultOf("a > 1 and"), "9: a name or a number is missing here");
  EXPECT_EQ(faultOf("a > * 2"), "4: a name or a number is missing here");
  EXPECT_EQ(faultOf("(a > 1"), "6: \")\" is missing here");
  EXPECT_EQ(faultOf("max(a > 1"), "9: \")\" is missing here");
  EXPECT_EQ(faultOf("\"a > 1"), "6: the closing double quote is missing");
  EXPECT_EQ(faultOf("a  b"), "3: an operator is missing here");
  EXPECT_EQ(faultOf("a > 1)"), "5: an operator is missing here");
  EXPECT_EQ(faultOf("a => 1"), "3: a name or a number is missing here");
}

TEST(FilterSyntax, RefusesWhatIsNestedTooDeep)
{
  const std::string deep = repeated("(", deepestFilter) + "a > 1" + repeated(")", deepestFilter);
  read(deep);
  EXPECT_EQ(faultOf("(" + deep + ")"),
            std::to_string(deepestFilter) + ": parentheses are nested too deep here");
  read("\"" + repeated("(", 1000) + "\" > 1");
}

TEST(FilterSyntax, ReadsLongFilters)
{
  EXPECT_EQ(read("a" + repeated(" + 1", 20000)).children.size(), 20001U);
  EXPECT_EQ(read("a" + repeated(" ^ 1", 20000)).children.size(), 20001U);
  EXPECT_EQ(read(repeated("not ", 20001) + "a").kind, FilterNode::Kind::Not);
  EXPECT_EQ(read(repeated("-", 20001) + "a").marks, "-");
  EXPECT_EQ(read("a > 1" + repeated(" or a > 1", 20000)).children.size(), 20001U);
}

TEST(FilterSyntax, ReadsNumbersToTheirLastDigit)
{
  const auto valueOf = [](const char* text) { return read(text).number; };
  EXPECT_EQ(valueOf("3.3333333333333335"), 10.0 / 3.0);
  EXPECT_EQ(valueOf(" 0.10000000000000001"), 0.1);
  EXPECT_EQ(valueOf("1.7976931348623157e308"), std::numeric_limits<double>::max());
  EXPECT_EQ(valueOf("9007199254740993"), 9007199254740992.0) << "the even one of two as near";
  EXPECT_EQ(valueOf(".5"), 0.5);
  EXPECT_EQ(valueOf("2. "), 2.0);
}
