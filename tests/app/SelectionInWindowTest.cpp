#include "app/MainWindow.h"
#include "app/PlotChoice.h"
#include "app/PlotDock.h"
#include "app/SelectionController.h"
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

#include <memory>
#include <set>
#include <string>

#include "SampleStudies.h"

namespace
{

using namespace Talmesh::app;
using Runs = std::set<int>;
using Rows = std::set<vtkIdType>;

constexpr int patience = 60000;
constexpr int runCount = 3;
constexpr int pointsPerRun = 4;
constexpr plotStyles drawnStyles[] = {xyPlot,
                                      scatterPlotMatrix,
                                      xyzPlot,
                                      multiPlot,
                                      selectionCdfPlot,
                                      scatterWithErrorBars,
                                      fitParameterDistribution,
                                      parallelCoordinates};

/// The window with three runs of "X", drawn as lines.
class SelectionInWindow : public ::testing::Test
{
protected:
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
    PlotChoice choice = window.plotDock()->choice();
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

  QPoint pixelOf(double x, double y)
  {
    const auto along = [](vtkAxis* axis, double value, int coordinate)
    {
      const double part = (value - axis->GetMinimum()) / (axis->GetMaximum() - axis->GetMinimum());
      const float* ends[] = {axis->GetPoint1(), axis->GetPoint2()};
      return ends[0][coordinate] + part * (ends[1][coordinate] - ends[0][coordinate]);
    };
    vtkChartXY* chart = container().getChartXY();
    return {qRound(along(chart->GetAxis(vtkAxis::BOTTOM), x, 0)),
            plot().height() - 1 - qRound(along(chart->GetAxis(vtkAxis::LEFT), y, 1))};
  }

  /// Drags a rectangle around the point of `run` at `point` with the right button.
  void dragAround(int run, int point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    const double y = 2.0 + std::sin(point * 0.3 + run);
    const QPoint start = pixelOf(point - 0.2, y - 0.03);
    const QPoint end = pixelOf(point + 0.2, y + 0.03);
    QTest::mousePress(&plot(), Qt::RightButton, modifiers, start);
    QMouseEvent move(QEvent::MouseMove, end, plot().mapToGlobal(end), Qt::NoButton, Qt::RightButton,
                     modifiers);
    QCoreApplication::sendEvent(&plot(), &move);
    QTest::mouseRelease(&plot(), Qt::RightButton, modifiers, end);
    QCoreApplication::processEvents();
  }

  void press(const QKeySequence& keys)
  {
    const int key = keys[0];
    QTest::keyClick(&window, static_cast<Qt::Key>(key & ~Qt::KeyboardModifierMask),
                    static_cast<Qt::KeyboardModifiers>(key & Qt::KeyboardModifierMask));
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
  MainWindow window;
};

TEST_F(SelectionInWindow, FollowsTheRightMouseButtonAndItsModifiers)
{
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
  dragAround(1, 1);
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(window.selectionText(), "1 of 3 runs selected");
  dragAround(0, 1, Qt::ControlModifier);
  EXPECT_EQ(runs(), (Runs{0, 1}));
  dragAround(1, 1, Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{0});
  dragAround(0, 1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{});
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
}

TEST_F(SelectionInWindow, IsUndoneAndRedoneFromTheKeyboard)
{
  dragAround(1, 1);
  dragAround(2, 1);
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(window.selectionText(), "1 of 3 runs selected");
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{});
  press(QKeySequence::Redo);
  EXPECT_EQ(runs(), Runs{1});
}

TEST_F(SelectionInWindow, LosesItsHighlightOnUndo)
{
  ASSERT_EQ(redPixels(), 0);
  dragAround(1, 1);
  const int highlighted = redPixels();
  EXPECT_GT(highlighted, 100);
  press(QKeySequence::Undo);
  EXPECT_EQ(redPixels(), 0);
  press(QKeySequence::Redo);
  EXPECT_EQ(redPixels(), highlighted);
}

TEST_F(SelectionInWindow, IsEverythingOrNothingFromTheKeyboard)
{
  press(QKeySequence::SelectAll);
  EXPECT_EQ(runs(), (Runs{0, 1, 2}));
  EXPECT_EQ(window.selectionText(), "3 of 3 runs selected");
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(runs(), Runs{});
}

TEST_F(SelectionInWindow, SurvivesAChangeOfStyleAndColumns)
{
  dragAround(1, 1);
  for (const plotStyles style : drawnStyles)
  {
    choose(style);
    EXPECT_EQ(runs(), Runs{1}) << style;
    EXPECT_EQ(flags(), Rows{5}) << style;
    EXPECT_EQ(window.selectionText(), "1 of 3 runs selected") << style;
    if (style == parallelCoordinates)
    {
      EXPECT_EQ(highlightedLines(), Rows{5});
    }
    // Style 4 shows no selection; 3, 6 and 8 have something red without one.
    else if (style == xyPlot || style == multiPlot || style == scatterWithErrorBars)
    {
      EXPECT_GT(redPixels(), 10) << style;
    }
  }
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  EXPECT_EQ(runs(), Runs{1});
}

TEST_F(SelectionInWindow, IsSavedAndLoaded)
{
  dragAround(1, 1);
  dragAround(2, 1, Qt::ControlModifier);
  SelectionController& selection = *window.selectionController();
  ASSERT_EQ(selection.save(folder.filePath("two.json")), "");
  selection.clear();
  ASSERT_EQ(runs(), Runs{});
  EXPECT_EQ(selection.load(folder.filePath("two.json")), "");
  EXPECT_EQ(runs(), (Runs{1, 2}));
  EXPECT_NE(selection.load(folder.filePath("missing.json")), "");
  EXPECT_EQ(runs(), (Runs{1, 2}));
}

TEST_F(SelectionInWindow, SaysWhichLoadedRunsTheTableDoesNotHave)
{
  SelectionController& selection = *window.selectionController();
  const std::string path = folder.filePath("runs.json").toStdString();
  writeRuns("runs.json", "[2, 0, 7, 1000]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")),
            path + ": 2 of its 4 runs are not in this table: 7, 1000");
  EXPECT_EQ(runs(), Runs({0, 2}));
  writeRuns("runs.json", "[1, 3]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")),
            path + ": 1 of its 2 runs is not in this table: 3");
  EXPECT_EQ(runs(), Runs{1});
}

TEST_F(SelectionInWindow, StaysWhenNoneOfTheLoadedRunsIsInTheTable)
{
  dragAround(1, 1);
  SelectionController& selection = *window.selectionController();
  const std::string path = folder.filePath("runs.json").toStdString();
  writeRuns("runs.json", "[3, 4]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")),
            path + ": none of its runs is in this table: 3, 4");
  EXPECT_EQ(runs(), Runs{1});
  writeRuns("runs.json", "[]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")), "");
  EXPECT_EQ(runs(), Runs());
}

TEST_F(SelectionInWindow, SplitsTheRunsForTheStatistics)
{
  dragAround(1, 1);
  choose(selectionCdfPlot);
  EXPECT_EQ(container().getDerivedTables().size(), 8U);
  EXPECT_EQ(container().getKsResults().size(), container().getMetaData()->parameterColumns.size());
}

TEST_F(SelectionInWindow, IsClearedInEveryStyle)
{
  for (const plotStyles style : drawnStyles)
  {
    choose(xyPlot);
    dragAround(1, 1);
    choose(style);
    press(QKeySequence(Qt::Key_Escape));
    EXPECT_EQ(runs(), Runs{}) << style;
    EXPECT_EQ(flags(), Rows{}) << style;
    EXPECT_EQ(window.selectionText(), "0 of 3 runs selected") << style;
    if (style == parallelCoordinates)
    {
      EXPECT_EQ(highlightedLines(), Rows{});
    }
    else if (style == xyPlot || style == multiPlot || style == scatterWithErrorBars)
    {
      EXPECT_EQ(redPixels(), 0) << style;
    }
  }
}

TEST_F(SelectionInWindow, IsUndoneAndRedoneInEveryStyle)
{
  for (const plotStyles style : drawnStyles)
  {
    choose(xyPlot);
    dragAround(1, 1);
    dragAround(2, 1);
    choose(style);
    press(QKeySequence::Undo);
    EXPECT_EQ(runs(), Runs{1}) << style;
    EXPECT_EQ(window.selectionText(), "1 of 3 runs selected") << style;
    press(QKeySequence::Redo);
    EXPECT_EQ(runs(), Runs{2}) << style;
    press(QKeySequence::Undo);
    press(QKeySequence::Undo);
    EXPECT_EQ(flags(), Rows{}) << style;
  }
}

TEST_F(SelectionInWindow, FollowsAClickOnAPoint)
{
  QTest::mouseClick(&plot(), Qt::RightButton, Qt::NoModifier, pixelOfPoint(1, 1));
  QCoreApplication::processEvents();
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(window.selectionText(), "1 of 3 runs selected");
  QTest::mouseClick(&plot(), Qt::RightButton, Qt::ControlModifier, pixelOfPoint(2, 1));
  QCoreApplication::processEvents();
  EXPECT_EQ(runs(), (Runs{1, 2}));
  EXPECT_GT(redPixels(), 100);
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{1});
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{});
}

TEST_F(SelectionInWindow, IsToggledWhereSeveralColumnsAreDrawn)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {0, 1};
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  ASSERT_EQ(container().getChartXY()->GetNumberOfPlots(), 2);
  dragAround(1, 1);
  EXPECT_EQ(runs(), Runs{1});
  dragAround(0, 1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), (Runs{0, 1}));
  dragAround(1, 1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{0});
}

TEST_F(SelectionInWindow, HasItsKeysOnThePageOfRunsOnly)
{
  auto* tabs = window.findChild<QTabWidget*>();
  dragAround(1, 1);
  tabs->setCurrentIndex(1);
  press(QKeySequence::SelectAll);
  EXPECT_EQ(runs(), Runs{1});
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(runs(), Runs{1});
  tabs->setCurrentIndex(0);
  press(QKeySequence::SelectAll);
  EXPECT_EQ(runs(), (Runs{0, 1, 2}));
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(runs(), Runs{});
}

TEST_F(SelectionInWindow, SurvivesAButtonHeldWhileAnotherStudyOpens)
{
  const QPoint start = pixelOfPoint(1, 1);
  QTest::mousePress(&plot(), Qt::RightButton, Qt::NoModifier, start);
  window.openFile(folder.filePath("runs.csv"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  QTest::mouseRelease(&plot(), Qt::RightButton, Qt::NoModifier, start + QPoint(50, 50));
  QCoreApplication::processEvents();
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
}

TEST_F(SelectionInWindow, StartsAnewWithAnotherStudy)
{
  dragAround(1, 1);
  window.openFile(folder.filePath("runs.csv"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
  EXPECT_FALSE(window.selectionController()->undoStack().canUndo());
}

} // namespace
