#include "plot/vtkSelectableChartXY.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

namespace
{

class CountedPoints : public vtkPlotPoints
{
public:
  static CountedPoints* New();

  void Update() override
  {
    ++updates;
    vtkPlotPoints::Update();
  }

  int updates = 0;
};
vtkStandardNewMacro(CountedPoints);

class PlotUpdates : public ::testing::Test
{
protected:
  PlotUpdates()
  {
    scene.scene()->AddItem(chart);
    chart->AddPlot(plot);
  }

  int updatesOfFrame()
  {
    plot->updates = 0;
    scene.renderItems();
    return plot->updates;
  }

  PlotScene scene;
  vtkNew<vtkSelectableChartXY> chart;
  vtkNew<CountedPoints> plot;
};

TEST_F(PlotUpdates, AreOneInAFrame)
{
  plot->SetInputData(plainTable(), "a", "b");
  scene.renderItems();
  EXPECT_EQ(updatesOfFrame(), 1);
}

TEST_F(PlotUpdates, AreOneMoreOnceThePaintingHasShiftedThePoints)
{
  plot->SetInputData(tableOf({{"a", {1e12, 1e12 + 1, 1e12 + 2}}, {"b", {1, 2, 3}}}), "a", "b");
  EXPECT_EQ(updatesOfFrame(), 2);
  EXPECT_NE(plot->GetShiftScale().GetX(), 0.0);
  EXPECT_EQ(updatesOfFrame(), 1);
}

} // namespace
