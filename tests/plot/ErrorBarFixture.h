#ifndef ErrorBarFixture_h
#define ErrorBarFixture_h

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/ArrayColumns.h"
#include "support/PlotFixture.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"
#include "support/SilentSettings.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <vtkAxis.h>
#include <vtkFloatArray.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

/// Adds a column of single precision.
inline void addFloats(vtkTable* table, const std::string& name, const std::vector<double>& values)
{
  table->AddColumn(makeColumn<vtkFloatArray>(name.c_str(), values));
}

/// Columns x, y, error, x2 and y2 of single precision.
inline vtkSmartPointer<vtkTable> measurements()
{
  auto table = vtkSmartPointer<vtkTable>::New();
  addFloats(table, "x", {1.0, 2.0, 3.0, 5.0});
  addFloats(table, "y", {10.0, 12.0, 9.0, 11.0});
  addFloats(table, "error", {1.0, 0.5, 0.0, 2.0});
  addFloats(table, "x2", {1.0, 2.0, 4.0, 5.0});
  addFloats(table, "y2", {10.5, 11.5, 10.0, 10.5});
  return table;
}

/// The measurements in a container that draws points with error bars.
class ErrorBarFixture : public ::testing::Test
{
protected:
  ErrorBarFixture()
  {
    container.setScene(scene.scene());
    storeStyle(container, scatterWithErrorBars);
    container.setPlotData(measurements());
  }

  void redraw() { container.redraw(); }
  void secondSeries(const std::vector<int>& x, const std::vector<int>& y)
  {
    settings().xColumns = x;
    settings().yColumns = y;
    redraw();
  }

  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkChartXY* chart() { return container.getChartXY(); }
  vtkAxis* bottom() { return chart()->GetAxis(vtkAxis::BOTTOM); }
  vtkPlotErrorPoints* errorBars() { return vtkPlotErrorPoints::SafeDownCast(chart()->GetPlot(0)); }
  vtkTable* table() { return container.getTable(); }

  /// x and y column of a plot.
  std::array<std::string, 2> inputOf(int index)
  {
    vtkPlot* plot = chart()->GetPlot(index);
    return {plottedName(plot, 0), plottedName(plot, 1)};
  }

  PlotScene scene;
  PlotContainer container{nullptr};
};

#endif
