#include "stats/GridDensity.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using Talmesh::stats::estimateOnGrid;

namespace
{

using Values = std::vector<double>;

Values grid(double from, double to, std::size_t count)
{
  Values targets(count);
  for (std::size_t i = 0; i < count; ++i)
    targets[i] = from + (to - from) * static_cast<double>(i) / static_cast<double>(count - 1);
  return targets;
}

/// The definition, term by term.
double densityAt(double target, const Values& sources, double bandwidth)
{
  long double sum = 0.0L;
  for (const double source : sources)
  {
    const long double distance = (static_cast<long double>(target) - source) / bandwidth;
    sum += std::exp(-0.5L * distance * distance);
  }
  return static_cast<double>(sum / (sources.size() * bandwidth * std::sqrt(2 * std::acos(-1.0L))));
}

} // namespace

TEST(GridDensity, IsTheSumOfItsTermsWhateverTheSourcesAndTheBandwidth)
{
  std::mt19937 engine(11);
  for (int round = 0; round < 40; ++round)
  {
    const double scale = std::pow(10.0, static_cast<double>(round % 9) - 4.0);
    const double shift = round % 3 == 0 ? 0.0 : 5.0 * scale;
    Values sources(1 + engine() % 300);
    for (double& source : sources)
      source = shift + std::normal_distribution<double>(0.0, scale)(engine);
    const Values targets = grid(shift - 3.0 * scale, shift + 3.0 * scale, 2 + engine() % 250);
    const double spacing = targets[1] - targets[0];
    const double bandwidth = spacing * std::uniform_real_distribution<double>(2.001, 80.0)(engine);
    Values density(targets.size(), -1.0);
    ASSERT_TRUE(estimateOnGrid(sources, targets, bandwidth, density));
    for (std::size_t i = 0; i < targets.size(); ++i)
    {
      const double expected = densityAt(targets[i], sources, bandwidth);
      ASSERT_NEAR(density[i], expected, 1e-13 * expected + 1e-19 / bandwidth) << round << ' ' << i;
    }
  }
}

TEST(GridDensity, LeavesToOthersWhatIsNoEvenGrid)
{
  const Values sources = {0.1, 0.2};
  Values density(3, -1.0);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(estimateOnGrid(sources, {0.0, 0.1, 0.3}, 1.0, density));
  EXPECT_FALSE(estimateOnGrid(sources, {0.2, 0.1, 0.0}, 1.0, density));
  EXPECT_FALSE(estimateOnGrid(sources, {0.0, nan, 0.2}, 1.0, density));
  EXPECT_FALSE(estimateOnGrid(sources, {0.1}, 1.0, density));
  EXPECT_FALSE(estimateOnGrid(sources, {0.0, 0.1, 0.2}, 0.1, density)) << "too far apart";
  EXPECT_FALSE(estimateOnGrid(sources, {0.0, 0.1, 0.2}, nan, density));
  EXPECT_FALSE(estimateOnGrid({0.1, nan}, {0.0, 0.1, 0.2}, 1.0, density));
  EXPECT_EQ(density, Values(3, -1.0));
}

TEST(GridDensity, IsNotANumberWithoutSources)
{
  Values density(2);
  EXPECT_TRUE(estimateOnGrid({}, {0.0, 0.1}, 1.0, density));
  EXPECT_TRUE(std::isnan(density[0]) && std::isnan(density[1]));
}
