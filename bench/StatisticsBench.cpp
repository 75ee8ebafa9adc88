#include <vtkTable.h>

#include "BenchStudies.h"

namespace
{

/// Ranks and densities of the parameters of all runs.
void rankParameters(benchmark::State& state)
{
  ShownStudy study(static_cast<int>(state.range(0)), xyPlot);
  for (auto _ : state)
    study.container.generateRankedParameters(study.container.getTable(), 0);
  state.SetComplexityN(state.range(0));
}
BENCHMARK(rankParameters)->Apply(runCounts)->Complexity();

/// Quartiles of all runs at every time point.
void quartiles(benchmark::State& state)
{
  ShownStudy study(static_cast<int>(state.range(0)), xyPlot);
  for (auto _ : state)
    study.container.generateQuartiles();
  state.SetComplexityN(state.range(0));
}
BENCHMARK(quartiles)->Apply(runCounts)->Complexity();

} // namespace
