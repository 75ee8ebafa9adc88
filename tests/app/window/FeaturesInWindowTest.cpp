#include "app/document/FeatureSearch.h"
#include "app/window/PlotDock.h"
#include "plot/TableColumns.h"

#include <QStatusBar>

#include <cmath>

#include "window/TasksInWindow.h"

namespace
{

using namespace Talmesh::app;

/// Many runs of noise in a window in which every feature takes long.
class FeaturesInWindow : public TasksInWindow
{
protected:
  FeaturesInWindow()
  {
    window->document().featureSearch().setPatience(std::chrono::milliseconds(0));
  }

  void showFeatures(std::size_t runs, std::size_t points)
  {
    openUnchanged(numberedNoise(runs, points));
    PlotChoice choice = window->document().choice();
    choice.style = parallelCoordinates;
    choice.y = {0};
    window->document().choose(choice);
  }

  bool areShown()
  {
    const auto& summary = window->document().container()->getSummary();
    for (const int column : summary.columns)
      if (std::isnan(Talmesh::plot::doubleColumn(summary.table, column)->GetValue(0)))
        return false;
    return true;
  }
};

} // namespace

TEST_F(FeaturesInWindow, AreDrawnWhenTheyAreComputed)
{
  showFeatures(300, 20);
  EXPECT_FALSE(areShown());
  ASSERT_TRUE(waitForEnd());
  EXPECT_TRUE(areShown());
}

TEST_F(FeaturesInWindow, AreGivenUpInTheStatusBar)
{
  showFeatures(20000, 200);
  ASSERT_TRUE(window->isBusy());
  EXPECT_EQ(window->statusBar()->currentMessage(),
            "Computing what the chart shows of the runs ...");
  click("cancelFeatures");
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->isBusy());
  EXPECT_FALSE(areShown());
  EXPECT_EQ(window->statusBar()->currentMessage(), "Cancelled");
}

TEST_F(FeaturesInWindow, EndWithTheWindow)
{
  showFeatures(20000, 200);
  ASSERT_TRUE(window->isBusy());
  window.reset();
}
