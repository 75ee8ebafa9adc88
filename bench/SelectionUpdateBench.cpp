#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/RunSplit.h"

#include "BenchStudies.h"

namespace
{

/// What a new selection sets off in a plain plot: the marks, the split, the ranks and the test of
/// every parameter, and the drawing of the chart, which is not painted.
void selectionUpdate(benchmark::State& state)
{
  ShownStudy study(static_cast<int>(state.range(0)), xyPlot);
  for (auto _ : state)
    study.container.getAnnotationLink()->SetCurrentSelection(study.quarterOfTheRuns());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(selectionUpdate)->Apply(runCounts)->Complexity();

/// The part of it that marks and splits the rows.
void selectionSplit(benchmark::State& state)
{
  ShownStudy study(static_cast<int>(state.range(0)), xyPlot);
  study.container.getAnnotationLink()->SetCurrentSelection(study.quarterOfTheRuns());
  for (auto _ : state)
    Talmesh::plot::splitRuns(stateOf(study.container), study.container.getAnnotationLink());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(selectionSplit)->Apply(runCounts)->Complexity();

/// The part that ranks one of the two parts.
void selectionRanks(benchmark::State& state)
{
  ShownStudy study(static_cast<int>(state.range(0)), xyPlot);
  study.container.getAnnotationLink()->SetCurrentSelection(study.quarterOfTheRuns());
  const auto selected = study.container.getDerivedTables().at(2);
  for (auto _ : state)
    study.container.generateRankedParameters(selected, 3);
  state.SetComplexityN(state.range(0));
}
BENCHMARK(selectionRanks)->Apply(runCounts)->Complexity();

/// The part that tests the parameters of the two rank tables.
void selectionTests(benchmark::State& state)
{
  ShownStudy study(static_cast<int>(state.range(0)), xyPlot);
  study.container.getAnnotationLink()->SetCurrentSelection(study.quarterOfTheRuns());
  for (auto _ : state)
    study.container.ksTestSelection(3, 6);
  state.SetComplexityN(state.range(0));
}
BENCHMARK(selectionTests)->Apply(runCounts)->Complexity();

} // namespace
