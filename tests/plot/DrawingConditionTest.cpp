#include "plot/ContainerAccess.h"
#include "plot/DerivedTables.h"
#include "support/CapturedOutput.h"

#include <vtkCommand.h>

#include <iostream>

#include "SelectionPageFixture.h"

namespace
{

using Talmesh::plot::ownSlots;

/// A client that lets a page of runs with parameters be drawn, or not.
class DrawingCondition : public SelectionPageFixture
{
protected:
  DrawingCondition()
  {
    draw(2);
    container.addCondition(&owner,
                           [this]
                           {
                             ++asked;
                             return allowed;
                           });
    container.addPreparation(&owner, [this] { ++prepared; });
    container.addCompletion(&owner, [this] { ++completed; });
  }

  std::size_t parts() const { return container.getDerivedTables().size(); }

  QObject owner;
  bool allowed = true;
  int asked = 0;
  int prepared = 0;
  int completed = 0;
};

} // namespace

TEST_F(DrawingCondition, IsAskedBeforeEveryDrawing)
{
  container.redraw();
  EXPECT_EQ(asked, 1);
  settings().setPThreshold(0.011);
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(completed, 2);
}

TEST_F(DrawingCondition, LeavesThePageWhereItRefuses)
{
  allowed = false;
  const vtkAbstractContextItem* before = container.getItem();
  const unsigned long drawn = stateOf(container).drawings;
  container.setPlotStyle(xyPlot);
  EXPECT_EQ(container.getItem(), before);
  EXPECT_EQ(stateOf(container).drawings, drawn);
  EXPECT_EQ(prepared, 0);
  EXPECT_EQ(completed, 0);
  EXPECT_FALSE(settings().signalsBlocked());
  allowed = true;
  container.redraw();
  EXPECT_EQ(container.getItem(), container.getChartXY());
  EXPECT_EQ(completed, 1);
}

TEST_F(DrawingCondition, LeavesAPageWhoseWindowIsRememberedWhereItRefuses)
{
  settings().setLogX(true);
  container.setPlotStyle(xyPlot);
  stateOf(container).coordinateWindows.clear();
  allowed = false;
  container.redraw();
  vtkAxis* const bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
  bottom->SetRange(0.5, 0.6);
  container.getChartXY()->InvokeEvent(vtkCommand::InteractionEvent);
  ASSERT_EQ(stateOf(container).coordinateWindows.size(), 1U);
  EXPECT_EQ(stateOf(container).coordinateWindows.begin()->second.xMax, 0.6);
  allowed = true;
  container.redraw();
  EXPECT_EQ(bottom->GetMaximum(), 0.6);
}

TEST_F(DrawingCondition, IsAskedBeforeSelectedRunsAreCompared)
{
  selectFirstRuns(3);
  ASSERT_GT(parts(), ownSlots);
  ASSERT_FALSE(container.getKsResults().empty());
  ASSERT_FALSE(container.getTestedSamples().empty());
  allowed = false;
  completed = 0;
  const CapturedOutput errors(std::cerr);
  selectFirstRuns(7);
  EXPECT_EQ(errors.text(), "");
  EXPECT_EQ(parts(), ownSlots) << "nothing is kept of a selection that is gone";
  EXPECT_TRUE(container.getKsResults().empty());
  EXPECT_TRUE(container.getTestedSamples().empty());
  EXPECT_EQ(completed, 0);
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(DrawingCondition, HasWhatItRefusedMadeUpForByTheNextDrawing)
{
  allowed = false;
  selectFirstRuns(7);
  allowed = true;
  container.redraw();
  EXPECT_EQ(completed, 1);
  EXPECT_GT(parts(), ownSlots);
  EXPECT_EQ(container.getKsResults().size(), 2U);
  EXPECT_FALSE(settings().signalsBlocked());
  container.redraw();
  EXPECT_EQ(completed, 2) << "once";
}

TEST_F(DrawingCondition, MayRefuseALateComparisonOnceMore)
{
  allowed = false;
  selectFirstRuns(7);
  container.redraw();
  container.redraw();
  EXPECT_EQ(completed, 0);
  EXPECT_EQ(parts(), ownSlots);
  allowed = true;
  container.redraw();
  EXPECT_GT(parts(), ownSlots);
}

TEST_F(DrawingCondition, LetsATableWithoutParametersBeDrawnAfterARefusedComparison)
{
  allowed = false;
  selectFirstRuns(7);
  allowed = true;
  settings().parameterColumns.clear();
  container.setPlotStyle(xyPlot);
  EXPECT_EQ(container.getItem(), container.getChartXY());
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(DrawingCondition, IsDroppedWithItsOwner)
{
  allowed = false;
  container.removeDrawingSteps(&owner);
  const unsigned long drawn = stateOf(container).drawings;
  container.redraw();
  EXPECT_EQ(stateOf(container).drawings, drawn + 1);
}
