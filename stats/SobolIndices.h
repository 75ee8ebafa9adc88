#ifndef SobolIndices_h
#define SobolIndices_h

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace Talmesh::stats
{

/// First-order and total sensitivity indices, [output][input].
struct SobolIndices
{
  std::vector<std::vector<double>> firstOrder;
  std::vector<std::vector<double>> total;
};

/// The outputs of a model for one point of the unit cube, always as many.
using UnitCubeModel = std::function<std::vector<double>(const std::vector<double>& point)>;

/// Estimates Sobol's sensitivity indices of a model with `inputs` independent inputs, each uniform
/// on [0, 1).
///
/// The points are two independent samples A and B and, per input i, A with column i from B
/// (A. Saltelli, Making best use of model evaluations to compute sensitivity indices, Computer
/// Physics Communications 145, 2002, 280-297); the estimators are
///
///   S_i  = 1 - sum (f(B) - f(A_B^i))^2 / (2 N V)
///   ST_i =     sum (f(A) - f(A_B^i))^2 / (2 N V)
///
/// (M. J. W. Jansen, Analysis of variance designs for model output, Computer Physics Communications
/// 117, 1999, 35-43) with V the variance of f over A and B. Estimates can fall below 0. The model
/// is evaluated samples * (inputs + 2) times. An output that does not vary has indices that are not
/// a number, whatever its value.
/// @param samples N, at least 1; otherwise the result is empty
/// @param seed of the Mersenne Twister that draws the points, the same everywhere
SobolIndices estimateSobolIndices(const UnitCubeModel& model, std::size_t inputs,
                                  std::size_t samples, std::uint32_t seed);

} // namespace Talmesh::stats

#endif
