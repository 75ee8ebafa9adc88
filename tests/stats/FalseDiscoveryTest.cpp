#include "stats/FalseDiscovery.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using Talmesh::stats::benjaminiHochberg;

namespace
{
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

void expectAdjusted(const std::vector<double>& p, const std::vector<double>& expected)
{
  const std::vector<double> adjusted = benjaminiHochberg(p);
  ASSERT_EQ(adjusted.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i)
  {
    if (std::isnan(expected[i]))
    {
      EXPECT_TRUE(std::isnan(adjusted[i])) << i;
    }
    else
    {
      EXPECT_NEAR(adjusted[i], expected[i], 1e-15) << i;
    }
  }
}
} // namespace

TEST(FalseDiscovery, AgreesWithAReference)
{
  // R 4.2.2: p.adjust(c(0.01, 0.02, 0.03, 0.04, 0.05), "BH")
  expectAdjusted({0.01, 0.02, 0.03, 0.04, 0.05}, {0.05, 0.05, 0.05, 0.05, 0.05});
}

TEST(FalseDiscovery, LeavesNaNOutAndKeepsTheOrder)
{
  // R 4.2.2: p.adjust(c(0.9, 0.0004, 0.03, NaN, 0.0019, 0.03, 0.021, 1, NaN, 0.6), "BH")
  expectAdjusted({0.9, 0.0004, 0.03, notANumber, 0.0019, 0.03, 0.021, 1, notANumber, 0.6},
                 {1, 0.0032, 0.048, notANumber, 0.0076, 0.048, 0.048, 1, notANumber, 0.8});
}

TEST(FalseDiscovery, HandlesListsWithoutTests)
{
  expectAdjusted({}, {});
  expectAdjusted({notANumber, notANumber}, {notANumber, notANumber});
  expectAdjusted({0.3}, {0.3});
  expectAdjusted({0, 0}, {0, 0});
}

TEST(FalseDiscovery, NeverExceedsOneNorFallsBelowThePlainValue)
{
  const std::vector<double> p{0.5, 0.99, 0.7, 1.0, 0.2, 0.03};
  const std::vector<double> adjusted = benjaminiHochberg(p);
  for (std::size_t i = 0; i < p.size(); ++i)
  {
    EXPECT_GE(adjusted[i], p[i]);
    EXPECT_LE(adjusted[i], 1.0);
  }
}
