#include "stats/RunComparison.h"
#include "stats/SelectionPermutation.h"
#include "stats/SimulatedStudies.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <gtest/gtest.h>

using namespace Talmesh::stats;

namespace
{
constexpr std::uint64_t studies = 300;

/// Shares of studies in which p is below 0.05.
struct Shares
{
  /// As the library tests, for the first parameter and for the second, which never has an effect.
  double first = 0.0;
  double second = 0.0;
  /// For the second, as if runs were independent.
  double secondByRuns = 0.0;
};

std::vector<double> pOf(const ExchangeUnits& units, const std::vector<RankedCells>& parameters,
                        const std::vector<std::uint32_t>& selected, std::uint64_t seed)
{
  std::vector<double> p;
  for (const RankedCells& parameter : parameters)
    p.push_back(tiedKsTest(parameter.blocks(selected)).p);
  if (units.kind == IndependentUnit::run)
    return p;
  // Fewer permutations than the viewer makes, so that the test takes a second.
  PermutationPlan plan;
  plan.permutations = 199;
  plan.seed = seed;
  return permutationP(permuteSelection(units, parameters, selected, plan));
}

Shares sharesOf(StudyDesign design, bool firstDecides)
{
  Shares shares;
  const double one = 1.0 / static_cast<double>(studies);
  for (std::uint64_t seed = 1; seed <= studies; ++seed)
  {
    const SimulatedStudy study = simulateStudy(design, firstDecides, seed);
    const ExchangeUnits units = exchangeUnits(study.columns);
    const std::vector<RankedCells> parameters{RankedCells(units, study.columns[0]),
                                              RankedCells(units, study.columns[1])};
    const auto selected = selectedOfCells(units, study.selected);
    const std::vector<double> p = pOf(units, parameters, selected, seed);
    shares.first += p[0] < 0.05 ? one : 0.0;
    shares.second += p[1] < 0.05 ? one : 0.0;
    shares.secondByRuns += tiedKsTest(parameters[1].blocks(selected)).p < 0.05 ? one : 0.0;
  }
  return shares;
}
} // namespace

// 300 studies leave a standard deviation of 0.013 to a share of 0.05.
// bench/StatisticsCalibration.cpp makes 2,000.
TEST(StatisticsCalibration, RejectsAParameterWithoutEffectAsOftenAsStated)
{
  for (const StudyDesign design : allStudyDesigns)
  {
    const Shares nothing = sharesOf(design, false);
    const Shares decided = sharesOf(design, true);
    EXPECT_LT(nothing.first, 0.08) << nameOf(design);
    EXPECT_LT(nothing.second, 0.08) << nameOf(design);
    EXPECT_LT(decided.second, 0.08) << nameOf(design);
    EXPECT_GT(decided.first, 0.95) << nameOf(design);
    if (design == StudyDesign::singleRuns || design == StudyDesign::grid)
      continue;
    // Otherwise the studies would not tell the tests apart.
    EXPECT_GT(nothing.secondByRuns, 0.15) << nameOf(design);
    EXPECT_GT(decided.secondByRuns, 0.15) << nameOf(design);
  }
}
