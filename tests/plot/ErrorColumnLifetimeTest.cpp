#include "plot/PlotContainer.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <gtest/gtest.h>

#include "ErrorBarFixture.h"

using SampleRuns::valuesOf;

namespace
{

class ErrorColumnLifetime : public ErrorBarFixture
{
};

TEST_F(ErrorColumnLifetime, AHundredRedrawsNeitherLeakNorFreeTheErrorColumn)
{
  vtkAbstractArray* column = table()->GetColumnByName("error");
  const int references = column->GetReferenceCount();
  for (int i = 0; i < 100; ++i)
  {
    redraw();
    // Drawn, updated only and never looked at.
    if (i % 3 == 0)
      scene.render(container);
    else if (i % 3 == 1)
      errorBars()->Update();
  }
  chart()->ClearPlots();
  EXPECT_EQ(column->GetReferenceCount(), references);
  EXPECT_EQ(valuesOf(column), (std::vector<double>{1.0, 0.5, 0.0, 2.0}));
}

TEST_F(ErrorColumnLifetime, AReplacedErrorColumnIsReleasedOnceAndTheNewOneKept)
{
  // Held here, it has one reference left once the item that showed it is gone.
  vtkSmartPointer<vtkAbstractArray> replaced;
  for (int i = 0; i < 100; ++i)
  {
    redraw();
    if (replaced)
    {
      ASSERT_EQ(replaced->GetReferenceCount(), 1) << i;
    }
    errorBars()->Update();
    replaced = table()->GetColumnByName("error");
    addFloats(table(), "error", {1.0, 2.0, 3.0, 4.0});
    if (i % 2 == 0)
      errorBars()->Update();
  }
  replaced = table()->GetColumnByName("error");
  redraw();
  errorBars()->Update();
  table()->RemoveColumnByName("error");
  redraw();
  EXPECT_EQ(replaced->GetReferenceCount(), 1);
  container.setPlotData(measurements());
  redraw();
  scene.render(container);
  EXPECT_EQ(valuesOf(table(), "error"), (std::vector<double>{1.0, 0.5, 0.0, 2.0}));
}

TEST_F(ErrorColumnLifetime, ItemsMayOutliveTheirTable)
{
  redraw();
  errorBars()->Update();
  vtkSmartPointer<vtkPlot> item = chart()->GetPlot(0);
  container.setPlotData(plainTable());
  redraw();
  item = nullptr;
  EXPECT_NE(errorBars(), nullptr);
}

} // namespace
