#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"

#include <vtkPlotParallelCoordinates.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include "SelectionPageFixture.h"

namespace
{

/// The plain columns behind one that has no name.
class UnnamedFirstColumn : public PlotFixture
{
protected:
  UnnamedFirstColumn()
  {
    const auto table = tableOf({{"nameless", {9, 8, 7, 6, 5}}});
    for (vtkIdType i = 0; i < 4; ++i)
      table->AddColumn(plainTable()->GetColumn(i));
    table->GetColumn(0)->SetName(nullptr);
    container.setPlotData(table);
    settings().xColumns = {1};
    settings().yColumns = {2};
    settings().colorColumn = 3;
  }
};

TEST_F(UnnamedFirstColumn, DoesNotKeepPointsFromBeingColored)
{
  settings().solidColor = false;
  container.redraw();
  EXPECT_EQ(points()->GetColorArrayName(), "c");
  EXPECT_EQ(points()->GetScalarVisibility(), 1);
  scene.render(container);
}

TEST_F(UnnamedFirstColumn, DoesNotKeepAColorSchemeFromBeingChosen)
{
  container.redraw();
  container.setColorScheme("d", false);
  EXPECT_EQ(points()->GetColorArrayName(), "d");
  EXPECT_EQ(settings().colorColumn, 4);
  scene.render(container);
}

TEST_F(UnnamedFirstColumn, IsNoColorColumn)
{
  settings().solidColor = false;
  settings().colorColumn = 0;
  container.redraw();
  EXPECT_EQ(points()->GetColorArrayName(), "");
  EXPECT_EQ(points()->GetScalarVisibility(), 0);
  scene.render(container);
}

TEST_F(UnnamedFirstColumn, DoesNotKeepParallelLinesFromBeingColored)
{
  drawStyle(parallelCoordinates);
  auto* lines =
      vtkPlotParallelCoordinates::SafeDownCast(stateOf(container).parallelCoordinates->GetPlot(0));
  EXPECT_EQ(lines->GetColorArrayName(), "c");
  scene.render(container);
}

TEST_F(UnnamedFirstColumn, LeavesAPlotAloneThatWasFedFromElsewhere)
{
  container.redraw();
  points()->SetInputData(tableOf({{"a", {0, 1}}, {"b", {0, 1}}}), "a", "b");
  container.setColorScheme("c", false);
  EXPECT_EQ(points()->GetScalarVisibility(), 0);
}

class UnnamedColumnOfRuns : public SelectionPageFixture
{
};

TEST_F(UnnamedColumnOfRuns, DoesNotKeepSelectedRunsFromBeingColored)
{
  draw(3);
  settings().solidColor = false;
  settings().colorColumn = -1;
  container.getTable()->GetColumn(2)->SetName(nullptr);
  selectFirstRuns(5);
  auto* drawn = vtkPlotPoints::SafeDownCast(container.getChartXY()->GetPlot(0));
  EXPECT_EQ(drawn->GetColorArrayName(), "vtkComplementSelection");
  scene.render(container);
}

} // namespace
