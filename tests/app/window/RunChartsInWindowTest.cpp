#include "window/RunChartsInWindow.h"

#include "app/document/FeatureColumns.h"
#include "app/styles/ViewerStyles.h"

#include <QComboBox>

namespace
{

using namespace Talmesh::app;

constexpr Qt::KeyboardModifiers adding = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers subtracting = Qt::ShiftModifier;
const Qt::KeyboardModifiers toggling = Qt::ControlModifier | Qt::ShiftModifier;

} // namespace

TEST_F(RunChartsInWindow, HaveAnAxisPerParameterAndFeatureAndALinePerRun)
{
  choose(parallelCoordinates);
  EXPECT_EQ(axes(), (Names{"k", "max(X)", "mean(X)", "final(X)"}));
  EXPECT_EQ(lines()->GetPlot(0)->GetInput()->GetNumberOfRows(), runCount);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {featureColumn(1, RunFeature::Min)};
  show(choice);
  EXPECT_EQ(axes(), (Names{"k", "min(Y)"}));
}

TEST_F(RunChartsInWindow, SelectRunsByBrushesWithTheFourOperations)
{
  choose(parallelCoordinates);
  brush(1);
  expectSelected({1}, "new");
  EXPECT_EQ(highlightedLines(), Rows{1});
  EXPECT_GT(redPixels(), 100);
  brush(2, adding);
  expectSelected({1, 2}, "added");
  brush(1, subtracting);
  expectSelected({2}, "subtracted");
  brush(0, toggling);
  brush(2, toggling);
  expectSelected({0}, "toggled");
  EXPECT_EQ(highlightedLines(), Rows{0});
  press(QKeySequence::Undo);
  expectSelected({0, 2}, "undone");
  EXPECT_EQ(highlightedLines(), (Rows{0, 2}));
}

TEST_F(RunChartsInWindow, NoteBrushesInWords)
{
  choose(parallelCoordinates);
  vtkAxis* axis = lines()->GetAxis(1);
  // The highest of run 1; that of run 2 is 2.909, of run 0 2.783.
  drag(plot(), Qt::RightButton, onAxis(1, 2.95), onAxis(1, axis->GetMaximum()) - QPoint(0, 9));
  expectSelected({1}, "up to the axis's end");
  const QUndoStack& steps = window.selectionController()->undoStack();
  const std::string step = steps.text(steps.index() - 1).toStdString();
  EXPECT_EQ(step.find("Select 1 run: max(X) >= 2.9"), 0u) << step;
  EXPECT_NE(step.find(" and max(X) <= "), std::string::npos) << step;
  EXPECT_EQ(step.find("max(X)", step.find("<=")), std::string::npos) << step;
}

TEST_F(RunChartsInWindow, SelectRunsInTheMatrixWithTheFourOperations)
{
  choose(scatterPlotMatrix);
  ASSERT_TRUE(matrix());
  EXPECT_EQ(matrix()->GetVisibleColumns()->GetNumberOfValues(), 4);
  dragInMatrix(1);
  expectSelected({1}, "new");
  dragInMatrix(2, adding);
  expectSelected({1, 2}, "added");
  dragInMatrix(1, subtracting);
  expectSelected({2}, "subtracted");
  dragInMatrix(0, toggling);
  dragInMatrix(2, toggling);
  expectSelected({0}, "toggled");
  press(QKeySequence::Undo);
  expectSelected({0, 2}, "undone");
}

TEST_F(RunChartsInWindow, KeepTheirSelectionFromStyleToStyle)
{
  choose(parallelCoordinates);
  brush(1);
  brush(2, adding);
  for (const plotStyles style : {xyPlot, scatterPlotMatrix, xyzPlot, multiPlot, selectionCdfPlot,
                                 scatterWithErrorBars, fitParameterDistribution})
  {
    choose(style);
    expectSelected({1, 2}, findStyle(style)->name);
  }
  choose(parallelCoordinates);
  EXPECT_EQ(highlightedLines(), (Rows{1, 2}));
}

TEST_F(RunChartsInWindow, DrawAParameterOverAFeatureAsPointsThatAreSelected)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.style = xyPlot;
  choice.lines = true;
  choice.x = featureColumn(0, RunFeature::First);
  choice.y = {4};
  show(choice);
  vtkPlot* points = container().getChartXY()->GetPlot(0);
  EXPECT_EQ(points->GetInput()->GetNumberOfRows(), runCount);
  // The first points of the runs are 2, 2 + sin 1 and 2 + sin 2.
  drag(plot(), Qt::RightButton, pixelOf(2.82, 1.4), pixelOf(2.86, 1.6));
  expectSelected({1}, "in a rectangle");
  EXPECT_GT(redPixels(), 5);
}

TEST_F(RunChartsInWindow, KeepTheirAxesWhereTheMouseHasPutThem)
{
  choose(parallelCoordinates);
  const auto move = [this](int from, int to)
  {
    drag(plot(), Qt::LeftButton, onAxis(from, lines()->GetAxis(from)->GetMaximum()) + QPoint(0, 90),
         onAxis(to, lines()->GetAxis(to)->GetMaximum()) + QPoint(from < to ? 12 : -12, 90));
  };
  move(3, 0);
  const Names moved{"final(X)", "k", "max(X)", "mean(X)"};
  EXPECT_EQ(axes(), moved);
  press(QKeySequence::SelectAll);
  EXPECT_EQ(axes(), moved);
  choose(xyPlot);
  choose(parallelCoordinates);
  EXPECT_EQ(axes(), moved);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1, 0};
  show(choice);
  EXPECT_EQ(axes(), (Names{"final(X)", "k", "max(X)", "mean(X)", "max(Y)", "mean(Y)", "final(Y)"}));
}

TEST_F(RunChartsInWindow, NeverShowInternalColumns)
{
  dragAround(1, 1);
  ASSERT_GT(container().getTable()->GetNumberOfColumns(), 5);
  PlotChoice choice = window.plotDock()->choice();
  for (int column = 0; column < 5; ++column)
    choice.y.push_back(column);
  choice.style = parallelCoordinates;
  show(choice);
  for (const std::string& name : axes())
  {
    EXPECT_EQ(name.find("Index"), std::string::npos) << name;
    EXPECT_EQ(name.find("ime"), std::string::npos) << name;
    EXPECT_EQ(name.find("vtk"), std::string::npos) << name;
  }
  EXPECT_EQ(axes().size(), 7u);
}

TEST_F(RunChartsInWindow, OfferFeaturesBehindTheColumns)
{
  const auto* x = window.plotDock()->findChild<QComboBox*>("x");
  ASSERT_TRUE(x);
  EXPECT_EQ(x->count(), 5 + 2 * static_cast<int>(runFeatures().size()));
  const int row = x->findText("final(Y)");
  ASSERT_GT(row, 4);
  choose(xyPlot);
  const_cast<QComboBox*>(x)->setCurrentIndex(row);
  EXPECT_EQ(window.document().choice().x, featureColumn(1, RunFeature::Final));
  EXPECT_TRUE(container().showsSummary());
}
