#include "external/ScientificFormat.h"

#include <gtest/gtest.h>

#include <QString>

#include <string>

namespace
{

std::string format(const char* text, int precision = 2, int base = 10, bool richText = false)
{
  return Talmesh::getScientificFormat(QString::fromUtf8(text), precision, base, richText)
      .toStdString();
}

} // namespace

TEST(ScientificFormat, WritesMantissaAndPower)
{
  EXPECT_EQ(format("1250"), "1.25 x 10^3");
  EXPECT_EQ(format("0.04"), "4.00 x 10^-2");
  EXPECT_EQ(format("-31.4"), "-3.14 x 10^1");
  EXPECT_EQ(format("7"), "7.00 x 10^0");
  EXPECT_EQ(format(" 1e-300 "), "1.00 x 10^-300");
}

TEST(ScientificFormat, ZeroHasExponentZero)
{
  EXPECT_EQ(format("0"), "0.00 x 10^0");
  EXPECT_EQ(format("0", 1, 2), "0.0 x 2^0");
}

TEST(ScientificFormat, RoundingUpMovesTheExponent)
{
  EXPECT_EQ(format("999.9"), "1.00 x 10^3");
  EXPECT_EQ(format("999.4"), "9.99 x 10^2");
  EXPECT_EQ(format("1023.99", 1, 2), "1.0 x 2^10");
}

TEST(ScientificFormat, PrecisionIsTheNumberOfDecimals)
{
  EXPECT_EQ(format("1250", 0), "1 x 10^3");
  EXPECT_EQ(format("1750", -3), "2 x 10^3");
  EXPECT_EQ(format("1250", 4), "1.2500 x 10^3");
}

TEST(ScientificFormat, AnyBaseFromTwo)
{
  EXPECT_EQ(format("8", 2, 2), "1.00 x 2^3");
  EXPECT_EQ(format("0.125", 2, 2), "1.00 x 2^-3");
  EXPECT_EQ(format("-1000", 3, 16), "-3.906 x 16^2");
  EXPECT_EQ(format("243", 2, 3), "1.00 x 3^5");
}

TEST(ScientificFormat, ExactPowersOfEveryBaseHaveMantissaOne)
{
  for (int base = 2; base <= 36; ++base)
  {
    double power = 1.0;
    for (int exponent = 0; power < 1e15; ++exponent, power *= base)
    {
      const QString text = QString::number(power, 'g', 17);
      const QString expected = QStringLiteral("1.00 x %1^%2").arg(base).arg(exponent);
      EXPECT_EQ(Talmesh::getScientificFormat(text, 2, base, false).toStdString(),
                expected.toStdString());
    }
  }
}

TEST(ScientificFormat, RichTextRaisesTheExponent)
{
  EXPECT_EQ(format("1250", 2, 10, true), "1.25 x 10<sup>3</sup>");
}

TEST(ScientificFormat, WhatIsNoFiniteNumberIsReturnedUnchanged)
{
  for (const char* text : {"", " ", "abc", "1,5", "1.5x", "%1", "nan", "inf", "-inf"})
    EXPECT_EQ(format(text), text);
}

TEST(ScientificFormat, ABaseBelowTwoReturnsTheTextUnchanged)
{
  for (int base : {1, 0, -10})
    EXPECT_EQ(format("1250", 2, base), "1250");
}

TEST(ScientificFormat, SubnormalNumbersKeepTheirMantissa)
{
  EXPECT_EQ(format("4.9406564584124654e-324", 2, 2), "1.00 x 2^-1074");
  EXPECT_EQ(format("4.9406564584124654e-324"), "4.94 x 10^-324");
}
