#include "stats/FamilyWiseError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using Talmesh::stats::holm;

namespace
{
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

void expectAdjusted(const std::vector<double>& p, const std::vector<double>& expected)
{
  const std::vector<double> adjusted = holm(p);
  ASSERT_EQ(adjusted.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i)
  {
    EXPECT_EQ(std::isnan(adjusted[i]), std::isnan(expected[i])) << i;
    if (!std::isnan(expected[i]))
    {
      EXPECT_NEAR(adjusted[i], expected[i], 1e-15) << i;
    }
  }
}
} // namespace

TEST(FamilyWiseError, AgreesWithAReference)
{
  // R 4.2.2: p.adjust(c(0.01, 0.02, 0.03, 0.04, 0.05), "holm")
  expectAdjusted({0.01, 0.02, 0.03, 0.04, 0.05}, {0.05, 0.08, 0.09, 0.09, 0.09});
}

TEST(FamilyWiseError, LeavesNaNOutAndKeepsTheOrder)
{
  // R 4.2.2: p.adjust(c(0.9, 0.0004, 0.03, NaN, 0.0019, 0.03, 0.021, 1, NaN, 0.6), "holm")
  expectAdjusted({0.9, 0.0004, 0.03, notANumber, 0.0019, 0.03, 0.021, 1, notANumber, 0.6},
                 {1, 0.0032, 0.15, notANumber, 0.0133, 0.15, 0.126, 1, notANumber, 1});
}

TEST(FamilyWiseError, HandlesListsWithoutTests)
{
  expectAdjusted({}, {});
  expectAdjusted({notANumber}, {notANumber});
  expectAdjusted({0.3}, {0.3});
}
