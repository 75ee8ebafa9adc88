#include "external/UnivariateDensityDerivative.h"

#include <boost/math/constants/constants.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <stdexcept>
#include <vector>

namespace
{

const double notANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<double> density(std::vector<double> sources, std::vector<double> targets,
                            double bandwidth)
{
  std::vector<double> output(targets.size(), -1.0);
  UnivariateDensityDerivative estimate(static_cast<int>(sources.size()),
                                       static_cast<int>(targets.size()), sources.data(),
                                       targets.data(), bandwidth, 0, 0.01, output.data());
  estimate.Evaluate();
  return output;
}

void construct(int sourceCount, int targetCount, double bandwidth, int order)
{
  double value = 0.0;
  UnivariateDensityDerivative(sourceCount, targetCount, &value, &value, bandwidth, order, 0.01,
                              &value);
}

} // namespace

TEST(UnivariateDensityDerivative, HasEveryBitOfThePlainSum)
{
  std::mt19937 engine(7);
  for (int round = 0; round < 60; ++round)
  {
    const double spread = std::exp(std::normal_distribution<double>(0, 2)(engine));
    std::vector<double> sources(1 + engine() % 1500);
    for (double& source : sources)
      source = round % 2 == 0 ? std::normal_distribution<double>(0, spread)(engine)
                              : std::floor(std::uniform_real_distribution<double>(0, 9)(engine));
    if (round % 5 != 0)
      std::sort(sources.begin(), sources.end());
    std::vector<double> targets;
    for (int i = 0; i < 100; ++i)
      targets.push_back(spread * (0.04 * i - 2.0));
    const double h = spread * std::exp(std::normal_distribution<double>(-2, 2)(engine));
    const std::vector<double> values = density(sources, targets, h);
    const double scale =
        static_cast<int>(sources.size()) * h * boost::math::constants::root_two_pi<double>();
    for (std::size_t i = 0; i < targets.size(); ++i)
    {
      double sum = 0.0;
      for (const double source : sources)
      {
        const double distance = (targets[i] - source) / h;
        sum += std::exp(-0.5 * distance * distance);
      }
      ASSERT_EQ(values[i], sum / scale) << "round " << round << ", target " << targets[i];
    }
  }
}

TEST(UnivariateDensityDerivative, OneSourceIsTheNormalDensity)
{
  const double h = 0.3;
  const double peak = 1.0 / (h * std::sqrt(2.0 * std::acos(-1.0)));
  const std::vector<double> values = density({2.0}, {2.0, 2.0 + h, 2.0 - 2.0 * h}, h);
  EXPECT_NEAR(values[0], peak, 1e-14);
  EXPECT_NEAR(values[1], peak * std::exp(-0.5), 1e-14);
  EXPECT_NEAR(values[2], peak * std::exp(-2.0), 1e-14);
}

TEST(UnivariateDensityDerivative, SeveralSourcesAgreeWithReferenceValues)
{
  // SciPy: s = np.array([1, 2, 2.5, 4, 7]);
  //   scipy.stats.gaussian_kde(s, bw_method=0.8 / np.std(s, ddof=1))([0, 2.2, 5, 9.5])
  // R: sapply(c(0, 2.2, 5, 9.5), function(t) mean(dnorm(t, c(1, 2, 2.5, 4, 7), 0.8)))
  const std::vector<double> expected{0.050800282659325985, 0.22994511606251503, 0.05088843157991785,
                                     0.0007555645142353231};
  const std::vector<double> values = density({1.0, 2.0, 2.5, 4.0, 7.0}, {0.0, 2.2, 5.0, 9.5}, 0.8);
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_NEAR(values[i], expected[i], 1e-14) << "at " << i;
}

TEST(UnivariateDensityDerivative, IntegratesToOne)
{
  constexpr int steps = 20000;
  std::vector<double> targets(steps);
  for (int i = 0; i < steps; ++i)
    targets[i] = -10.0 + 20.0 * (i + 0.5) / steps;
  double sum = 0.0;
  for (double value : density({-1.0, 0.0, 0.5, 0.5, 3.0}, targets, 0.4))
    sum += value;
  EXPECT_NEAR(sum * 20.0 / steps, 1.0, 1e-12);
}

TEST(UnivariateDensityDerivative, TargetsFarAwayHaveNoDensity)
{
  EXPECT_EQ(density({0.0}, {1e6}, 0.1)[0], 0.0);
}

TEST(UnivariateDensityDerivative, NoTargetsWriteNothing)
{
  double source = 1.0;
  double output = -1.0;
  UnivariateDensityDerivative(1, 0, &source, nullptr, 1.0, 0, 0.01, &output).Evaluate();
  EXPECT_EQ(output, -1.0);
}

TEST(UnivariateDensityDerivative, WithoutSourcesTheEstimateIsNaN)
{
  EXPECT_TRUE(std::isnan(density({}, {0.0}, 1.0)[0]));
}

TEST(UnivariateDensityDerivative, NaNPropagates)
{
  EXPECT_TRUE(std::isnan(density({0.0, notANumber}, {0.0}, 1.0)[0]));
  EXPECT_TRUE(std::isnan(density({0.0}, {notANumber}, 1.0)[0]));
  EXPECT_TRUE(std::isnan(density({0.0}, {0.0}, notANumber)[0]));
}

TEST(UnivariateDensityDerivative, RefusesOtherOrders)
{
  EXPECT_THROW(construct(1, 1, 1.0, 1), std::invalid_argument);
  EXPECT_THROW(construct(1, 1, 1.0, -1), std::invalid_argument);
  EXPECT_NO_THROW(construct(1, 1, 1.0, 0));
}

TEST(UnivariateDensityDerivative, RefusesNegativeCountsAndBandwidths)
{
  EXPECT_THROW(construct(-1, 1, 1.0, 0), std::invalid_argument);
  EXPECT_THROW(construct(1, -1, 1.0, 0), std::invalid_argument);
  EXPECT_THROW(construct(1, 1, 0.0, 0), std::invalid_argument);
  EXPECT_THROW(construct(1, 1, -1.0, 0), std::invalid_argument);
}
