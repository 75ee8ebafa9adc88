#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"

#include <vtkAbstractContextItem.h>
#include <vtkContextKeyEvent.h>
#include <vtkContextMouseEvent.h>

#include <gtest/gtest.h>

#include <memory>

namespace
{

enum class End
{
  Cleared,
  Dead,
  Left
};

/// Of each style, a chart that a client has put into a second scene as well, where it was drawn,
/// and which that scene has lost in one of the ways there are.
class ScenelessCharts : public ::testing::TestWithParam<int>
{
protected:
  ScenelessCharts()
  {
    SampleRuns::load(container, SampleRuns::runs(4, 3));
    container.setScene(first.scene());
    container.getMetaData()->blockSignals(true);
    container.setPlotStyle(static_cast<plotStyles>(GetParam()));
  }

  void lose(End how)
  {
    auto second = std::make_unique<PlotScene>();
    container.setScene(first.scene());
    container.redraw();
    first.render(container);
    second->scene()->AddItem(container.getItem());
    container.redraw();
    if (how == End::Left)
      container.setScene(nullptr);
    else if (how == End::Cleared)
      second->scene()->ClearItems();
  }

  PlotScene first;
  PlotContainer container{nullptr};
};

INSTANTIATE_TEST_SUITE_P(OfEveryStyle, ScenelessCharts, ::testing::Range(0, 10));

TEST_P(ScenelessCharts, ShowNothingInAnotherScene)
{
  for (const End how : {End::Cleared, End::Dead, End::Left})
  {
    SCOPED_TRACE(static_cast<int>(how));
    lose(how);
    ASSERT_EQ(container.getItem()->GetScene(), nullptr);
    first.renderItems();
    EXPECT_EQ(first.paintedPixels(), 0);
  }
  first.render(container);
  EXPECT_GT(first.paintedPixels(), 0) << "back in its scene";
}

TEST_P(ScenelessCharts, TakeNoMouseAndNoKeys)
{
  lose(End::Dead);
  vtkContextMouseEvent mouse;
  mouse.SetPos(vtkVector2f(300, 200));
  mouse.SetScenePos(vtkVector2f(300, 200));
  mouse.SetScreenPos(vtkVector2i(300, 200));
  mouse.SetButton(vtkContextMouseEvent::LEFT_BUTTON);
  EXPECT_EQ(container.getItem()->GetPickedItem(mouse), nullptr);
  EXPECT_FALSE(container.getItem()->KeyPressEvent(vtkContextKeyEvent()));
}

} // namespace
