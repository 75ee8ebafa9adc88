#ifndef Repressilator_h
#define Repressilator_h

#include <array>
#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// The repressilator: three genes in a ring, each repressing the next (M. B. Elowitz and
/// S. Leibler, A synthetic oscillatory network of transcriptional regulators, Nature 403, 2000,
/// 335-338, box 1). In the scaled form of the paper, for gene i repressed by the protein of gene j:
///
///   dm_i/dt = -m_i + alpha / (1 + p_j^n) + alpha0
///   dp_i/dt = -beta (p_i - m_i)
///
/// Time is in mRNA lifetimes, proteins are in units of the amount that represses to one half, and
/// mRNAs in units of the amount that maintains one unit of protein.
struct RepressilatorParameters
{
  /// Rate of transcription without repressor, beyond the leakage.
  double alpha = 0.0;
  /// Rate of transcription under full repression: the leakage.
  double alpha0 = 0.0;
  /// Ratio of the protein decay rate to the mRNA decay rate.
  double beta = 0.0;
  /// Hill coefficient.
  double n = 0.0;
};

/// The genes in the order of the state.
enum RepressilatorGene : std::size_t
{
  TetR,
  LacI,
  CI
};

/// mRNAs of tetR, lacI and cI, then the proteins TetR, LacI and CI.
using RepressilatorState = std::array<double, 6>;

/// The mRNA lifetime in seconds, the unit of the scaled time: the paper gives a half-life of two
/// minutes, and a lifetime is the half-life divided by ln 2.
double mRnaLifetimeInSeconds();

/// The time derivative of a state, per mRNA lifetime.
RepressilatorState repressilatorRates(const RepressilatorParameters& parameters,
                                      const RepressilatorState& state);

/// The states at the given times, in mRNA lifetimes, ascending, of which the first is the time of
/// `start`. Integrated by Dormand and Prince's method of order five with error control (absolute
/// and relative tolerance 1e-6) and dense output.
std::vector<RepressilatorState> integrateRepressilator(const RepressilatorParameters& parameters,
                                                       const RepressilatorState& start,
                                                       const std::vector<double>& times);

/// The one steady state, in which all proteins and mRNAs are equal: the p with
/// p = alpha / (1 + p^n) + alpha0.
double repressilatorSteadyState(const RepressilatorParameters& parameters);

/// Whether that steady state is stable, so that the circuit comes to rest instead of oscillating.
/// With X = -alpha n p^(n-1) / (1 + p^n)^2 at the steady state the paper gives
/// (beta + 1)^2 / beta > 3 X^2 / (4 + 2 X); for X <= -2 there is no stable beta.
bool repressilatorIsStable(const RepressilatorParameters& parameters);

} // namespace Talmesh::app

#endif
