#ifndef SobolIndices_h
#define SobolIndices_h

#include "export/ViewerExport.h"

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

/// The outputs of a model for one point of the unit cube, always as many; without any the
/// estimation is given up.
using UnitCubeModel = std::function<std::vector<double>(const std::vector<double>& point)>;

/// Estimates Sobol's sensitivity indices of a model with `inputs` independent inputs, each uniform
/// on [0, 1).
///
/// The points are two samples A and B and, per input i, A with column i from B (A. Saltelli, Making
/// best use of model evaluations to compute sensitivity indices, Computer Physics Communications
/// 145, 2002, 280-297). A and B are the halves of the points of one Sobol sequence, which fills the
/// cube more evenly than independent points do, shifted by one random vector modulo 1 (R. Cranley,
/// T. N. L. Patterson, SIAM Journal on Numerical Analysis 13, 1976, 904-914). The estimators are
///
///   S_i  = 1 - sum (f(B) - f(A_B^i))^2 / (2 N V)
///   ST_i =     sum (f(A) - f(A_B^i))^2 / (2 N V)
///
/// (M. J. W. Jansen, Analysis of variance designs for model output, Computer Physics Communications
/// 117, 1999, 35-43) with V the variance of f over A and B. Estimates can fall below 0. The model
/// is evaluated samples * (inputs + 2) times. An output that does not vary has indices that are not
/// a number, whatever its value.
/// @param inputs at least 1; otherwise the result is empty
/// @param samples N, best a power of two; with 0 the result is empty, and so it is when the model
///   gives the estimation up
/// @param seed of the Mersenne Twister that draws the shift, the same everywhere
/// @throws std::invalid_argument for more than half as many inputs as the sequence has dimensions
///   (Boost: 3667)
TALMESHPLOT_VIEWER_EXPORT SobolIndices estimateSobolIndices(const UnitCubeModel& model,
                                                            std::size_t inputs, std::size_t samples,
                                                            std::uint32_t seed);

} // namespace Talmesh::stats

#endif
