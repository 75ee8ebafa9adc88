#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"

#include <vtkAxis.h>
#include <vtkCommand.h>

#include <gtest/gtest.h>

#include <cmath>

#include "SelectionPageFixture.h"

namespace
{

/// The selection page gives its trajectories a new chart at every drawing.
class LogarithmicTrajectories : public SelectionPageFixture
{
protected:
  LogarithmicTrajectories()
  {
    draw(3);
    settings().setLogX(true);
    scene.render(container);
  }

  vtkAxis* bottom() { return container.getChartXY()->GetAxis(vtkAxis::BOTTOM); }
  vtkAxis* left() { return container.getChartXY()->GetAxis(vtkAxis::LEFT); }
};

TEST_F(LogarithmicTrajectories, KeepTheirWindowThroughRedraws)
{
  ASSERT_TRUE(bottom()->GetLogScaleActive());
  const double low = std::log10(11.0);
  const double high = std::log10(13.0);
  bottom()->SetRange(low, high);
  left()->SetRange(2, 5);
  container.getChartXY()->InvokeEvent(vtkCommand::InteractionEvent);
  for (int i = 0; i < 3; ++i)
  {
    vtkChart* const before = container.getChartXY();
    container.redraw();
    scene.render(container);
    EXPECT_NE(container.getChartXY(), before);
    EXPECT_TRUE(bottom()->GetLogScaleActive());
    EXPECT_EQ(bottom()->GetMinimum(), low);
    EXPECT_EQ(bottom()->GetMaximum(), high);
    EXPECT_EQ(left()->GetMinimum(), 2);
    EXPECT_EQ(left()->GetMaximum(), 5);
  }
}

TEST_F(LogarithmicTrajectories, EndJustBeyondTheData)
{
  EXPECT_DOUBLE_EQ(bottom()->GetMinimum(), std::log10(0.995 * 10.0));
  EXPECT_DOUBLE_EQ(bottom()->GetMaximum(), std::log10(1.005 * 14.0));
}

} // namespace
