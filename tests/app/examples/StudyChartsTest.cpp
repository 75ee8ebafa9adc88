#include "app/examples/StudyCharts.h"

#include "plot/PlotContainer.h"
#include "support/PlotScene.h"

#include <vtkChartXY.h>

#include <gtest/gtest.h>

namespace
{

using namespace Talmesh::app;

void draw(PlotContainer& container, const ChartSteps& steps)
{
  steps.fill(container);
  container.redraw();
  if (steps.complete)
    steps.complete(container);
}

TEST(StudyCharts, ShowNothingOfTheStudyBefore)
{
  PlotScene scene;
  PlotContainer fresh(nullptr);
  fresh.setScene(scene.scene());
  draw(fresh, puromycinRateChart());
  const vtkIdType plots = fresh.getChartXY()->GetNumberOfPlots();

  PlotContainer used(nullptr);
  used.setScene(scene.scene());
  draw(used, indomethacinCourse(false));
  ASSERT_TRUE(used.getShowDecorations());
  draw(used, puromycinRateChart());
  EXPECT_FALSE(used.getShowDecorations());
  EXPECT_EQ(used.getChartXY()->GetNumberOfPlots(), plots);
}

TEST(StudyCharts, KeepNoCurveForADrawingThatFollowsTheirs)
{
  PlotScene scene;
  PlotContainer container(nullptr);
  container.setScene(scene.scene());
  draw(container, indomethacinCourse(false));
  draw(container, indomethacinResidualChart(false, false));
  EXPECT_FALSE(container.getShowDecorations());
}

} // namespace
