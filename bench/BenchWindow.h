#ifndef BenchWindow_h
#define BenchWindow_h

#include "external/LinePlotTable.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkSelection.h>
#include <vtkSmartPointer.h>

#include <boost/shared_ptr.hpp>

#include <QEvent>
#include <QPoint>
#include <QRect>
#include <QString>

#include <string>

/// The runs of `BenchRuns.h` in one table: the wave, time, run index and parameters.
boost::shared_ptr<LinePlotTable> benchTable(int runs, int points, int parameters);

/// A plot widget on the screen, as in the viewer's window.
class BenchWindow
{
public:
  /// Shows no data yet.
  BenchWindow();
  /// Shows a table, with a line per run, and has painted it once.
  BenchWindow(int runs, int points, int parameters = 3, plotStyles style = xyPlot);

  /// The page that compares runs by 30 parameters. Does not paint.
  void showComparison(int runs);
  /// Makes the table that `showPrepared` hands over.
  void prepare(int runs, int points);
  void showPrepared();
  /// Hands over a table as a client does. Does not paint.
  void show(const boost::shared_ptr<LinePlotTable>& table, plotStyles style);
  /// Paints, and returns when the picture is complete and in the window.
  /// @param clear as of VtkPlotWidget::updatePlot
  void paint(bool clear);
  /// Selects every tenth run with all its rows, which sets off what a selection sets off. Does not
  /// paint.
  void select(int choice);
  /// Draws a rectangle over all rows of the XY chart with the mouse, whose button stays down.
  void drag();
  /// Lets go of the button, which selects what is in the rectangle. Does not paint.
  void release();
  /// @return what went wrong; empty if nothing did
  std::string exportPdf(const QString& path);
  /// Limits both axes of the XY chart. Does not paint.
  void zoom(int step);

  VtkPlotWidget widget;
  PlotContainer container;

private:
  vtkSmartPointer<vtkSelection> runsOf(int choice) const;
  void sendMouse(QEvent::Type type, const QPoint& place, Qt::MouseButton button,
                 Qt::MouseButtons buttons);
  /// Where the XY chart draws its data, in pixels of the widget from its upper left.
  QRect dataArea();

  boost::shared_ptr<LinePlotTable> prepared;
  int runs = 0;
  int points = 0;
};

#endif
