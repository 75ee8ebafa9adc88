#include "support/PlotScene.h"
#include "support/SampleTables.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkPlotPoints.h>
#include <vtkSmartPointer.h>

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

/// Counts of the same points in one of our charts and in VTK's, which updates its plots once or
/// twice a frame.
class PlotUpdates : public ::testing::Test
{
protected:
  struct Shown
  {
    explicit Shown(vtkChartXY* shownIn)
        : chart(shownIn)
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
    vtkSmartPointer<vtkChartXY> chart;
    vtkNew<CountedPoints> plot;
  };

  void showTable(vtkTable* table)
  {
    for (Shown* shown : {&ours, &vtks})
      shown->plot->SetInputData(table, "a", "b");
  }

  Shown ours{vtkNew<vtkSelectableChartXY>()};
  Shown vtks{vtkNew<vtkChartXY>()};
};

TEST_F(PlotUpdates, AreThoseOfVtkInAFrame)
{
  showTable(plainTable());
  ours.updatesOfFrame();
  vtks.updatesOfFrame();
  EXPECT_EQ(ours.updatesOfFrame(), vtks.updatesOfFrame());
}

TEST_F(PlotUpdates, AreOneMoreOnceThePaintingHasShiftedThePoints)
{
  showTable(tableOf({{"a", {1e12, 1e12 + 1, 1e12 + 2}}, {"b", {1, 2, 3}}}));
  EXPECT_EQ(ours.updatesOfFrame(), vtks.updatesOfFrame() + 1);
  EXPECT_NE(ours.plot->GetShiftScale().GetX(), 0.0);
  EXPECT_EQ(ours.updatesOfFrame(), vtks.updatesOfFrame());
}

} // namespace
