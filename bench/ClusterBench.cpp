#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <vtkChartXY.h>

#include <benchmark/benchmark.h>

#include "BenchWindow.h"

/// Summaries of all runs by position: clusters of their shapes, and quartiles. The numbers behind
/// the names are runs and points per run, or points of five runs.
namespace
{

/// peers.R sorts the same runs into as many.
constexpr int clusters = 5;
constexpr int fewRuns = 5;
constexpr int clustersOfFew = 2;

struct ShownRuns
{
  ShownRuns(int runs, int points)
  {
    // Standard output is for what is measured.
    PlotOptions options;
    options.showsDiagnostics = false;
    container.setOptions(options);
    container.setLinePlotTable(benchTable(runs, points, 0), false);
  }

  PlotContainer container{nullptr};
};

void cluster(benchmark::State& state, ShownRuns& shown, int count)
{
  for (auto _ : state)
  {
    shown.container.clusterTimeSeries(count, 0);
    state.PauseTiming();
    shown.container.getChartXY()->ClearPlots();
    state.ResumeTiming();
  }
}

void clusterRuns(benchmark::State& state)
{
  ShownRuns shown(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  cluster(state, shown, clusters);
}
BENCHMARK(clusterRuns)
    ->Args({5000, 1000})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void clusterLongRuns(benchmark::State& state)
{
  ShownRuns shown(fewRuns, static_cast<int>(state.range(0)));
  cluster(state, shown, clustersOfFew);
}
BENCHMARK(clusterLongRuns)->Arg(16000)->Arg(64000)->Unit(benchmark::kMillisecond)->UseRealTime();

void quartilesOfLongRuns(benchmark::State& state)
{
  ShownRuns shown(fewRuns, static_cast<int>(state.range(0)));
  for (auto _ : state)
    shown.container.generateQuartiles();
}
BENCHMARK(quartilesOfLongRuns)
    ->Arg(16000)
    ->Arg(64000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
