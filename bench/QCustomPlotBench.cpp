#include <QApplication>
#include <qcustomplot.h>

#include <benchmark/benchmark.h>

#include "BenchRuns.h"

/// QCustomPlot with the same runs: one graph each, with its default settings but for the legend,
/// which would list every graph.
namespace
{

const QColor selectedColour(255, 50, 0, 150);
constexpr double selectedWidth = 3.7;

int runsOf(const benchmark::State& state)
{
  return static_cast<int>(state.range(0));
}

int pointsOf(const benchmark::State& state)
{
  return static_cast<int>(state.range(1));
}

class Window
{
public:
  Window()
  {
    plot.resize(windowWidth, windowHeight);
    plot.setAutoAddPlottableToLegend(false);
    plot.setInteractions(QCP::iSelectPlottables);
    plot.show();
    QCoreApplication::processEvents();
    paint();
  }

  Window(int runs, int points)
      : Window()
  {
    addGraphs(runs, plot.xAxis, plot.yAxis);
    setData(runs, points);
    paint();
  }

  void addGraphs(int runs, QCPAxis* x, QCPAxis* y)
  {
    for (int run = 0; run < runs; ++run)
    {
      QCPGraph* graph = plot.addGraph(x, y);
      graph->setSelectable(QCP::stWhole);
      graph->selectionDecorator()->setPen(QPen(selectedColour, selectedWidth));
    }
  }

  void setData(int runs, int points)
  {
    QVector<double> times(points);
    for (int point = 0; point < points; ++point)
      times[point] = timeOf(point, points);
    for (int run = 0; run < runs; ++run)
      plot.graph(run)->setData(times, waves.empty() ? madeWave(run, points) : waves[run], true);
    plot.xAxis->setRange(0.0, timeSpan);
    plot.yAxis->setRange(-2.1, 2.1);
  }

  /// Makes the data beforehand, so that only their handing over is measured.
  void prepare(int runs, int points)
  {
    waves.clear();
    for (int run = 0; run < runs; ++run)
      waves.push_back(madeWave(run, points));
  }

  void paint()
  {
    plot.replot(QCustomPlot::rpImmediateRefresh);
    plot.repaint();
  }

  void select(int choice)
  {
    for (int run = 0; run < plot.graphCount(); ++run)
    {
      const QCPDataRange all(0, plot.graph(run)->dataCount());
      plot.graph(run)->setSelection(
          QCPDataSelection(isSelected(run, choice) ? all : QCPDataRange()));
    }
  }

  void zoom(int step)
  {
    const ZoomWindow window = zoomWindow(step);
    plot.xAxis->setRange(window.xMin, window.xMax);
    plot.yAxis->setRange(window.yMin, window.yMax);
  }

  QCustomPlot plot;

private:
  static QVector<double> madeWave(int run, int points)
  {
    const std::vector<double> wave = waveOf(run, points);
    return QVector<double>(wave.begin(), wave.end());
  }

  std::vector<QVector<double>> waves;
};

void emptyFrame(benchmark::State& state)
{
  Window window;
  for (auto _ : state)
    window.paint();
}
BENCHMARK(emptyFrame)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

/// QCustomPlot draws anew whether anything has changed or not.
void steadyFrame(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  for (auto _ : state)
    window.paint();
}

void unchangedFrame(benchmark::State& state)
{
  steadyFrame(state);
}

void steadyFrameOfSelection(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  window.select(0);
  for (auto _ : state)
    window.paint();
}

void zoomedFrame(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  int step = 0;
  for (auto _ : state)
  {
    window.zoom(++step);
    window.paint();
  }
}

void selectedFrame(benchmark::State& state)
{
  Window window(runsOf(state), pointsOf(state));
  window.select(0);
  window.paint();
  int choice = 0;
  for (auto _ : state)
  {
    window.select(++choice);
    window.paint();
  }
}

/// The graphs are there already, as a client would keep them.
void firstFrame(benchmark::State& state)
{
  Window window;
  window.addGraphs(runsOf(state), window.plot.xAxis, window.plot.yAxis);
  window.prepare(runsOf(state), pointsOf(state));
  for (auto _ : state)
  {
    window.setData(runsOf(state), pointsOf(state));
    window.paint();
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

constexpr int parameters = 30;
constexpr int columns = 6;

/// A small chart per parameter beneath the runs, each with two distributions and two densities as
/// long as those of the page that compares runs.
void addDistributions(Window& window, int runs)
{
  QCPLayoutGrid* grid = window.plot.plotLayout();
  for (int p = 0; p < parameters; ++p)
  {
    auto* rect = new QCPAxisRect(&window.plot);
    grid->addElement(1 + p / columns, p % columns, rect);
    for (const int count : {runs - runs / 10, runs / 10, 200, 200})
    {
      QVector<double> x(count);
      QVector<double> y(count);
      for (int i = 0; i < count; ++i)
      {
        x[i] = parameterOf(i, p);
        y[i] = (i + 1.0) / count;
      }
      std::sort(x.begin(), x.end());
      QCPGraph* graph =
          window.plot.addGraph(rect->axis(QCPAxis::atBottom), rect->axis(QCPAxis::atLeft));
      graph->setData(x, y, true);
      graph->rescaleAxes(true);
    }
  }
}

void comparison(benchmark::State& state, bool selecting)
{
  Window window(runsOf(state), 200);
  // The runs in one row of their own, as wide as the window.
  QCPLayoutGrid* grid = window.plot.plotLayout();
  QCPAxisRect* main = window.plot.axisRect();
  grid->take(main);
  auto* row = new QCPLayoutGrid;
  grid->addElement(0, 0, row);
  row->addElement(0, 0, main);
  addDistributions(window, runsOf(state));
  if (selecting)
    window.select(0);
  window.paint();
  for (auto _ : state)
    window.paint();
}

void comparisonFrame(benchmark::State& state)
{
  comparison(state, false);
}
BENCHMARK(comparisonFrame)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

void comparisonFrameOfSelection(benchmark::State& state)
{
  comparison(state, true);
}
BENCHMARK(comparisonFrameOfSelection)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);

void exportPdf(benchmark::State& state)
{
  Window window(runsOf(state), 200);
  window.select(0);
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("plot.pdf"));
  for (auto _ : state)
    if (!window.plot.savePdf(path))
      state.SkipWithError("the PDF could not be written");
  state.counters["bytes"] = static_cast<double>(QFileInfo(path).size());
}
BENCHMARK(exportPdf)
    ->Arg(500)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  QApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
