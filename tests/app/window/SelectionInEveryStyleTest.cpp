#include "support/DrawnStyles.h"

#include <vtkChartParallelCoordinates.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <string>
#include <vector>

#include "window/SelectionInWindow.h"

namespace
{

using namespace Talmesh::app;

/// What one style does to the selection of another.
class SelectionInEveryStyle : public SelectionInWindow
{
};

TEST_F(SelectionInEveryStyle, SurvivesAChangeOfStyleAndColumns)
{
  dragAround(1, 1);
  for (const plotStyles style : drawnStyles)
  {
    choose(style);
    EXPECT_EQ(runs(), Runs{1}) << style;
    EXPECT_EQ(flags(), (Rows{4, 5, 6, 7})) << style;
    EXPECT_EQ(window.selectionText(), "1 of 3 runs selected") << style;
    if (style == parallelCoordinates)
    {
      EXPECT_EQ(highlightedLines(), Rows{1});
    }
    // 3, 6 and 8 have something red without one.
    else if (style == xyPlot || style == xyzPlot || style == multiPlot ||
             style == scatterWithErrorBars)
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

TEST_F(SelectionInEveryStyle, GivesParallelCoordinatesNoFurtherAxes)
{
  const auto axes = [this]
  {
    auto* chart = vtkChartParallelCoordinates::SafeDownCast(container().getItem());
    std::vector<std::string> names;
    for (vtkIdType i = 0; chart && i < chart->GetVisibleColumns()->GetNumberOfValues(); ++i)
      names.push_back(chart->GetVisibleColumns()->GetValue(i));
    return names;
  };
  choose(parallelCoordinates);
  const std::vector<std::string> before = axes();
  EXPECT_GT(before.size(), 3u);
  choose(xyPlot);
  dragAround(1, 1);
  ASSERT_TRUE(container().getTable()->GetColumnByName("vtkRemainderSelection"));
  choose(parallelCoordinates);
  EXPECT_EQ(axes(), before);
}

TEST_F(SelectionInEveryStyle, SplitsTheRunsForTheStatistics)
{
  dragAround(1, 1);
  choose(selectionCdfPlot);
  EXPECT_EQ(container().getDerivedTables().size(), 8U);
  EXPECT_EQ(container().getKsResults().size(), container().getMetaData()->parameterColumns.size());
}

TEST_F(SelectionInEveryStyle, IsCleared)
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
    else if (style == xyPlot || style == xyzPlot || style == multiPlot ||
             style == scatterWithErrorBars)
    {
      EXPECT_EQ(redPixels(), 0) << style;
    }
  }
}

TEST_F(SelectionInEveryStyle, IsUndoneAndRedone)
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

} // namespace
