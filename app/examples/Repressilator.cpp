#include "app/examples/Repressilator.h"

#include <boost/numeric/odeint.hpp>

#include <algorithm>
#include <cmath>

namespace Talmesh::app
{

namespace
{

constexpr double tolerance = 1e-6;
constexpr double firstStep = 0.01;
constexpr std::size_t genes = 3;

/// The gene whose protein represses the given one: LacI tetR, CI lacI, TetR cI.
constexpr std::array<std::size_t, genes> repressor = {LacI, CI, TetR};

double transcription(const RepressilatorParameters& parameters, double protein)
{
  // A trial step of the integrator may overshoot below zero, where the power has no value.
  return parameters.alpha / (1.0 + std::pow(std::max(protein, 0.0), parameters.n)) +
         parameters.alpha0;
}

} // namespace

double mRnaLifetimeInSeconds()
{
  constexpr double halfLife = 120.0;
  return halfLife / std::log(2.0);
}

RepressilatorState repressilatorRates(const RepressilatorParameters& parameters,
                                      const RepressilatorState& state)
{
  RepressilatorState rates;
  for (std::size_t gene = 0; gene < genes; ++gene)
  {
    const double mRna = state[gene];
    const double protein = state[genes + gene];
    rates[gene] = -mRna + transcription(parameters, state[genes + repressor[gene]]);
    rates[genes + gene] = -parameters.beta * (protein - mRna);
  }
  return rates;
}

std::vector<RepressilatorState> integrateRepressilator(const RepressilatorParameters& parameters,
                                                       const RepressilatorState& start,
                                                       const std::vector<double>& times)
{
  namespace odeint = boost::numeric::odeint;
  std::vector<RepressilatorState> states;
  states.reserve(times.size());
  const auto rates = [&parameters](const RepressilatorState& state, RepressilatorState& derivative,
                                   double) { derivative = repressilatorRates(parameters, state); };
  const auto keep = [&states](const RepressilatorState& state, double) { states.push_back(state); };
  auto stepper = odeint::make_dense_output(tolerance, tolerance,
                                           odeint::runge_kutta_dopri5<RepressilatorState>());
  RepressilatorState state = start;
  odeint::integrate_times(stepper, rates, state, times.begin(), times.end(), firstStep, keep);
  return states;
}

double repressilatorSteadyState(const RepressilatorParameters& parameters)
{
  // Transcription falls with the protein, so the difference changes its sign exactly once.
  double low = 0.0;
  double high = parameters.alpha + parameters.alpha0;
  while (true)
  {
    const double middle = low + (high - low) / 2.0;
    if (middle <= low || middle >= high)
      return middle;
    (transcription(parameters, middle) > middle ? low : high) = middle;
  }
}

bool repressilatorIsStable(const RepressilatorParameters& parameters)
{
  const double p = repressilatorSteadyState(parameters);
  const double n = parameters.n;
  const double denominator = 1.0 + std::pow(p, n);
  const double x = -parameters.alpha * n * std::pow(p, n - 1.0) / (denominator * denominator);
  if (x <= -2.0)
    return false;
  const double beta = parameters.beta;
  return (beta + 1.0) * (beta + 1.0) / beta > 3.0 * x * x / (4.0 + 2.0 * x);
}

} // namespace Talmesh::app
