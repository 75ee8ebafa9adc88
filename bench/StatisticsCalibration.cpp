#include "stats/RunComparison.h"
#include "stats/SimulatedStudies.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace Talmesh::stats;

namespace
{
/// Shares of studies with p < 0.05.
struct Shares
{
  double deciding = 0.0;
  /// Of the second parameter, which never has an effect.
  double idle = 0.0;
  /// The same as if runs were independent.
  double idleByRuns = 0.0;
};

double runP(const SimulatedStudy& study, std::size_t parameter)
{
  std::vector<double> selected;
  std::vector<double> others;
  for (std::size_t run = 0; run < study.selected.size(); ++run)
    (study.selected[run] != 0 ? selected : others).push_back(study.columns[parameter][run]);
  return tiedKsTest(tieBlocks(std::move(selected), std::move(others))).p;
}

Shares sharesOf(StudyDesign design, bool firstDecides, ComparisonPlan plan, std::uint64_t studies)
{
  Shares shares;
  const double one = 1.0 / static_cast<double>(studies);
  const std::uint64_t firstSeed = plan.seed;
  for (std::uint64_t i = 0; i < studies; ++i)
  {
    plan.seed = firstSeed + i;
    const SimulatedStudy study = simulateStudy(design, firstDecides, plan.seed);
    const RunComparison comparison = compareRuns(study.columns, study.selected, plan);
    shares.deciding += comparison.parameters[0].p < 0.05 ? one : 0.0;
    shares.idle += comparison.parameters[1].p < 0.05 ? one : 0.0;
    shares.idleByRuns += runP(study, 1) < 0.05 ? one : 0.0;
  }
  return shares;
}

/// @return false for a share beyond what docs/statistics.md promises
bool printRow(StudyDesign design, const ComparisonPlan& plan, std::uint64_t studies)
{
  const Shares nothing = sharesOf(design, false, plan, studies);
  const Shares decided = sharesOf(design, true, plan, studies);
  std::printf("| %s | %.1f %% | %.1f %% | %.1f %% | %.1f %% | %.1f %% |\n", nameOf(design).c_str(),
              100.0 * nothing.idle, 100.0 * decided.idle, 100.0 * decided.deciding,
              100.0 * nothing.idleByRuns, 100.0 * decided.idleByRuns);
  std::fflush(stdout);
  return nothing.idle <= 0.065 && decided.idle <= 0.065 && decided.deciding > 0.95;
}
} // namespace

// talmesh_calibration [studies [seed [distribution|ranks]]]: prints the table of
// docs/statistics.md.
int main(int argc, char** argv)
{
  const std::uint64_t studies = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 2000;
  ComparisonPlan plan;
  plan.seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  // Nobody looks at their p, and no other one depends on it.
  plan.chosenBy = {2, 3, 4, 5};
  if (argc > 3 && std::strcmp(argv[3], "ranks") == 0)
    plan.comparedBy = ComparedBy::rankSum;
  std::printf(
      "| Design | idle, nothing has an effect | idle, another decides | the one that decides "
      "| idle by runs, nothing | idle by runs, another |\n|---|---|---|---|---|---|\n");
  bool kept = true;
  for (const StudyDesign design : allStudyDesigns)
    kept = printRow(design, plan, studies) && kept;
  return kept ? 0 : 1;
}
