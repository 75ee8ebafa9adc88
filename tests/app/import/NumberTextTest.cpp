#include "app/import/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using Talmesh::app::NumberText;
using Talmesh::app::readNumber;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

void expectNumber(const std::string& text, double value, bool commas = false)
{
  const NumberText number = readNumber(text, commas);
  EXPECT_EQ(number.kind, NumberText::Kind::Number) << text;
  EXPECT_EQ(number.value, value) << text;
}

void expectKind(const std::string& text, NumberText::Kind kind, bool commas = false)
{
  const NumberText number = readNumber(text, commas);
  EXPECT_EQ(number.kind, kind) << text;
  EXPECT_TRUE(std::isnan(number.value)) << text;
}

} // namespace

TEST(NumberText, ReadsNumbersAsPeopleWriteThem)
{
  expectNumber("0", 0.0);
  expectNumber(" -1.5 ", -1.5);
  expectNumber("+2", 2.0);
  expectNumber(".5", 0.5);
  expectNumber("5.", 5.0);
  expectNumber("1e-3", 1e-3);
  expectNumber("6.02E+23", 6.02e23);
  expectNumber("inf", infinity);
  expectNumber("-Infinity", -infinity);
}

TEST(NumberText, LeavesNumbersBeyondTheRangeOfADoubleInfiniteOrZero)
{
  expectNumber("1e999", infinity);
  expectNumber("-1e999", -infinity);
  expectNumber("1e-999", 0.0);
  expectNumber("0." + std::string(400, '0') + "1", 0.0);
  expectNumber("1" + std::string(400, '0'), infinity);
}

TEST(NumberText, TellsTheOverflowFromTheUnderflowByTheFirstDigitAndTheExponent)
{
  const std::string zeros(400, '0');
  expectNumber("0." + zeros + "1e5", 0.0);
  expectNumber("1" + zeros + "e-1", infinity);
  expectNumber("-1" + zeros + "e-1", -infinity);
  expectNumber("0." + zeros + "1e800", infinity);
  expectNumber("1" + zeros + "e-800", 0.0);
  expectNumber("+.1e400", infinity);
  expectNumber("1e99999999999999999999", infinity);
  expectNumber("-1e-99999999999999999999", 0.0);
  EXPECT_TRUE(std::signbit(readNumber("-1e-400", false).value));
}

TEST(NumberText, ReadsTheExponentsOfFortran)
{
  expectNumber("1.0D-03", 1e-3);
  expectNumber("-2.5d+02", -250.0);
  expectNumber("6D3", 6000.0);
  expectNumber("1,5D1", 15.0, true);
  for (const char* text : {"D3", "1D", "2D-", "3d4d5", "0dx", "id1"})
    expectKind(text, NumberText::Kind::Text);
}

TEST(NumberText, ReadsTheMinusOfTypesetters)
{
  expectNumber("\u22121.5", -1.5);
  expectNumber("\u22122e\u22123", -2e-3);
  expectKind("\u2212", NumberText::Kind::Missing);
  expectKind("1\u22122", NumberText::Kind::Text);
}

TEST(NumberText, TakesANonBreakingSpaceForABlank)
{
  expectNumber("\u00A01.5\u00A0 ", 1.5);
  expectKind(" \u00A0", NumberText::Kind::Missing);
  expectKind("1\u00A0000", NumberText::Kind::Text);
}

TEST(NumberText, TakesEmptyCellsAndTheWordsForNothingAsMissing)
{
  for (const char* text : {"", "  ", "NA", "n/a", "NaN", "nan", "null", "None", "-", ".", "#N/A"})
    expectKind(text, NumberText::Kind::Missing);
}

TEST(NumberText, TakesTheRestAsText)
{
  for (const char* text : {"abc", "1.5x", "1 2", "--1", "+-1", "++1", "0x10", "1e", "12:30", "1,5"})
    expectKind(text, NumberText::Kind::Text);
}

TEST(NumberText, ReadsADecimalCommaWhereItMayStand)
{
  expectNumber("1,5", 1.5, true);
  expectNumber("-0,25e2", -25.0, true);
  EXPECT_TRUE(readNumber("1,5", true).decimalComma);
  EXPECT_FALSE(readNumber("1,5", true).decimalPoint);
  EXPECT_TRUE(readNumber("1.5", true).decimalPoint);
  EXPECT_FALSE(readNumber("15", true).decimalPoint);
  expectKind("1,234,567", NumberText::Kind::Text, true);
  expectKind("1.234,5", NumberText::Kind::Text, true);
}
