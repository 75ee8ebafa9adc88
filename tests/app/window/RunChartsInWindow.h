#ifndef RunChartsInWindow_h
#define RunChartsInWindow_h

#include <vtkScatterPlotMatrix.h>
#include <vtkStringArray.h>

#include <string>
#include <vector>

#include "window/SelectionInWindow.h"

/// Charts of one point or line per run. The parameter k of run r is r + 0.5.
class RunChartsInWindow : public SelectionInWindow
{
protected:
  using Names = std::vector<std::string>;
  using Selected = SelectionInWindow::Runs;

  vtkChartParallelCoordinates* lines()
  {
    return vtkChartParallelCoordinates::SafeDownCast(container().getItem());
  }

  Names axes()
  {
    Names names;
    for (vtkIdType i = 0; lines() && i < lines()->GetVisibleColumns()->GetNumberOfValues(); ++i)
      names.push_back(lines()->GetVisibleColumns()->GetValue(i));
    return names;
  }

  QPoint onAxis(int axis, double value)
  {
    vtkAxis* shown = lines()->GetAxis(axis);
    const double part = (value - shown->GetMinimum()) / (shown->GetMaximum() - shown->GetMinimum());
    const double y = shown->GetPoint1()[1] + part * (shown->GetPoint2()[1] - shown->GetPoint1()[1]);
    return pixelOfScene(plot(), shown->GetPoint1()[0], y);
  }

  /// Brushes the part of the axis of k around that of a run.
  void brush(int run, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    // The mouse must go down within the axis, which runs from the first to the last run.
    const double inner = run == 2 ? -0.3 : 0.3;
    drag(plot(), Qt::RightButton, onAxis(0, run + 0.5 + inner), onAxis(0, run + 0.5 - inner),
         modifiers);
  }

  vtkScatterPlotMatrix* matrix()
  {
    return vtkScatterPlotMatrix::SafeDownCast(container().getItem());
  }

  /// In the large chart of the matrix, whose axes stand right and above, at a value of k and a part
  /// of the height.
  QPoint inMatrix(double value, double height)
  {
    vtkChart* chart = matrix()->GetMainChart();
    vtkAxis* x = chart->GetAxis(vtkAxis::TOP);
    vtkAxis* y = chart->GetAxis(vtkAxis::RIGHT);
    const double part = (value - x->GetMinimum()) / (x->GetMaximum() - x->GetMinimum());
    const double row = y->GetPoint1()[1] + height * (y->GetPoint2()[1] - y->GetPoint1()[1]);
    return pixelOfScene(plot(), x->GetPoint1()[0] + part * (x->GetPoint2()[0] - x->GetPoint1()[0]),
                        row);
  }

  /// Drags there around k of a run over its whole height.
  void dragInMatrix(int run, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    drag(plot(), Qt::RightButton, inMatrix(run + 0.4, 0.01), inMatrix(run + 0.6, 0.99), modifiers);
  }

  /// Draws through all these places there.
  void drawInMatrix(const std::vector<QPoint>& places)
  {
    QTest::mousePress(&plot(), Qt::RightButton, Qt::NoModifier, places.front());
    for (const QPoint& place : places)
    {
      QMouseEvent move(QEvent::MouseMove, place, plot().mapToGlobal(place), Qt::NoButton,
                       Qt::RightButton, Qt::NoModifier);
      QCoreApplication::sendEvent(&plot(), &move);
    }
    QTest::mouseRelease(&plot(), Qt::RightButton, Qt::NoModifier, places.back());
    QCoreApplication::processEvents();
  }

  /// Rows of whole runs.
  static Rows rowsOf(const Selected& selected)
  {
    Rows rows;
    for (const int run : selected)
      for (int point = 0; point < pointsPerRun; ++point)
        rows.insert(run * pointsPerRun + point);
    return rows;
  }

  void expectSelected(const Selected& selected, const char* what)
  {
    EXPECT_EQ(runs(), selected) << what;
    EXPECT_EQ(flags(), rowsOf(selected)) << what;
    EXPECT_EQ(window.selectionText(),
              QString("%1 of 3 runs selected").arg(static_cast<int>(selected.size())))
        << what;
  }

  void show(const Talmesh::app::PlotChoice& choice)
  {
    window.plotDock()->setChoice(choice);
    emit window.plotDock()->choiceChanged();
    plot().updatePlot(true);
  }
};

#endif
