#include "app/document/ShownStudy.h"
#include "app/examples/ExampleStudy.h"
#include "external/PlotMetaData.h"
#include "plot/DerivedTables.h"

#include <benchmark/benchmark.h>

#include "BenchWindow.h"
#include "FrameBenchmarks.h"
#include "ProcessMemory.h"

namespace
{

using FrameBenchmarks::comparedParameters;
using FrameBenchmarks::pointsOfPages;
/// With the wave, the time and the run index these are 32 columns.
constexpr int parametersOf32Columns = 29;

/// From another selection to the finished page.
void comparisonOfSelection(benchmark::State& state)
{
  BenchWindow window;
  window.showComparison(static_cast<int>(state.range(0)));
  window.select(0);
  window.paint(true);
  int choice = 0;
  for (auto _ : state)
  {
    window.select(++choice);
    window.paint(true);
  }
}
BENCHMARK(comparisonOfSelection)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);

/// Ranks, densities and tests of all parameters of the selected and of the other runs.
void selectionStatistics(benchmark::State& state)
{
  using Talmesh::plot::rankSlot;
  BenchWindow window(static_cast<int>(state.range(0)), 2, comparedParameters);
  window.select(0);
  const auto tables = window.container.getDerivedTables();
  const auto selected = tables.at(rankSlot(1) - 1);
  const auto others = tables.at(rankSlot(2) - 1);
  for (auto _ : state)
  {
    window.container.generateRankedParameters(selected, rankSlot(1));
    window.container.generateRankedParameters(others, rankSlot(2));
    window.container.ksTestSelection(rankSlot(1), rankSlot(2));
  }
}
BENCHMARK(selectionStatistics)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime();

/// From the release of the mouse, which has drawn a rectangle over all rows, to the picture.
void brush(benchmark::State& state)
{
  BenchWindow window(static_cast<int>(state.range(0) / pointsOfPages), pointsOfPages);
  for (auto _ : state)
  {
    state.PauseTiming();
    window.select(0);
    window.paint(true);
    window.drag();
    state.ResumeTiming();
    window.release();
    window.paint(true);
  }
}
BENCHMARK(brush)->Arg(603000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

/// From the choice of parallel coordinates to their picture, with the example study.
void parallelCoordinatesOfExample(benchmark::State& state)
{
  const Talmesh::app::Study study = Talmesh::app::exampleStudyOfRepressilator();
  BenchWindow window;
  Talmesh::app::showStudy(study, window.container);
  window.paint(true);
  for (auto _ : state)
  {
    state.PauseTiming();
    window.container.setPlotStyle(xyPlot);
    window.paint(true);
    state.ResumeTiming();
    window.container.setPlotStyle(parallelCoordinates);
    window.paint(true);
  }
}
BENCHMARK(parallelCoordinatesOfExample)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(2);

/// The same with lines that all differ, coloured by one column and then another.
void parallelCoordinatesOfRows(benchmark::State& state)
{
  constexpr int parameters = 9;
  BenchWindow window(static_cast<int>(state.range(0) / pointsOfPages), pointsOfPages, parameters);
  int color = 0;
  for (auto _ : state)
  {
    state.PauseTiming();
    window.container.setPlotStyle(xyPlot);
    window.paint(true);
    window.container.getMetaData()->colorColumn = ++color;
    state.ResumeTiming();
    window.container.setPlotStyle(parallelCoordinates);
    window.paint(true);
  }
}
BENCHMARK(parallelCoordinatesOfRows)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(2);

/// The most memory above that of an empty window while a table of 32 columns is shown and runs of
/// it are selected. Says something only in a process that measures nothing else.
void peakMemory(benchmark::State& state)
{
  for (auto _ : state)
  {
    BenchWindow window;
    const ProcessMemory memory;
    window.show(benchTable(static_cast<int>(state.range(0)), pointsOfPages, parametersOf32Columns),
                selectionCdfPlot);
    window.paint(true);
    for (const int choice : {0, 1})
    {
      window.select(choice);
      window.paint(true);
    }
    memory.report(state,
                  std::size_t{32} * pointsOfPages * static_cast<std::size_t>(state.range(0)));
  }
}
BENCHMARK(peakMemory)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace
