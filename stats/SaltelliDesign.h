#ifndef SaltelliDesign_h
#define SaltelliDesign_h

#include "stats/ParameterSets.h"

#include <cstddef>
#include <optional>

namespace Talmesh::stats
{
/// Where the runs of a design for Sobol's sensitivity indices lie (A. Saltelli, Making best use of
/// model evaluations to compute sensitivity indices, Computer Physics Communications 145, 2002,
/// 280-297). Each base sample is a point A, a point B and points between them, which take all
/// coordinates but one from the same of the two: the runs of a base sample are not independent.
struct SaltelliDesign
{
  std::size_t baseSamples = 0;
  /// k + 2 for k parameters, or 2 k + 2 with the points for indices of second order.
  std::size_t runsPerSample = 0;
  /// The runs of a base sample follow each other; otherwise all points A do, and so on.
  bool interleaved = false;

  /// The run of a base sample, which its runs follow in the same order in all samples.
  std::size_t run(std::size_t sample, std::size_t position) const
  {
    return interleaved ? sample * runsPerSample + position : position * baseSamples + sample;
  }
};

/// Recognises a design by the values alone. k counts the parameters that vary, at least 2; there
/// are at least 2 base samples, all complete and in one order:
/// - interleaved, as SALib writes it (A, A with one coordinate from B, [B with one from A,] B), or
///   in blocks, as R's package sensitivity does (all A, all B, all A with the first from B, ...);
/// - with B last or second, A and B exchanged, and the coordinates in any one order.
///
/// Grids can look alike: more than half of the varying parameters must have different values in
/// more than half of the points A and of the points B. No missing values. O(k^2 N) for N base
/// samples.
/// @throws as runsIn() does
std::optional<SaltelliDesign> recogniseSaltelliDesign(const ParameterColumns& columns);

/// The design of so many parameters that the runs are said to be, whatever their values: with as
/// many runs as all base samples have. Base samples lie as those do whose runs share most values.
/// @param parameters 0 for as many as vary
/// @return nothing where the runs are no multiple of k + 2 or 2 k + 2, at least 2 of them
/// @throws as runsIn() does
std::optional<SaltelliDesign> namedSaltelliDesign(const ParameterColumns& columns,
                                                  std::size_t parameters);
} // namespace Talmesh::stats

#endif
