#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/SampleTables.h"

#include <vtkContextScene.h>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>

namespace
{

using Scene = vtkSmartPointer<vtkContextScene>;

/// A container whose charts are in two scenes, of which the client ends one after the other.
class DyingScenes : public ::testing::TestWithParam<std::size_t>
{
protected:
  DyingScenes()
  {
    container.setPlotData(plainTable());
    container.setDecorations(tableOf({{"line", {1, 2}}, {"x", {0, 1}}}), true);
    container.setScene(scenes[0]);
    for (const plotStyles style : {parallelCoordinates, xyPlot, parallelCoordinates})
      draw(style);
    scenes[1]->AddItem(container.getItem());
    container.redraw();
  }

  void draw(plotStyles style)
  {
    container.getMetaData()->blockSignals(true);
    container.setPlotStyle(style);
    container.redraw();
  }

  /// Only compares addresses: the scene may be gone.
  bool isAlive(const vtkContextScene* scene) const
  {
    return scene == nullptr || scene == scenes[0] || scene == scenes[1];
  }

  std::array<Scene, 2> scenes = {Scene::New(), Scene::New()};
  PlotContainer container{nullptr};
};

INSTANTIATE_TEST_SUITE_P(InAnyOrder, DyingScenes, ::testing::Values(0U, 1U));

TEST_P(DyingScenes, AreForgottenByChartsThatStayedBehind)
{
  for (const std::size_t dying : {GetParam(), 1 - GetParam()})
  {
    scenes[dying] = nullptr;
    EXPECT_TRUE(isAlive(container.getChartXY()->GetScene())) << dying;
    EXPECT_TRUE(isAlive(container.getItem()->GetScene())) << dying;
    if (container.getItem()->GetScene())
    {
      draw(xyPlot);
      draw(parallelCoordinates);
    }
  }
  EXPECT_EQ(container.getChartXY()->GetScene(), nullptr);
  const Scene third = Scene::New();
  container.setScene(third);
  draw(xyPlot);
  EXPECT_EQ(container.getItem()->GetScene(), third);
}

} // namespace
