#ifndef ShownParameters_h
#define ShownParameters_h

#include "plot/KsStatistics.h"

#include <cstddef>
#include <vector>

namespace Talmesh::plot
{

/// Parameter charts in one row of the selection page.
constexpr std::size_t chartsPerRow = 4;

/// Whether the selected runs differ from the others by this result: p at most `pThreshold` and a
/// distance of at least `ksThreshold`.
bool isSignificant(const KsStatistics& result, double pThreshold, double ksThreshold);

/// The positions of the parameters to draw, in drawing order: the significant ones in parameter
/// order, then others in parameter order until the last row of four is full, at least one row.
///
/// With fewer results than parameters the rest is filled with 0, 1, 2, ..., which are not checked
/// against those already there, so that a position can come twice.
/// @param results one per parameter; those beyond `parameterCount` are ignored
std::vector<std::size_t> shownParameters(const std::vector<KsStatistics>& results,
                                         std::size_t parameterCount, double pThreshold,
                                         double ksThreshold);

/// The same by tests of a client: the significant ones first, then others until the last row of
/// four is full, at least one row. Both are in the order of rising p, without p last; equal p in
/// the order of falling statistics, then of the parameters, as are those without p. No position
/// comes twice.
/// @param tests one per parameter; those beyond `parameterCount` are ignored, missing ones count as
///   not tested
std::vector<std::size_t> shownParameters(const std::vector<ParameterTest>& tests,
                                         std::size_t parameterCount, double pThreshold,
                                         double ksThreshold);

} // namespace Talmesh::plot

#endif
