#include <benchmark/benchmark.h>

#include "BenchWindow.h"

namespace
{

int runsOf(const benchmark::State& state)
{
  return static_cast<int>(state.range(0));
}

int pointsOf(const benchmark::State& state)
{
  return static_cast<int>(state.range(1));
}

/// What the window costs without data.
void emptyFrame(benchmark::State& state)
{
  BenchWindow window;
  for (auto _ : state)
    window.paint(false);
}
BENCHMARK(emptyFrame)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

/// Painting once more what has not changed.
void unchangedFrame(benchmark::State& state)
{
  BenchWindow window(runsOf(state), pointsOf(state));
  for (auto _ : state)
    window.paint(false);
}

/// Putting the chart into the scene and painting it, as the widget does after every change.
void steadyFrame(benchmark::State& state)
{
  BenchWindow window(runsOf(state), pointsOf(state));
  for (auto _ : state)
    window.paint(true);
}

/// The same while every tenth run is selected, all its rows.
void steadyFrameOfSelection(benchmark::State& state)
{
  BenchWindow window(runsOf(state), pointsOf(state));
  window.select(0);
  window.paint(true);
  for (auto _ : state)
    window.paint(true);
}

/// Another part of the plane each time.
void zoomedFrame(benchmark::State& state)
{
  BenchWindow window(runsOf(state), pointsOf(state));
  int step = 0;
  for (auto _ : state)
  {
    window.zoom(++step);
    window.paint(false);
  }
}

/// Other runs selected each time, from the change of the selection to the picture of it.
void selectedFrame(benchmark::State& state)
{
  BenchWindow window(runsOf(state), pointsOf(state));
  window.select(0);
  window.paint(true);
  int choice = 0;
  for (auto _ : state)
  {
    window.select(++choice);
    window.paint(true);
  }
}

/// From new data to the picture of them.
void firstFrame(benchmark::State& state)
{
  BenchWindow window;
  for (auto _ : state)
  {
    state.PauseTiming();
    const auto table = benchTable(runsOf(state), pointsOf(state), 3);
    state.ResumeTiming();
    window.show(table, xyPlot);
    window.paint(true);
  }
}

void studies(benchmark::internal::Benchmark* benchmark)
{
  benchmark->Args({500, 200})->Args({5000, 200})->Args({5000, 1000})->Args({50000, 200});
  benchmark->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
}
BENCHMARK(unchangedFrame)->Apply(studies);
BENCHMARK(steadyFrame)->Apply(studies);
BENCHMARK(steadyFrameOfSelection)->Apply(studies);
BENCHMARK(zoomedFrame)->Apply(studies);
BENCHMARK(selectedFrame)->Apply(studies);
BENCHMARK(firstFrame)->Apply(studies);

} // namespace
