#include "app/document/FeatureColumns.h"
#include "app/styles/ViewerStyles.h"
#include "vtk/vtkSelectableChartXYZ.h"
#include "vtk/vtkSelectableParallelCoordinates.h"

#include "window/RunChartsInWindow.h"

namespace
{

using namespace Talmesh::app;

constexpr Qt::KeyboardModifiers adding = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers subtracting = Qt::ShiftModifier;

/// What is brushed, clicked and pointed at in charts of runs. The highest X of the runs are 2.783,
/// 3.000 and 2.909, and the parameter k of run r is r + 0.5.
class PointedChartsInWindow : public RunChartsInWindow
{
protected:
  void brushAxis(int axis, double from, double to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    drag(plot(), Qt::RightButton, onAxis(axis, from), onAxis(axis, to), modifiers);
    plot().updatePlot(true);
  }

  std::string lastStep()
  {
    const QUndoStack& steps = window.selectionController()->undoStack();
    return steps.text(steps.index() - 1).toStdString();
  }

  /// Beside the axis, where a brush is wider than the axis's own line.
  bool isBrushed(int axis, double value)
  {
    const QColor shade = plot().grabFramebuffer().pixelColor(onAxis(axis, value) + QPoint(5, 0));
    return shade.red() > 240 && shade.blue() < 220;
  }

  void hover(const QPoint& pixel)
  {
    QMouseEvent move(QEvent::MouseMove, pixel, plot().mapToGlobal(pixel), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot(), &move);
    QCoreApplication::processEvents();
  }

  /// In the middle between the first two axes, on the line of a run.
  QPoint onLine(int run)
  {
    const QPoint left = onAxis(0, run + 0.5);
    const double highest[] = {2.0 + std::sin(0.9), 2.0 + std::sin(1.6), 2.0 + std::sin(2.0)};
    const QPoint right = onAxis(1, highest[run]);
    return (left + right) / 2;
  }

  void click(const QPoint& pixel, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::mouseClick(&plot(), Qt::RightButton, modifiers, pixel);
    QCoreApplication::processEvents();
    plot().updatePlot(true);
  }
};

} // namespace

TEST_F(PointedChartsInWindow, SelectWhatIsWithinTheBrushesOfAllAxes)
{
  choose(parallelCoordinates);
  brushAxis(0, 1.2, 2.4);
  expectSelected({1}, "one axis");
  brushAxis(0, 1.2, 2.49);
  brushAxis(0, 1.2, 0.6);
  expectSelected({}, "another brush of the same axis");
  brushAxis(0, 1.2, lines()->GetAxis(0)->GetMaximum() + 1.0);
  expectSelected({1, 2}, "up to the end");
  brushAxis(1, 2.85, 2.95);
  expectSelected({2}, "both axes");
  EXPECT_EQ(lastStep().find("Select 1 run: k >= 1."), 0u) << lastStep();
  EXPECT_NE(lastStep().find(" and max(X) >= 2.8"), std::string::npos) << lastStep();
  brushAxis(1, 2.95, 2.99);
  brushAxis(1, 2.95, 2.85);
  expectSelected({2}, "after brushes that meet no run");
}

TEST_F(PointedChartsInWindow, ShowBrushesAsLongAsTheyTellWhatIsSelected)
{
  choose(parallelCoordinates);
  EXPECT_FALSE(isBrushed(0, 1.9));
  brushAxis(0, 1.2, 2.3);
  brushAxis(1, 2.95, 2.99);
  brushAxis(1, 2.9, lines()->GetAxis(1)->GetMaximum() + 1.0);
  expectSelected({1}, "both axes");
  EXPECT_TRUE(isBrushed(0, 1.9));
  EXPECT_FALSE(isBrushed(0, 0.9));
  EXPECT_TRUE(isBrushed(1, 2.95));
  press(QKeySequence::SelectAll);
  plot().updatePlot(true);
  EXPECT_FALSE(isBrushed(0, 1.9));
  EXPECT_FALSE(isBrushed(1, 2.95));
  brushAxis(1, 2.85, 2.95);
  expectSelected({2}, "without the brushes before");
}

TEST_F(PointedChartsInWindow, DropBrushesOfAxesThatAreNoLongerShown)
{
  choose(parallelCoordinates);
  brushAxis(1, 2.95, 2.99);
  brushAxis(1, 2.85, 2.95);
  expectSelected({2}, "by the highest X");
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {featureColumn(1, RunFeature::Min)};
  show(choice);
  expectSelected({2}, "still");
  brushAxis(0, 1.2, 1.8);
  expectSelected({1}, "whatever its highest X");
}

TEST_F(PointedChartsInWindow, DropBrushesThatMeetNoRunByEscape)
{
  choose(parallelCoordinates);
  brushAxis(0, 1.7, 2.2);
  expectSelected({}, "between the runs");
  EXPECT_TRUE(isBrushed(0, 1.95));
  press(QKeySequence(Qt::Key_Escape));
  plot().updatePlot(true);
  EXPECT_FALSE(isBrushed(0, 1.95));
  brushAxis(1, 2.85, 2.95);
  expectSelected({2}, "without the brush before");
}

TEST_F(PointedChartsInWindow, TakeABrushWithAKeyAlone)
{
  choose(parallelCoordinates);
  brushAxis(0, 1.2, 2.3);
  brushAxis(1, 2.83, 2.8, adding);
  expectSelected({1}, "no run there");
  brushAxis(1, 2.85, 2.95, adding);
  expectSelected({1, 2}, "added, whatever their k");
  brushAxis(0, 1.2, 1.8, subtracting);
  expectSelected({2}, "subtracted");
  EXPECT_FALSE(isBrushed(0, 1.5));
}

TEST_F(PointedChartsInWindow, NameAndSelectTheNearestLine)
{
  choose(parallelCoordinates);
  auto* chart = vtkSelectableParallelCoordinates::SafeDownCast(lines());
  ASSERT_TRUE(chart);
  for (const int run : {2, 1, 0})
  {
    hover(onLine(run));
    EXPECT_TRUE(chart->GetTooltip()->GetVisible());
    EXPECT_EQ(chart->GetTooltip()->GetText(), "Run " + std::to_string(run));
    click(onLine(run));
    expectSelected({run}, "clicked");
  }
  const QPoint beside = onAxis(0, 1.0) + QPoint(20, 0);
  hover(beside);
  EXPECT_FALSE(chart->GetTooltip()->GetVisible());
  click(beside);
  expectSelected({0}, "beside all lines");
  click(onLine(2), adding);
  expectSelected({0, 2}, "added");
  EXPECT_EQ(lastStep(), "Add 1 run: runs(2)");
}

TEST_F(PointedChartsInWindow, SelectInThreeDimensions)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.style = xyzPlot;
  choice.x = 4;
  choice.y = {0};
  choice.z = 1;
  show(choice);
  auto* chart = vtkSelectableChartXYZ::SafeDownCast(container().getItem());
  ASSERT_TRUE(chart);
  EXPECT_EQ(redPixels(), 0);
  const QPoint corner(plot().width() - 3, plot().height() - 3);
  drag(plot(), Qt::RightButton, {2, 2}, corner);
  expectSelected({0, 1, 2}, "all in the rectangle");
  EXPECT_GT(redPixels(), 20);
  drag(plot(), Qt::RightButton, corner, {2, 2}, subtracting);
  expectSelected({}, "subtracted");
  EXPECT_EQ(redPixels(), 0);
  Selected found;
  for (int y = 20; y < plot().height(); y += 6)
    for (int x = 20; x < plot().width(); x += 6)
    {
      hover({x, y});
      if (!chart->GetTooltip()->GetVisible())
        continue;
      const std::string text = chart->GetTooltip()->GetText();
      ASSERT_EQ(text.find("Run "), 0u) << text;
      click({x, y});
      const int run = std::stoi(text.substr(4));
      expectSelected({run}, "clicked");
      found.insert(run);
    }
  EXPECT_EQ(found, (Selected{0, 1, 2}));
}

TEST_F(PointedChartsInWindow, SelectInTheMainChartsOfPagesOverParameters)
{
  for (const plotStyles style : {multiPlot, selectionCdfPlot, scatterWithErrorBars})
  {
    PlotChoice choice = window.plotDock()->choice();
    choice.style = style;
    choice.x = 4;
    choice.y = {featureColumn(0, RunFeature::Max)};
    show(choice);
    drag(plot(), Qt::RightButton, pixelOf(1.4, 2.95), pixelOf(1.6, 3.0) - QPoint(0, 5));
    expectSelected({1}, findStyle(style)->name);
    EXPECT_EQ(lastStep().find("Select 1 run: k >= 1."), 0u) << lastStep();
    EXPECT_NE(lastStep().find(" and max(X) >= 2.9"), std::string::npos) << lastStep();
    EXPECT_GT(redPixels(), 5) << style;
    click(pixelOf(2.5, 2.0 + std::sin(2.0)), adding);
    expectSelected({1, 2}, findStyle(style)->name);
    press(QKeySequence(Qt::Key_Escape));
    expectSelected({}, findStyle(style)->name);
  }
}

TEST_F(PointedChartsInWindow, KnowWhichColumnsALassoInTheMatrixAskedFor)
{
  choose(scatterPlotMatrix);
  window.selectionController()->gestures().setTool(Talmesh::SelectionTool::Lasso);
  drawInMatrix(
      {inMatrix(1.3, 0.01), inMatrix(1.7, 0.01), inMatrix(1.7, 0.99), inMatrix(1.3, 0.99)});
  expectSelected({1}, "lasso");
  const std::string words = window.selectionController()->words();
  EXPECT_NE(words.find("k >= 1.2"), std::string::npos) << words;
  // The same again from its words.
  window.selectionController()->clear();
  EXPECT_EQ(window.selectionController()->selectWhere(words, RunCombination::Replace).text, "");
  expectSelected({1}, words.c_str());
}
