#include "app/SelectionController.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkPlotFunctionalBag.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <QAction>

#include "GroupsInWindow.h"
#include "PlotMouse.h"

namespace
{

using namespace Talmesh::app;

class RunLooksInWindow : public GroupsInWindow
{
};

TEST_F(RunLooksInWindow, QuartileBandsLieBehindTheSelectedRuns)
{
  tick("runBands");
  const auto bands = plots<vtkPlotFunctionalBag>();
  ASSERT_EQ(bands.size(), 3U);
  vtkPlotLineSet* all = plots<vtkPlotLineSet>()[0];
  EXPECT_TRUE(all->GetOnlyShowSelected());
  EXPECT_LT(chart().GetPlotIndex(bands[0]), chart().GetPlotIndex(bands[1]));
  EXPECT_LT(chart().GetPlotIndex(bands[1]), chart().GetPlotIndex(bands[2]));
  EXPECT_LT(chart().GetPlotIndex(bands[2]), chart().GetPlotIndex(all));
  // X at the first time: 1, 16, 3, 32, 5, 48.
  vtkTable* quartiles = container().getQuartileTable();
  EXPECT_EQ(quartiles->GetValueByName(0, "Median").ToDouble(), 10.5);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  // Y at the first time: 1, 2, ... 6.
  EXPECT_EQ(container().getQuartileTable()->GetValueByName(0, "Median").ToDouble(), 3.5);
  tick("runBands");
  EXPECT_TRUE(plots<vtkPlotFunctionalBag>().empty());
}

TEST_F(RunLooksInWindow, NormalisedRunsAreUndoneByReloadingTheValues)
{
  std::vector<double> before;
  for (vtkIdType row = 0; row < container().getTable()->GetNumberOfRows(); ++row)
    before.push_back(value(0, row));
  const auto expectOriginal = [&]
  {
    for (std::size_t row = 0; row < before.size(); ++row)
      EXPECT_EQ(value(0, static_cast<vtkIdType>(row)), before[row]) << row;
  };
  tick("normaliseRuns");
  // The second run falls from 16 in steps of 2.
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  EXPECT_EQ(value(0, pointsPerRun + 1), 14.0 / 16.0);
  EXPECT_EQ(value(1, 0), 1.0) << "other columns stay";
  EXPECT_TRUE(window.selectionController()->undoStack().canUndo());
  press(QKeySequence::Undo);
  expectOriginal();
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  press(QKeySequence::Redo);
  EXPECT_EQ(value(0, pointsPerRun), 1.0);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
  tick("normaliseRuns");
  expectOriginal();
}

TEST_F(RunLooksInWindow, NormalisingBelongsToTheColumnsShown)
{
  tick("normaliseRuns");
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  choice.y = {0};
  choose(choice);
  EXPECT_TRUE(find<QCheckBox>("normaliseRuns")->isChecked());
}

TEST_F(RunLooksInWindow, NormalisingShowsAllOfTheNewValues)
{
  VtkPlotWidget& plot = *window.plotWidget();
  plot.updatePlot(true);
  const auto shown = [this]
  {
    vtkAxis* left = chart().GetAxis(vtkAxis::LEFT);
    return std::make_pair(left->GetMinimum(), left->GetMaximum());
  };
  const QPoint middle(plot.width() / 2, plot.height() / 2);
  drag(plot, Qt::LeftButton, middle, middle + QPoint(0, 60));
  tick("runBands");
  plot.updatePlot(true);
  const auto panned = shown();
  // X runs from 1 to 48.
  EXPECT_GT(panned.second, 20.0);
  tick("normaliseRuns");
  plot.updatePlot(true);
  EXPECT_LE(shown().first, 0.125);
  EXPECT_GE(shown().second, 1.0);
  EXPECT_LT(shown().second, 2.0);
  drag(plot, Qt::LeftButton, middle, middle + QPoint(0, 60));
  press(QKeySequence::Undo);
  plot.updatePlot(true);
  EXPECT_LE(shown().first, 1.0);
  EXPECT_GE(shown().second, 48.0);
}

TEST_F(RunLooksInWindow, AnotherColumnIsShownWhole)
{
  VtkPlotWidget& plot = *window.plotWidget();
  plot.updatePlot(true);
  const QPoint middle(plot.width() / 2, plot.height() / 2);
  drag(plot, Qt::LeftButton, middle, middle + QPoint(0, 60));
  tick("runBands");
  vtkAxis* left = chart().GetAxis(vtkAxis::LEFT);
  ASSERT_EQ(left->GetBehavior(), vtkAxis::FIXED);
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {1};
  choose(choice);
  plot.updatePlot(true);
  // Y runs from 1 to 8.
  EXPECT_LE(left->GetMinimum(), 1.0);
  EXPECT_GE(left->GetMaximum(), 8.0);
  EXPECT_LT(left->GetMaximum(), 12.0);
  choice.y = {0};
  choose(choice);
  EXPECT_EQ(left->GetBehavior(), vtkAxis::FIXED) << "the window of X is remembered";
}

TEST_F(RunLooksInWindow, NormalisedValuesAreGivenBackWhenTheStudyIsLeft)
{
  tick("normaliseRuns");
  window.findChild<QAction*>(QStringLiteral("priors"))->trigger();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, 60000));
  window.returnToRuns();
  EXPECT_EQ(value(0, pointsPerRun), 16.0);
  EXPECT_FALSE(find<QCheckBox>("normaliseRuns")->isChecked());
  EXPECT_FALSE(window.selectionController()->undoStack().canUndo());
}

} // namespace
