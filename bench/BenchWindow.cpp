#include "BenchWindow.h"

#include "app/export/PictureFile.h"
#include "external/PlotMetaData.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <boost/make_shared.hpp>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QSignalBlocker>

#include <algorithm>
#include <string>

#include "BenchRuns.h"
#include "FrameBenchmarks.h"

namespace
{

/// One column; `value` is called with run and point.
template <typename Value>
void addItem(LinePlotTable& table, Talmesh::DataType kind, const std::string& name, Value&& value)
{
  const std::size_t points = table.pointsPerTrajectory;
  auto* values = new double[table.numberOfTrajectories * points];
  for (std::size_t run = 0; run < table.numberOfTrajectories; ++run)
    for (std::size_t point = 0; point < points; ++point)
      values[run * points + point] = value(static_cast<int>(run), static_cast<int>(point));
  table.items.emplace_back(kind, name);
  table.values.push_back(values);
}

void addWaves(LinePlotTable& table)
{
  const std::size_t points = table.pointsPerTrajectory;
  auto* values = new double[table.numberOfTrajectories * points];
  for (std::size_t run = 0; run < table.numberOfTrajectories; ++run)
  {
    const std::vector<double> wave = waveOf(static_cast<int>(run), static_cast<int>(points));
    std::copy(wave.begin(), wave.end(), values + run * points);
  }
  table.items.emplace_back(Talmesh::Molecule, "A");
  table.values.push_back(values);
}

} // namespace

boost::shared_ptr<LinePlotTable> benchTable(int runs, int points, int parameters)
{
  auto table = boost::make_shared<LinePlotTable>();
  table->numberOfTrajectories = static_cast<std::size_t>(runs);
  table->pointsPerTrajectory = static_cast<std::size_t>(points);
  addWaves(*table);
  addItem(*table, Talmesh::TimeOrValue, "Time [s]",
          [points](int, int point) { return timeOf(point, points); });
  addItem(*table, Talmesh::TimeOrValue, "Run Index", [](int run, int) { return 1.0 * run; });
  for (int p = 0; p < parameters; ++p)
  {
    addItem(*table, Talmesh::Parameter, "k" + std::to_string(p + 1),
            [p](int run, int) { return parameterOf(run, p); });
    table->parameterRanges.emplace_back(0.0, 1.0);
  }
  return table;
}

BenchWindow::BenchWindow()
    : widget(nullptr)
    , container(nullptr)
{
  widget.resize(windowWidth, windowHeight);
  widget.setPlotContainer(&container);
  widget.show();
  QCoreApplication::processEvents();
  paint(true);
}

BenchWindow::BenchWindow(int runCount, int pointCount, int parameters, plotStyles style)
    : BenchWindow()
{
  show(benchTable(runCount, pointCount, parameters), style);
  paint(true);
}

void BenchWindow::showComparison(int runCount)
{
  show(benchTable(runCount, FrameBenchmarks::pointsOfPages, FrameBenchmarks::comparedParameters),
       selectionCdfPlot);
}

void BenchWindow::prepare(int runCount, int pointCount)
{
  constexpr int parameters = 3;
  prepared = benchTable(runCount, pointCount, parameters);
}

void BenchWindow::showPrepared()
{
  show(prepared, xyPlot);
}

std::string BenchWindow::exportPdf(const QString& path)
{
  return Talmesh::app::exportPlot(widget, path);
}

void BenchWindow::show(const boost::shared_ptr<LinePlotTable>& table, plotStyles style)
{
  runs = static_cast<int>(table->numberOfTrajectories);
  points = static_cast<int>(table->pointsPerTrajectory);
  PlotMetaData* settings = container.getMetaData();
  {
    const QSignalBlocker silent(settings);
    settings->setPlotLine(true);
    settings->setPlotStyle(style);
  }
  container.setLinePlotTable(table, false);
}

void BenchWindow::paint(bool clear)
{
  widget.updatePlot(clear);
  widget.repaint();
  widget.makeCurrent();
  widget.context()->functions()->glFinish();
  widget.doneCurrent();
}

vtkSmartPointer<vtkSelection> BenchWindow::runsOf(int choice) const
{
  std::vector<vtkIdType> rows;
  for (int run = 0; run < runs; ++run)
    for (int point = 0; point < points && isSelected(run, choice); ++point)
      rows.push_back(static_cast<vtkIdType>(run) * points + point);
  return Talmesh::makeRowSelection(rows);
}

void BenchWindow::select(int choice)
{
  container.getAnnotationLink()->SetCurrentSelection(runsOf(choice));
}

QRect BenchWindow::dataArea()
{
  const int* corner = container.getChartXY()->GetPoint1();
  const int* opposite = container.getChartXY()->GetPoint2();
  return {QPoint(corner[0], widget.height() - opposite[1]),
          QPoint(opposite[0], widget.height() - corner[1])};
}

void BenchWindow::sendMouse(QEvent::Type type, const QPoint& place, Qt::MouseButton button,
                            Qt::MouseButtons buttons)
{
  QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

void BenchWindow::drag()
{
  const QRect area = dataArea().adjusted(1, 1, -1, -1);
  sendMouse(QEvent::MouseButtonPress, area.topLeft(), Qt::RightButton, Qt::RightButton);
  sendMouse(QEvent::MouseMove, area.bottomRight(), Qt::NoButton, Qt::RightButton);
  QCoreApplication::processEvents();
}

void BenchWindow::release()
{
  const QPoint place = dataArea().adjusted(1, 1, -1, -1).bottomRight();
  sendMouse(QEvent::MouseButtonRelease, place, Qt::RightButton, Qt::NoButton);
  QCoreApplication::processEvents();
}

void BenchWindow::zoom(int step)
{
  const ZoomWindow window = zoomWindow(step);
  vtkChartXY* chart = container.getChartXY();
  chart->GetAxis(vtkAxis::BOTTOM)->SetBehavior(vtkAxis::FIXED);
  chart->GetAxis(vtkAxis::LEFT)->SetBehavior(vtkAxis::FIXED);
  chart->GetAxis(vtkAxis::BOTTOM)->SetRange(window.xMin, window.xMax);
  chart->GetAxis(vtkAxis::LEFT)->SetRange(window.yMin, window.yMax);
}
