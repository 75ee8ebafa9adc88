#include "support/OpenSockets.h"
#include "support/PlotFixture.h"

#include <gtest/gtest.h>

namespace
{

TEST(PlotScene, LeavesNoConnectionToTheDisplayBehind)
{
  const auto paintOne = []
  {
    PlotScene scene;
    PlotContainer container(nullptr);
    container.setPlotData(plainTable());
    container.setScene(scene.scene());
    container.redraw();
    scene.render(container);
    EXPECT_GT(scene.paintedPixels(), 0);
  };
  paintOne();
  const int before = openSockets();
  paintOne();
  EXPECT_EQ(openSockets(), before);
}

} // namespace
