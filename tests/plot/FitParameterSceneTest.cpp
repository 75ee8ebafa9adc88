#include <gtest/gtest.h>

#include <stdexcept>

#include "FitParameterFixture.h"

namespace
{

class FitParameterScene : public FitParameterFixture
{
protected:
  int timesInScene()
  {
    int times = 0;
    for (unsigned int i = 0; i < scene.scene()->GetNumberOfItems(); ++i)
      times += scene.scene()->GetItem(i) == matrix() ? 1 : 0;
    return times;
  }
};

TEST_F(FitParameterScene, HoldsThePageOnceHoweverOftenItIsDrawn)
{
  EXPECT_EQ(timesInScene(), 0);
  draw();
  EXPECT_EQ(timesInScene(), 1);
  draw();
  EXPECT_EQ(timesInScene(), 1);
  scene.render(container);
  container.redraw();
  EXPECT_EQ(timesInScene(), 1);
  EXPECT_EQ(scene.scene()->GetNumberOfItems(), 1U);
}

TEST_F(FitParameterScene, PaintsThePageWithoutAWidget)
{
  draw();
  scene.renderItems();
  EXPECT_GT(scene.paintedPixels(), 5000);
  EXPECT_EQ(matrix()->GetScene(), scene.scene());
}

TEST_F(FitParameterScene, KeepsItsOtherItems)
{
  scene.scene()->AddItem(container.getChartXY());
  draw();
  EXPECT_EQ(scene.scene()->GetNumberOfItems(), 2U);
  EXPECT_EQ(scene.scene()->GetItem(0), container.getChartXY());
}

TEST_F(FitParameterScene, MayBeMissing)
{
  container.drawFitParameterDistributionPlot(nullptr);
  EXPECT_EQ(matrix()->GetScene(), nullptr);
  EXPECT_EQ(points(0, 0)->GetInput(), container.getTable());
}

TEST_F(FitParameterScene, GetsNoPageWithAShortParameterName)
{
  for (const char* name : {"Parameter:", "", static_cast<const char*>(nullptr)})
  {
    container.getTable()->GetColumn(3)->SetName(name);
    EXPECT_THROW(draw(), std::out_of_range);
    EXPECT_EQ(timesInScene(), 0);
  }
  container.getTable()->GetColumn(3)->SetName("Parameter: ");
  draw();
  EXPECT_EQ(left(0, 1)->GetTitle(), "") << "a name of 11 characters is long enough";
  settings().parameterColumns = {2, 99};
  draw();
  EXPECT_EQ(left(0, 0)->GetTitle(), "") << "there is no name";
}

} // namespace
