#include <qcustomplot.h>

#include <algorithm>
#include <string>
#include <vector>

#include "BenchMain.h"
#include "BenchRuns.h"
#include "FrameBenchmarks.h"

/// QCustomPlot with the same runs: one graph each, with its default settings but for the legend,
/// which would list every graph.
namespace
{

const QColor selectedColour(255, 50, 0, 150);
constexpr double selectedWidth = 3.7;

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
    paint(true);
  }

  Window(int runs, int points)
      : Window()
  {
    prepare(runs, points);
    showPrepared();
    paint(true);
  }

  /// The graphs are there already when data are handed over, as a client would keep them.
  void prepare(int runs, int points)
  {
    while (plot.graphCount() < runs)
      addRun();
    times.resize(points);
    for (int point = 0; point < points; ++point)
      times[point] = timeOf(point, points);
    waves.clear();
    for (int run = 0; run < runs; ++run)
    {
      const std::vector<double> wave = waveOf(run, points);
      waves.emplace_back(wave.begin(), wave.end());
    }
  }

  void showPrepared()
  {
    for (std::size_t run = 0; run < waves.size(); ++run)
      plot.graph(static_cast<int>(run))->setData(times, waves[run], true);
    plot.xAxis->setRange(0.0, timeSpan);
    plot.yAxis->setRange(-2.1, 2.1);
  }

  void showComparison(int runs)
  {
    prepare(runs, FrameBenchmarks::pointsOfPages);
    showPrepared();
    // The runs in one row of their own, as wide as the window.
    QCPLayoutGrid* grid = plot.plotLayout();
    QCPAxisRect* main = plot.axisRect();
    grid->take(main);
    auto* row = new QCPLayoutGrid;
    grid->addElement(0, 0, row);
    row->addElement(0, 0, main);
    for (int p = 0; p < FrameBenchmarks::comparedParameters; ++p)
      addDistributions(p, runs);
  }

  /// QCustomPlot draws anew whether anything has changed or not.
  void paint(bool)
  {
    plot.replot(QCustomPlot::rpImmediateRefresh);
    plot.repaint();
  }

  void select(int choice)
  {
    for (int run = 0; run < static_cast<int>(waves.size()); ++run)
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

  std::string exportPdf(const QString& path)
  {
    return plot.savePdf(path) ? "" : "the PDF could not be written";
  }

private:
  void addRun()
  {
    QCPGraph* graph = plot.addGraph();
    graph->setSelectable(QCP::stWhole);
    graph->selectionDecorator()->setPen(QPen(selectedColour, selectedWidth));
  }

  /// A small chart beneath the runs with two distributions and two densities as long as those of
  /// the page that compares runs.
  void addDistributions(int parameter, int runs)
  {
    constexpr int columns = 6;
    auto* rect = new QCPAxisRect(&plot);
    plot.plotLayout()->addElement(1 + parameter / columns, parameter % columns, rect);
    for (const int count : {runs - runs / 10, runs / 10, 200, 200})
    {
      QVector<double> x(count);
      QVector<double> y(count);
      for (int i = 0; i < count; ++i)
      {
        x[i] = parameterOf(i, parameter);
        y[i] = (i + 1.0) / count;
      }
      std::sort(x.begin(), x.end());
      QCPGraph* graph = plot.addGraph(rect->axis(QCPAxis::atBottom), rect->axis(QCPAxis::atLeft));
      graph->setData(x, y, true);
      graph->rescaleAxes(true);
    }
  }

  QCustomPlot plot;
  QVector<double> times;
  std::vector<QVector<double>> waves;
};

} // namespace

void prepareProgram()
{
  FrameBenchmarks::add<Window>();
}
