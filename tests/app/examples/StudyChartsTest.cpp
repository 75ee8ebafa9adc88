#include "app/examples/StudyCharts.h"

#include "plot/PlotContainer.h"
#include "support/PlotScene.h"

#include <vtkChartXY.h>

#include <gtest/gtest.h>

namespace
{

using namespace Talmesh::app;

TEST(StudyCharts, ShowNothingOfTheStudyBefore)
{
  PlotScene scene;
  PlotContainer fresh(nullptr);
  fresh.setScene(scene.scene());
  drawPuromycinRates(fresh);
  const vtkIdType plots = fresh.getChartXY()->GetNumberOfPlots();

  PlotContainer used(nullptr);
  used.setScene(scene.scene());
  drawIndomethacinCourse(used, false);
  ASSERT_TRUE(used.getShowDecorations());
  drawPuromycinRates(used);
  EXPECT_FALSE(used.getShowDecorations());
  EXPECT_EQ(used.getChartXY()->GetNumberOfPlots(), plots);
}

TEST(StudyCharts, KeepNoCurveForADrawingThatFollowsTheirs)
{
  PlotScene scene;
  PlotContainer container(nullptr);
  container.setScene(scene.scene());
  drawIndomethacinCourse(container, false);
  drawIndomethacinResiduals(container, false, false);
  EXPECT_FALSE(container.getShowDecorations());
}

} // namespace
