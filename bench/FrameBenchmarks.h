#ifndef FrameBenchmarks_h
#define FrameBenchmarks_h

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <string>

/// The frames that every side draws. A `Window` shows a plot of the size of `BenchRuns.h` and has
///
/// - `Window()`, which shows no data, and `Window(runs, points)`, which has painted them once;
/// - `showComparison(runs)`, the page that compares runs by `comparedParameters` of them;
/// - `prepare(runs, points)`, which makes data, and `showPrepared()`, which hands them over;
/// - `paint(clear)`, which returns when the picture is complete, put together anew if `clear`;
/// - `select(choice)` and `zoom(step)` as `isSelected()` and `zoomWindow()` say, which do not
/// paint;
/// - `exportPdf(path)`, which returns what went wrong.
///
/// One process measures one of them at a time, so that no side profits from the one before.
namespace FrameBenchmarks
{

constexpr int comparedParameters = 30;
constexpr int pointsOfPages = 200;

inline int runsOf(const benchmark::State& state)
{
  return static_cast<int>(state.range(0));
}

inline int pointsOf(const benchmark::State& state)
{
  return static_cast<int>(state.range(1));
}

template <typename Window>
void paintRepeatedly(benchmark::State& state, Window& window, bool clear)
{
  for (auto _ : state)
    window.paint(clear);
}

/// What the window costs without data.
template <typename Window>
void emptyFrame(benchmark::State& state)
{
  Window window;
  paintRepeatedly(state, window, false);
}

/// Painting once more what has not changed.
template <typename Window>
void unchangedFrame(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  paintRepeatedly(state, window, false);
}

/// Putting the picture together and painting it, as after every change.
template <typename Window>
void steadyFrame(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  paintRepeatedly(state, window, true);
}

/// The same while every tenth run is selected, all its rows.
template <typename Window>
void steadyFrameOfSelection(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  window.select(0);
  window.paint(true);
  paintRepeatedly(state, window, true);
}

/// Another part of the plane each time.
template <typename Window>
void zoomedFrame(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  int step = 0;
  for (auto _ : state)
  {
    window.zoom(++step);
    window.paint(false);
  }
}

/// Other runs selected each time, from the change of the selection to the picture of it.
template <typename Window>
void selectedFrame(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
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
template <typename Window>
void firstFrame(benchmark::State& state)
{
  Window window;
  for (auto _ : state)
  {
    state.PauseTiming();
    window.prepare(runsOf(state), pointsOf(state));
    state.ResumeTiming();
    window.showPrepared();
    window.paint(true);
  }
}

/// The page that compares runs, painted once more.
template <typename Window>
void comparisonFrame(benchmark::State& state)
{
  Window window;
  window.showComparison(runsOf(state));
  window.paint(true);
  paintRepeatedly(state, window, true);
}

/// The same with every tenth run selected.
template <typename Window>
void comparisonFrameOfSelection(benchmark::State& state)
{
  Window window;
  window.showComparison(runsOf(state));
  window.select(0);
  window.paint(true);
  paintRepeatedly(state, window, true);
}

/// Writing the picture of a selection as PDF.
template <typename Window>
void exportPdf(benchmark::State& state)
{
  Window window(runsOf(state), pointsOfPages);
  window.select(0);
  window.paint(true);
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("plot.pdf"));
  for (auto _ : state)
  {
    const std::string error = window.exportPdf(path);
    if (!error.empty())
      state.SkipWithError(error.c_str());
  }
  state.counters["bytes"] = static_cast<double>(QFileInfo(path).size());
}

/// Makes all of them known, for a program that draws with a `Window`.
template <typename Window>
void add()
{
  const auto named = [](const char* name, void (*measure)(benchmark::State&), int iterations)
  {
    return benchmark::RegisterBenchmark(name, measure)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(iterations);
  };
  const auto studies = [&](const char* name, void (*measure)(benchmark::State&))
  {
    named(name, measure, 3)
        ->Args({500, 200})
        ->Args({5000, 200})
        ->Args({5000, 1000})
        ->Args({50000, 200});
  };
  named("emptyFrame", emptyFrame<Window>, 20);
  studies("unchangedFrame", unchangedFrame<Window>);
  studies("steadyFrame", steadyFrame<Window>);
  studies("steadyFrameOfSelection", steadyFrameOfSelection<Window>);
  studies("zoomedFrame", zoomedFrame<Window>);
  studies("selectedFrame", selectedFrame<Window>);
  studies("firstFrame", firstFrame<Window>);
  named("comparisonFrame", comparisonFrame<Window>, 3)->Arg(5000);
  named("comparisonFrameOfSelection", comparisonFrameOfSelection<Window>, 3)->Arg(5000);
  named("exportPdf", exportPdf<Window>, 1)->Arg(500)->Arg(5000);
}

} // namespace FrameBenchmarks

#endif
