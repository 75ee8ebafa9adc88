#ifndef SimulatedStudies_h
#define SimulatedStudies_h

#include "stats/ParameterSets.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Studies whose parameters have a known effect on which runs are selected: none, or only the first
/// one has.
namespace Talmesh::stats
{
enum class StudyDesign
{
  /// 200 random points.
  singleRuns,
  /// 60 random points, 5 runs each.
  fiveReplicates,
  /// 30 random points, 20 runs each.
  twentyReplicates,
  /// 6 by 6 by 6 levels.
  grid,
  /// 40 base samples of six parameters, 8 runs each.
  saltelli
};

constexpr StudyDesign allStudyDesigns[] = {StudyDesign::singleRuns, StudyDesign::fiveReplicates,
                                           StudyDesign::twentyReplicates, StudyDesign::grid,
                                           StudyDesign::saltelli};

std::string nameOf(StudyDesign design);

/// Three parameters, uniform on [0, 1), or on the levels 0, 1/6 ... 5/6; six in a Saltelli design.
ParameterColumns designPoints(StudyDesign design, std::uint64_t seed);

/// The points of a Saltelli design as SALib orders them: A, A with one coordinate from B each, B.
ParameterColumns saltelliPoints(std::size_t baseSamples, std::size_t parameters,
                                std::uint64_t seed);

struct SimulatedStudy
{
  ParameterColumns columns;
  std::vector<char> selected;
};

/// Selects the 30 % of runs with the largest outcome. Without `firstDecides` the outcome of a run
/// is normal, half of its variance common to the runs of a point or base sample, as if something
/// that is no parameter had an effect; otherwise it is four times the first parameter and noise of
/// the standard deviation 1/2.
SimulatedStudy simulateStudy(StudyDesign design, bool firstDecides, std::uint64_t seed);
} // namespace Talmesh::stats

#endif
