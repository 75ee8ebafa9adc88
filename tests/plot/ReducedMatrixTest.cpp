#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/PlotFixture.h"

#include <vtkContextMouseEvent.h>
#include <vtkScatterPlotMatrix.h>

#include <gtest/gtest.h>

namespace
{

/// A scatter-plot matrix whose table has lost the parameters k1 and k3 since it was drawn.
class ReducedMatrix : public PageFixture
{
protected:
  ReducedMatrix()
  {
    container.setScene(scene.scene());
    container.setLinePlotTable(parameterStudy(6, 4, 3), false);
    container.setPlotStyle(scatterPlotMatrix);
    scene.render(container);
    settings().zColumns = {};
    settings().parameterColumns = {4};
    container.shrinkToColumnSelection();
  }

  vtkScatterPlotMatrix* pairs() { return vtkScatterPlotMatrix::SafeDownCast(container.getItem()); }

  /// A click into the middle of a small chart.
  void click(int column, int row)
  {
    vtkChart* chart = pairs()->GetChart(vtkVector2i(column, row));
    vtkContextMouseEvent mouse;
    mouse.SetInteractor(nullptr);
    mouse.SetButton(vtkContextMouseEvent::LEFT_BUTTON);
    mouse.SetPos(vtkVector2f(0.5F * (chart->GetPoint1()[0] + chart->GetPoint2()[0]),
                             0.5F * (chart->GetPoint1()[1] + chart->GetPoint2()[1])));
    pairs()->MouseButtonReleaseEvent(mouse);
    scene.render(container);
  }
};

TEST_F(ReducedMatrix, StillHasEveryPair)
{
  EXPECT_EQ(container.getTable()->GetColumnByName("Parameter: k3"), nullptr);
  EXPECT_EQ(pairs()->GetSize(), vtkVector2i(6, 6));
  pairs()->SetActivePlot(vtkVector2i(3, 0));
  vtkPlot* large = pairs()->GetMainChart()->GetPlot(0);
  EXPECT_EQ(plottedName(large, 0), "Parameter: k1");
  EXPECT_EQ(plottedName(large, 1), "Parameter: k3");
  scene.render(container);
}

TEST_F(ReducedMatrix, KeepsItsActivePair)
{
  container.redraw();
  scene.render(container);
  const vtkVector2i active(1, 1);
  ASSERT_TRUE(pairs()->SetActivePlot(active));
  settings().parameterColumns = {};
  container.shrinkToColumnSelection();
  EXPECT_EQ(pairs()->GetActivePlot(), active);
}

TEST_F(ReducedMatrix, AnswersAClickOnAPairThatIsGoneFromTheTable)
{
  scene.render(container);
  click(3, 0);
  EXPECT_EQ(pairs()->GetActivePlot(), vtkVector2i(3, 0));
  EXPECT_EQ(plottedName(pairs()->GetMainChart()->GetPlot(0), 0), "Parameter: k1");
}

TEST_F(ReducedMatrix, ShowsTheReducedTableFromTheNextDrawingOn)
{
  container.redraw();
  scene.render(container);
  EXPECT_FALSE(pairs()->GetColumnVisibility("Parameter: k3"));
  EXPECT_TRUE(pairs()->GetColumnVisibility("Parameter: k2"));
}

} // namespace
