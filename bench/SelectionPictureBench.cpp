#include "app/PictureFile.h"
#include "app/Study.h"
#include "external/PlotMetaData.h"
#include "plot/DerivedTables.h"

#include <QApplication>
#include <QFileInfo>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fstream>
#include <string>

#include "BenchWindow.h"

namespace
{

constexpr int parameters = 30;
/// With the wave, the time and the run index these are 32 columns.
constexpr int parametersOf32Columns = 29;

/// The page that compares the selected runs with the others, painted once more.
void comparisonFrame(benchmark::State& state)
{
  BenchWindow window(static_cast<int>(state.range(0)), 200, parameters, selectionCdfPlot);
  for (auto _ : state)
    window.paint(true);
}
BENCHMARK(comparisonFrame)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

/// The same with every tenth run selected.
void comparisonFrameOfSelection(benchmark::State& state)
{
  BenchWindow window(static_cast<int>(state.range(0)), 200, parameters, selectionCdfPlot);
  window.select(0);
  window.paint(true);
  for (auto _ : state)
    window.paint(true);
}
BENCHMARK(comparisonFrameOfSelection)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);

/// From another selection to the finished page.
void comparisonOfSelection(benchmark::State& state)
{
  BenchWindow window(static_cast<int>(state.range(0)), 200, parameters, selectionCdfPlot);
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
  BenchWindow window(static_cast<int>(state.range(0)), 2, parameters);
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

void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& place, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
  QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

/// From the release of the mouse, which has drawn a rectangle over all rows, to the picture.
void brush(benchmark::State& state)
{
  BenchWindow window(static_cast<int>(state.range(0) / 200), 200);
  QWidget& plot = window.widget;
  const QPoint from(120, 60);
  const QPoint to(plot.width() - 60, plot.height() - 100);
  for (auto _ : state)
  {
    state.PauseTiming();
    window.select(0);
    window.paint(true);
    sendMouse(plot, QEvent::MouseButtonPress, from, Qt::RightButton, Qt::RightButton);
    sendMouse(plot, QEvent::MouseMove, to, Qt::NoButton, Qt::RightButton);
    QCoreApplication::processEvents();
    state.ResumeTiming();
    sendMouse(plot, QEvent::MouseButtonRelease, to, Qt::RightButton, Qt::NoButton);
    QCoreApplication::processEvents();
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

/// Bytes of a line of /proc/self/status.
double statusOf(const std::string& name)
{
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word)
  {
    double kilobytes = 0.0;
    if (word == name + ":" && status >> kilobytes)
      return 1024.0 * kilobytes;
  }
  return 0.0;
}

/// The most memory above that of an empty window while a table of 32 columns is shown and runs of
/// it are selected. Says something only in a process that measures nothing else.
void peakMemory(benchmark::State& state)
{
  for (auto _ : state)
  {
    BenchWindow window;
    const double before = statusOf("VmRSS");
    std::ofstream("/proc/self/clear_refs") << 5;
    window.show(benchTable(static_cast<int>(state.range(0)), 200, parametersOf32Columns),
                selectionCdfPlot);
    window.paint(true);
    window.select(0);
    window.paint(true);
    const double table = 32.0 * 200.0 * 8.0 * static_cast<double>(state.range(0));
    state.counters["bytes"] = statusOf("VmHWM") - before;
    state.counters["tables"] = (statusOf("VmHWM") - before) / table;
  }
}
BENCHMARK(peakMemory)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

/// Writing the picture of a selection as PDF.
void exportPdf(benchmark::State& state)
{
  BenchWindow window(static_cast<int>(state.range(0)), 200);
  window.select(0);
  window.paint(true);
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("plot.pdf"));
  for (auto _ : state)
  {
    const std::string error = Talmesh::app::exportPlot(window.widget, path);
    if (!error.empty())
      state.SkipWithError(error.c_str());
  }
  state.counters["bytes"] = static_cast<double>(QFileInfo(path).size());
}
BENCHMARK(exportPdf)
    ->Arg(500)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);

} // namespace
