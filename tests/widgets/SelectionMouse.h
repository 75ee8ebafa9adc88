#ifndef SelectionMouse_h
#define SelectionMouse_h

#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/SampleRuns.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAnnotationLink.h>
#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkCommand.h>
#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPoint>
#include <QTest>

#include <memory>
#include <set>
#include <vector>

struct DataPoint
{
  double x;
  double y;
};

/// A shown widget with three runs of three points, over which a mouse is dragged.
class SelectionMouse : public ::testing::Test
{
protected:
  SelectionMouse()
  {
    PlotMetaData& settings = *container().getMetaData();
    settings.xColumns = {SampleRuns::timeColumn};
    settings.yColumns = {SampleRuns::complexColumn};
    SampleRuns::load(container(), SampleRuns::runs(3, 3));
    container().redraw();
    widget.updatePlot(true);
    widget.resize(600, 400);
    widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    widget.updatePlot(true);
    container().getAnnotationLink()->AddObserver(vtkCommand::AnnotationChangedEvent, this,
                                                 &SelectionMouse::count);
  }

  PlotContainer& container() { return *widget.plotContainer(); }

  /// Where the widget shows a point of the data in a chart with the given axes.
  QPoint pixelOf(const DataPoint& point, vtkAxis* horizontal, vtkAxis* vertical) const
  {
    const auto along = [](vtkAxis* axis, double value, int coordinate)
    {
      const double part = (value - axis->GetMinimum()) / (axis->GetMaximum() - axis->GetMinimum());
      const float* ends[] = {axis->GetPoint1(), axis->GetPoint2()};
      return ends[0][coordinate] + part * (ends[1][coordinate] - ends[0][coordinate]);
    };
    return {qRound(along(horizontal, point.x, 0)),
            widget.height() - 1 - qRound(along(vertical, point.y, 1))};
  }

  /// Drags a rectangle in the XY chart.
  void drag(const DataPoint& from, const DataPoint& to,
            Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    dragIn(container().getChartXY(), from, to, modifiers);
  }

  void dragIn(vtkChart* chart, const DataPoint& from, const DataPoint& to,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier, int horizontal = vtkAxis::BOTTOM,
              int vertical = vtkAxis::LEFT)
  {
    vtkAxis* x = chart->GetAxis(horizontal);
    vtkAxis* y = chart->GetAxis(vertical);
    dragPixels(pixelOf(from, x, y), pixelOf(to, x, y), modifiers);
  }

  void dragPixels(const QPoint& start, const QPoint& end,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::mousePress(&widget, Qt::RightButton, modifiers, start);
    QMouseEvent move(QEvent::MouseMove, end, widget.mapToGlobal(end), Qt::NoButton, Qt::RightButton,
                     modifiers);
    QCoreApplication::sendEvent(&widget, &move);
    QTest::mouseRelease(&widget, Qt::RightButton, modifiers, end);
    widget.updatePlot(true);
  }

  /// Presses and releases a button at one place of the XY chart.
  void click(const DataPoint& point, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             Qt::MouseButton button = Qt::RightButton)
  {
    vtkChart* chart = container().getChartXY();
    clickPixel(pixelOf(point, chart->GetAxis(vtkAxis::BOTTOM), chart->GetAxis(vtkAxis::LEFT)),
               modifiers, button);
  }

  void clickPixel(const QPoint& pixel, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  Qt::MouseButton button = Qt::RightButton)
  {
    QTest::mouseClick(&widget, button, modifiers, pixel);
    widget.updatePlot(true);
  }

  void move(const QPoint& to, Qt::MouseButton pressed)
  {
    QMouseEvent event(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, pressed,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }

  /// Drags a rectangle around the point of `run` at `point`.
  void dragAround(int run, int point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    const double y = 10 * run + point;
    drag({point - 0.3, y - 0.4}, {point + 0.3, y + 0.4}, modifiers);
  }

  std::vector<double> flags()
  {
    return SampleRuns::valuesOf(vtk::TakeSmartPointer(container().getCurrentSelection()));
  }

  /// How often the selection has been announced.
  int announcements() const { return announced; }

  std::set<int> runs()
  {
    return std::unique_ptr<ParameterSelection>(container().getSelection())->runs;
  }

  /// Draws another style and shows it.
  void showStyle(plotStyles style)
  {
    container().setPlotStyle(style);
    widget.updatePlot(true);
  }

  VtkPlotWidget widget;

private:
  void count() { ++announced; }

  int announced = 0;
};

#endif
