#include "stats/RankedDensity.h"
#include "stats/RankedSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace Talmesh::stats;
using namespace RankedSamples;

namespace
{
double trapezoidSum(const Density& density)
{
  double sum = 0.0;
  for (std::size_t i = 1; i < density.densities.size(); ++i)
  {
    sum += 0.5 * (density.densities[i] + density.densities[i - 1]) *
           (density.locations[i] - density.locations[i - 1]);
  }
  return sum;
}

/// Density at x on the parameter scale: Gaussians around every value and its mirror images at the
/// bounds. Equal to the estimate for samples that are not thinned.
double mirroredDensity(double x, const List& values, double lower, double upper, double bandwidth)
{
  double sum = 0.0;
  for (double value : values)
  {
    sum += normalDensity(x, value, bandwidth) + normalDensity(x, 2.0 * lower - value, bandwidth);
    sum += upper < infinity ? normalDensity(x, 2.0 * upper - value, bandwidth) : 0.0;
  }
  return sum / static_cast<double>(values.size());
}

struct DensityPoint
{
  std::size_t index;
  double location;
  double density;
};

void expectPoints(const Density& density, std::initializer_list<DensityPoint> points)
{
  for (const DensityPoint& point : points)
  {
    EXPECT_NEAR(density.locations[point.index], point.location, 1e-12) << point.index;
    EXPECT_NEAR(density.densities[point.index], point.density, 1e-12) << point.index;
  }
}

// The references below were made in R 4.2.2 with
//   dens <- function(v, L, U, m, R, q = 1) {
//     N <- length(v); M <- N %/% q; a <- if (m == 2) 1/2 else 1/3
//     z <- (v - L) / R; zr <- z[seq(1, by = q, length.out = M)]; mid <- (1 + zr) / m
//     refs <- c((1 - zr) / m, mid, if (m == 3) (3 - zr) / 3)
//     t <- (0:199) / 199 / m + a
//     sd <- sqrt(sum((mid - mean((1 + z) / m))^2) / M)
//     spread <- (mid[3 * M %/% 4 + 1] - mid[M %/% 4 + 1]) / 1.34
//     h <- max(0.2 * abs(t[2] - t[1]), 1.06 * min(sd, spread) * M^-0.2)
//     d <- sapply(t, function(x) mean(dnorm(x, refs, h))) / R
//     x <- (t - a) * R * m + L
//     cat(sprintf("h %.15g\n", h))
//     for (i in c(0, 1, 50, 100, 150, 199)) cat(sprintf("{%d, %.15g, %.15g}\n", i, x[i+1], d[i+1]))
//     }
} // namespace

TEST(RankedDensity, AgreesWithAReferenceBetweenTwoBounds)
{
  // R: dens((1:20)^2 / 10, 0, 50, 3, 50)
  const Density density = estimate(squares(20), std::make_pair(0.0, 50.0));
  EXPECT_EQ(density.calls.count, 1);
  EXPECT_NEAR(density.calls.bandwidth, 0.0483892383039937, 1e-14);
  expectPoints(density, {{0, 0, 0.0477259574301469},
                         {1, 0.251256281407033, 0.0477124868482273},
                         {50, 12.5628140703518, 0.0278975513255409},
                         {100, 25.1256281407035, 0.0163306944961103},
                         {150, 37.6884422110553, 0.00993990030135513},
                         {199, 50, 0.00340169572073229}});
}

TEST(RankedDensity, AgreesWithAReferenceAboveALowerBoundOnly)
{
  // R: dens((1:20)^2 / 10, 0, Inf, 2, 44)
  const Density density = estimate(squares(20), std::make_pair(0.0, infinity));
  EXPECT_NEAR(density.calls.bandwidth, 0.0824816561999893, 1e-14);
  expectPoints(density, {{0, 0, 0.0477259574301468},
                         {1, 0.221105527638187, 0.0477155252384137},
                         {50, 11.0552763819095, 0.0306453319426291},
                         {100, 22.1105527638191, 0.0178338337420413},
                         {150, 33.1658291457286, 0.0127421690711214},
                         {199, 44, 0.00512079410137433}});
  EXPECT_EQ(density.calls.targets.front(), 0.5);
  EXPECT_EQ(density.calls.targets.back(), 1.0);
  EXPECT_EQ(density.calls.sources.size(), 40u);
}

TEST(RankedDensity, AgreesWithAReferenceOnThinnedValues)
{
  // R: dens(10 * sin((1:1000) / 1001 * pi / 2), -1, 12, 3, 13, 2)
  List values;
  for (int i = 1; i <= 1000; ++i)
  {
    values.push_back(10.0 * std::sin(i / 1001.0 * 3.14159265358979323846 / 2.0));
  }
  const Density density = estimate(values, std::make_pair(-1.0, 12.0));
  EXPECT_NEAR(density.calls.bandwidth, 0.0241307685079372, 1e-14);
  expectPoints(density, {{0, -1, 0.0183870330036416},
                         {1, -0.934673366834171, 0.01846139786204},
                         {50, 2.26633165829146, 0.0652828865289888},
                         {100, 5.53266331658291, 0.077772125288365},
                         {150, 8.79899497487437, 0.145417610687271},
                         {199, 12, 0.0139773842915024}});
}

TEST(RankedDensity, IsTheMirroredDensityOnTheParameterScale)
{
  std::mt19937 generator(11);
  std::gamma_distribution<double> gamma(2.0, 3.0);
  List values(150);
  for (double& value : values)
  {
    value = gamma(generator);
  }
  std::sort(values.begin(), values.end());
  for (double upper : {60.0, infinity})
  {
    const Density density = estimate(values, std::make_pair(0.0, upper));
    const double range = upper < infinity ? upper : 1.1 * values.back();
    const double blocks = upper < infinity ? 3.0 : 2.0;
    const double bandwidth = density.calls.bandwidth * range * blocks;
    for (std::size_t i = 0; i < densityLocations; ++i)
    {
      const double x = range * static_cast<double>(i) / 199.0;
      EXPECT_NEAR(density.locations[i], x, 1e-11);
      EXPECT_NEAR(density.densities[i], mirroredDensity(x, values, 0.0, upper, bandwidth), 1e-12);
    }
  }
}

TEST(RankedDensity, HoldsTheWholeWeightBetweenTheBounds)
{
  EXPECT_NEAR(trapezoidSum(estimate(squares(20), std::make_pair(0.0, 50.0))), 1.0, 2e-3);
  EXPECT_NEAR(trapezoidSum(estimate(countingList(1000))), 1.0, 2e-3);
}
