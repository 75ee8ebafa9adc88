#include "external/Standardize.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

std::vector<double> standardized(std::vector<double> values)
{
  standardize(values);
  return values;
}

void expectNear(const std::vector<double>& values, const std::vector<double>& expected)
{
  ASSERT_EQ(values.size(), expected.size());
  for (std::size_t i = 0; i < values.size(); ++i)
    EXPECT_NEAR(values[i], expected[i], 1e-15) << "at " << i;
}

} // namespace

TEST(Standardize, DividesByTheSampleDeviation)
{
  // R: print(as.vector(scale(c(1.5, 2.5, 4, -3))), digits = 17)
  expectNear(standardized({1.5, 2.5, 4.0, -3.0}), {0.082950189541399655, 0.414750947706998274,
                                                   0.912452084955396203, -1.410153222203794021});
  expectNear(standardized({10.0, 20.0}), {-std::sqrt(0.5), std::sqrt(0.5)});
}

TEST(Standardize, EqualValuesBecomeZero)
{
  EXPECT_EQ(standardized({0.1, 0.1, 0.1}), std::vector<double>(3, 0.0));
  EXPECT_EQ(standardized({1e300, 1e300}), std::vector<double>(2, 0.0));
}

TEST(Standardize, ASingleValueBecomesZero)
{
  EXPECT_EQ(standardized({7.0}), std::vector<double>{0.0});
}

TEST(Standardize, EmptyStaysEmpty)
{
  EXPECT_TRUE(standardized({}).empty());
}

TEST(Standardize, AnyValueThatIsNotFiniteSpoilsAll)
{
  for (double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity()})
    for (double value : standardized({1.0, bad, 3.0}))
      EXPECT_TRUE(std::isnan(value));
  EXPECT_TRUE(std::isnan(standardized({std::numeric_limits<double>::infinity()})[0]));
}

TEST(Standardize, ScaleOfTheValuesDoesNotMatter)
{
  const double third = std::sqrt(1.0 / 3.0);
  expectNear(standardized({1e-300, 2e-300, 3e-300}), {-1.0, 0.0, 1.0});
  expectNear(standardized({-1.5e308, -1.5e308, 1.5e308}), {-third, -third, 2.0 * third});
}
