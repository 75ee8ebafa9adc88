#include "app/examples/Repressilator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Talmesh::app;

namespace
{

/// The circuit of the paper's figure 1c: 5e-4 transcripts per second under full repression and 0.5
/// without repressor, 20 proteins per transcript, 40 monomers repressing to one half, protein
/// half-life 10 minutes and mRNA half-life 2 minutes, Hill coefficient 2. Scaled, the rates of
/// transcription are multiplied by proteins per transcript, times protein lifetime, by monomers.
RepressilatorParameters oscillating()
{
  const double proteinLifetime = 600.0 / std::log(2.0);
  const double scale = 20.0 * proteinLifetime / 40.0;
  return {scale * (0.5 - 5e-4), scale * 5e-4, 0.2, 2.0};
}

RepressilatorParameters resting()
{
  return {5.0, 1.0, 1.0, 1.5};
}

constexpr RepressilatorState start = {0.0, 0.0, 0.0, 10.0, 5.0, 0.0};

RepressilatorState advanced(const RepressilatorState& state, const RepressilatorState& rates,
                            double step)
{
  RepressilatorState moved = state;
  for (std::size_t i = 0; i < state.size(); ++i)
    moved[i] += step * rates[i];
  return moved;
}

/// The model written once more, gene by gene, so that the integrator's is checked against it.
RepressilatorState plainRates(const RepressilatorParameters& k, const RepressilatorState& s)
{
  const double tetR = s[3];
  const double lacI = s[4];
  const double cI = s[5];
  return {k.alpha / (1.0 + std::pow(lacI, k.n)) + k.alpha0 - s[0],
          k.alpha / (1.0 + std::pow(cI, k.n)) + k.alpha0 - s[1],
          k.alpha / (1.0 + std::pow(tetR, k.n)) + k.alpha0 - s[2],
          k.beta * (s[0] - tetR),
          k.beta * (s[1] - lacI),
          k.beta * (s[2] - cI)};
}

/// The classical Runge-Kutta method with a fixed step.
RepressilatorState rungeKutta(const RepressilatorParameters& k, RepressilatorState s, double step,
                              int steps)
{
  for (int i = 0; i < steps; ++i)
  {
    const RepressilatorState a = plainRates(k, s);
    const RepressilatorState b = plainRates(k, advanced(s, a, step / 2.0));
    const RepressilatorState c = plainRates(k, advanced(s, b, step / 2.0));
    const RepressilatorState d = plainRates(k, advanced(s, c, step));
    for (std::size_t j = 0; j < s.size(); ++j)
      s[j] += step / 6.0 * (a[j] + 2.0 * b[j] + 2.0 * c[j] + d[j]);
  }
  return s;
}

std::vector<double> timesUpTo(double end, std::size_t points)
{
  std::vector<double> times(points);
  for (std::size_t i = 0; i < points; ++i)
    times[i] = end * static_cast<double>(i) / static_cast<double>(points - 1);
  return times;
}

/// The difference of the largest and the smallest TetR in the last quarter.
double lateSwing(const RepressilatorParameters& parameters)
{
  const std::vector<double> times = timesUpTo(1000.0, 4001);
  const auto states = integrateRepressilator(parameters, start, times);
  double low = states.back()[3];
  double high = low;
  for (std::size_t i = 3000; i < states.size(); ++i)
  {
    low = std::min(low, states[i][3]);
    high = std::max(high, states[i][3]);
  }
  return high - low;
}

} // namespace

TEST(Repressilator, MeasuresTimeInLifetimesOfAHalfLifeOfTwoMinutes)
{
  EXPECT_NEAR(std::exp(-120.0 / mRnaLifetimeInSeconds()), 0.5, 1e-15);
}

TEST(Repressilator, AgreesWithAFixedStepMethodOfItsOwn)
{
  const std::vector<double> times = timesUpTo(40.0, 5);
  for (const RepressilatorParameters& parameters : {oscillating(), resting()})
  {
    const auto states = integrateRepressilator(parameters, start, times);
    ASSERT_EQ(states.size(), times.size());
    RepressilatorState reference = start;
    for (std::size_t i = 1; i < times.size(); ++i)
    {
      reference = rungeKutta(parameters, reference, 1e-3, 10000);
      for (std::size_t j = 0; j < reference.size(); ++j)
        EXPECT_NEAR(states[i][j], reference[j], 1e-4 * (1.0 + std::abs(reference[j])));
    }
  }
}

TEST(Repressilator, StartsWhereItIsTold)
{
  EXPECT_EQ(integrateRepressilator(resting(), start, {0.0, 1.0})[0], start);
}

TEST(Repressilator, KnowsItsSteadyState)
{
  for (const RepressilatorParameters& parameters : {oscillating(), resting()})
  {
    const double p = repressilatorSteadyState(parameters);
    for (const double rate : repressilatorRates(parameters, {p, p, p, p, p, p}))
      EXPECT_NEAR(rate, 0.0, 1e-10);
  }
}

TEST(Repressilator, ComesToRestWhereTheCriterionSaysStable)
{
  ASSERT_TRUE(repressilatorIsStable(resting()));
  EXPECT_LT(lateSwing(resting()), 1e-3);
}

TEST(Repressilator, OscillatesWhereTheCriterionSaysUnstable)
{
  ASSERT_FALSE(repressilatorIsStable(oscillating()));
  EXPECT_GT(lateSwing(oscillating()), 10.0);
}

TEST(Repressilator, HasThePeriodThatWasMeasured)
{
  const std::vector<double> times = timesUpTo(1000.0, 20001);
  const auto states = integrateRepressilator(oscillating(), start, times);
  std::vector<double> peaks;
  for (std::size_t i = 10001; i + 1 < states.size(); ++i)
    if (states[i][3] > states[i - 1][3] && states[i][3] >= states[i + 1][3])
      peaks.push_back(times[i]);
  ASSERT_GE(peaks.size(), 3u);
  const double period = (peaks.back() - peaks.front()) / static_cast<double>(peaks.size() - 1);
  // The paper reports 160 minutes in living cells, with a standard deviation of 40.
  EXPECT_NEAR(period * mRnaLifetimeInSeconds() / 60.0, 160.0, 40.0);
}

TEST(Repressilator, ChangesItsStabilityWhereTheEigenvaluesCrossZero)
{
  // At the boundary (beta + 1)^2 / beta = 3 X^2 / (4 + 2 X) the linearised circuit turns with
  // eigenvalues i w; a beta a little to either side of the root must be judged differently.
  RepressilatorParameters parameters = {20.0, 0.1, 1.0, 2.0};
  ASSERT_FALSE(repressilatorIsStable(parameters));
  double unstable = 1.0;
  double stable = 1e6;
  for (int i = 0; i < 200; ++i)
  {
    parameters.beta = std::sqrt(unstable * stable);
    (repressilatorIsStable(parameters) ? stable : unstable) = parameters.beta;
  }
  const double p = repressilatorSteadyState(parameters);
  const double x = -20.0 * 2.0 * p / std::pow(1.0 + p * p, 2.0);
  // lambda^2 + (1 + beta) lambda + beta (1 - X e^(2 pi i / 3)) = 0 with lambda = i w: the real part
  // gives w^2 = beta (1 + X / 2), the imaginary part w = beta X sqrt(3) / (2 (1 + beta)).
  const double w = std::sqrt(stable * (1.0 + x / 2.0));
  EXPECT_NEAR(w, stable * std::abs(x) * std::sqrt(3.0) / (2.0 * (1.0 + stable)), 1e-6 * w);
}
