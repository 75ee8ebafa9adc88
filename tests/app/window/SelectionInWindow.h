#ifndef SelectionInWindow_h
#define SelectionInWindow_h

#include "app/document/PlotChoice.h"
#include "app/document/SelectionController.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkChartXY.h>
#include <vtkIdTypeArray.h>
#include <vtkIntArray.h>
#include <vtkPlot.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>
#include <set>
#include <string>

#include "SampleStudies.h"
#include "window/PlotMouse.h"

/// The window with three runs of "X", drawn as lines.
class SelectionInWindow : public ::testing::Test
{
protected:
  using Runs = std::set<int>;
  using Rows = std::set<vtkIdType>;

  static constexpr int patience = 60000; ///< milliseconds
  static constexpr int runCount = 3;
  static constexpr int pointsPerRun = 4;

  SelectionInWindow()
  {
    QFile file(folder.filePath("runs.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    const std::string text = sampleRuns(runCount, pointsPerRun);
    file.write(text.data(), static_cast<qint64>(text.size()));
    file.close();
    window.resize(900, 600);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    // Shortcuts need an active window, which no window manager chooses here.
    QApplication::setActiveWindow(&window);
    window.openFile(file.fileName());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
    choose(xyPlot);
  }

  VtkPlotWidget& plot() { return *window.plotWidget(); }
  PlotContainer& container() { return *plot().plotContainer(); }

  void choose(plotStyles style)
  {
    Talmesh::app::PlotChoice choice = window.plotDock()->choice();
    choice.style = style;
    window.plotDock()->setChoice(choice);
    emit window.plotDock()->choiceChanged();
    plot().updatePlot(true);
  }

  /// Where the point of `run` at `point` is shown.
  QPoint pixelOfPoint(int run, int point)
  {
    return pixelOf(point, 2.0 + std::sin(point * 0.3 + run));
  }

  QPoint pixelOf(double x, double y) { return ::pixelOf(container().getChartXY(), plot(), x, y); }

  /// Drags a rectangle around the point of `run` at `point` with the right button.
  void dragAround(int run, int point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    const double y = 2.0 + std::sin(point * 0.3 + run);
    drag(plot(), Qt::RightButton, pixelOf(point - 0.2, y - 0.03), pixelOf(point + 0.2, y + 0.03),
         modifiers);
  }

  void press(const QKeySequence& keys)
  {
    QTest::keySequence(&window, keys);
    QCoreApplication::processEvents();
  }

  /// Pixels in the colour in which half-transparent highlights lie on white.
  int redPixels()
  {
    plot().updatePlot(true);
    const QImage picture = plot().grabFramebuffer();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
      {
        const QColor color = picture.pixelColor(x, y);
        count += color.red() > 200 && color.green() < 160 && color.blue() < 150;
      }
    return count;
  }

  void writeRuns(const char* name, const char* runs)
  {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(R"({"format": "talmesh-runs", "version": 1, "runs": )") + runs + "}");
  }

  /// The rows that the link's selection names.
  Rows flags()
  {
    const auto marks = vtkSmartPointer<vtkIntArray>::Take(container().getCurrentSelection());
    Rows rows;
    for (vtkIdType row = 0; row < marks->GetNumberOfValues(); ++row)
      if (marks->GetValue(row) == 1)
        rows.insert(row);
    return rows;
  }

  /// The rows highlighted in the parallel coordinates.
  Rows highlightedLines()
  {
    auto* chart = vtkChartParallelCoordinates::SafeDownCast(container().getItem());
    vtkIdTypeArray* list = chart->GetPlot(0)->GetSelection();
    const vtkIdType* first = list->GetPointer(0);
    return {first, first + list->GetNumberOfValues()};
  }

  Runs runs() { return std::unique_ptr<ParameterSelection>(container().getSelection())->runs; }

  QTemporaryDir folder;
  Talmesh::app::MainWindow window;
};

#endif
