#ifndef PlotMouse_h
#define PlotMouse_h

#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTest>

/// The pixel of a plot widget at a place in its scene: the mouse counts pixels of the window, from
/// above, the scene those of the screen, from below.
inline QPoint pixelOfScene(const VtkPlotWidget& plot, double x, double y)
{
  const double ratio = plot.devicePixelRatioF();
  return {qRound(x / ratio), plot.height() - 1 - qRound(y / ratio)};
}

/// The pixel of a plot widget at which a chart shows a point.
inline QPoint pixelOf(vtkChartXY* chart, const VtkPlotWidget& plot, double x, double y)
{
  const auto along = [](vtkAxis* axis, double value, int coordinate)
  {
    const double part = (value - axis->GetMinimum()) / (axis->GetMaximum() - axis->GetMinimum());
    const float* ends[] = {axis->GetPoint1(), axis->GetPoint2()};
    return ends[0][coordinate] + part * (ends[1][coordinate] - ends[0][coordinate]);
  };
  return pixelOfScene(plot, along(chart->GetAxis(vtkAxis::BOTTOM), x, 0),
                      along(chart->GetAxis(vtkAxis::LEFT), y, 1));
}

/// Presses a button, moves the mouse and releases the button, as the window system reports it.
inline void drag(VtkPlotWidget& plot, Qt::MouseButton button, const QPoint& from, const QPoint& to,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
  QTest::mousePress(&plot, button, modifiers, from);
  QMouseEvent move(QEvent::MouseMove, to, plot.mapToGlobal(to), Qt::NoButton, button, modifiers);
  QCoreApplication::sendEvent(&plot, &move);
  QTest::mouseRelease(&plot, button, modifiers, to);
  QCoreApplication::processEvents();
}

#endif
