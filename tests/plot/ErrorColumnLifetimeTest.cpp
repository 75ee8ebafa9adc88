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
  for (int i = 0; i < 100; ++i)
  {
    redraw();
    errorBars()->Update();
    addFloats(table(), "error", {1.0, 2.0, 3.0, 4.0});
    if (i % 2 == 0)
      errorBars()->Update();
  }
  vtkAbstractArray* column = table()->GetColumnByName("error");
  const int references = column->GetReferenceCount();
  redraw();
  errorBars()->Update();
  table()->RemoveColumnByName("error");
  redraw();
  container.setPlotData(measurements());
  redraw();
  scene.render(container);
  EXPECT_GE(references, 1);
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
