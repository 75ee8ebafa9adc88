#include <vtkCallbackCommand.h>
#include <vtkChartXY.h>
#include <vtkCommand.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkPlot.h>
#include <vtkRenderWindow.h>

#include "LinePlotFixture.h"

namespace
{

/// Counts what is rendered while it lives, and the plots of the chart at the last time.
class LinePlotScreen : public LinePlotFixture
{
protected:
  void watch()
  {
    watcher->SetClientData(this);
    watcher->SetCallback(
        [](vtkObject*, unsigned long, void* self, void*)
        {
          auto* test = static_cast<LinePlotScreen*>(self);
          ++test->renderings;
          test->plotsRendered = test->container().getChartXY()->GetNumberOfPlots();
        });
    plotter().renderWindow()->AddObserver(vtkCommand::EndEvent, watcher);
  }

  ~LinePlotScreen() override { plotter().renderWindow()->RemoveObserver(watcher); }

  vtkNew<vtkCallbackCommand> watcher;
  int renderings = 0;
  vtkIdType plotsRendered = -1;
};

TEST_F(LinePlotScreen, ShowsAClickedItemAtOnce)
{
  widget.setData(&data);
  show();
  const QImage before = plotter().grabFramebuffer();
  watch();
  clickFirstOf(0);
  EXPECT_GE(renderings, 1);
  EXPECT_EQ(plotsRendered, 1) << "the container is told before the screen";
  EXPECT_NE(plotter().grabFramebuffer(), before);
}

TEST_F(LinePlotScreen, ShowsThatNothingIsChosenAnyMore)
{
  widget.setData(&data);
  show();
  clickFirstOf(0);
  const QImage before = plotter().grabFramebuffer();
  watch();
  selector().clearSelection();
  EXPECT_GE(renderings, 1);
  EXPECT_EQ(plotsRendered, 0);
  EXPECT_NE(plotter().grabFramebuffer(), before);
}

TEST_F(LinePlotScreen, ShowsTheChartWhateverTheSceneHolds)
{
  widget.setData(&data);
  show();
  vtkContextScene* scene = plotter().contextView()->GetScene();
  scene->ClearItems();
  clickFirstOf(1);
  ASSERT_EQ(scene->GetNumberOfItems(), 1U);
  EXPECT_EQ(scene->GetItem(0), container().getItem());
}

TEST_F(LinePlotScreen, OffersANullSeriesAndDrawsNothingForIt)
{
  data.series.clear();
  data.series[{Talmesh::Molecule, "B"}] = nullptr;
  widget.setData(&data);
  show();
  ASSERT_EQ(selector().topLevelItemCount(), 1);
  ASSERT_EQ(selector().topLevelItem(0)->childCount(), 1);
  EXPECT_EQ(selector().topLevelItem(0)->child(0)->text(0), "B");
  clickFirstOf(0);
  EXPECT_TRUE(selector().topLevelItem(0)->child(0)->isSelected());
  for (vtkIdType i = 0; i < container().getChartXY()->GetNumberOfPlots(); ++i)
    EXPECT_EQ(container().getChartXY()->GetPlot(i)->GetInput(), nullptr);
}

} // namespace
