#include "stats/AdjustedPValues.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using Talmesh::stats::benjaminiHochberg;
using Talmesh::stats::holm;

namespace
{
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const std::vector<double> tiesAndGaps{0.9,  0.0004, 0.03, notANumber, 0.0019,
                                      0.03, 0.021,  1,    notANumber, 0.6};

void expectEqual(const std::vector<double>& adjusted, const std::vector<double>& expected)
{
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

TEST(FalseDiscovery, AgreesWithAReference)
{
  // R 4.2.2: p.adjust(c(0.01, 0.02, 0.03, 0.04, 0.05), "BH")
  expectEqual(benjaminiHochberg({0.01, 0.02, 0.03, 0.04, 0.05}), {0.05, 0.05, 0.05, 0.05, 0.05});
}

TEST(FalseDiscovery, LeavesNaNOutAndKeepsTheOrder)
{
  // R 4.2.2: p.adjust(c(0.9, 0.0004, 0.03, NaN, 0.0019, 0.03, 0.021, 1, NaN, 0.6), "BH")
  expectEqual(benjaminiHochberg(tiesAndGaps),
              {1, 0.0032, 0.048, notANumber, 0.0076, 0.048, 0.048, 1, notANumber, 0.8});
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

TEST(FamilyWiseError, AgreesWithAReference)
{
  // R 4.2.2: p.adjust(c(0.01, 0.02, 0.03, 0.04, 0.05), "holm")
  expectEqual(holm({0.01, 0.02, 0.03, 0.04, 0.05}), {0.05, 0.08, 0.09, 0.09, 0.09});
}

TEST(FamilyWiseError, LeavesNaNOutAndKeepsTheOrder)
{
  // R 4.2.2: p.adjust(c(0.9, 0.0004, 0.03, NaN, 0.0019, 0.03, 0.021, 1, NaN, 0.6), "holm")
  expectEqual(holm(tiesAndGaps),
              {1, 0.0032, 0.15, notANumber, 0.0133, 0.15, 0.126, 1, notANumber, 1});
}

TEST(AdjustedPValues, HandleListsWithoutTests)
{
  for (const auto adjust : {benjaminiHochberg, holm})
  {
    expectEqual(adjust({}), {});
    expectEqual(adjust({notANumber, notANumber}), {notANumber, notANumber});
    expectEqual(adjust({0.3}), {0.3});
    expectEqual(adjust({0, 0}), {0, 0});
  }
}
