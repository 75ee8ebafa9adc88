#ifndef ResidualFixture_h
#define ResidualFixture_h

#include "external/FitRun.h"
#include "external/FitSettings.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotFixture.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

/// Data of another kind than a time course.
class OtherFitData : public FitSettings
{
public:
  using FitSettings::FitSettings;
  int dataKind() const override { return 2; }
};

/// Two outputs at three times. All numbers are exact in single precision.
class ResidualFixture : public ::testing::Test
{
protected:
  ResidualFixture()
  {
    container.setScene(scene.scene());
    run.timePoints = {0.0, 0.5, 1.0};
    fill(course);
    fill(other);
  }

  static void fill(FitSettings& settings)
  {
    settings.observations = {{1.0, 2.0, 4.0}, {10.0, 20.0, 30.0}};
    settings.errors = {{0.5, 0.25, 2.0}, {1.0, 2.0, 4.0}};
    settings.outputs = {{Talmesh::Molecule, "M"}, {Talmesh::Pattern, "P"}};
  }

  void show(FitSettings& settings, bool scaled, bool sideBySide)
  {
    container.setResidualPlot(&run, &settings, predictions, scaled, sideBySide);
  }

  std::vector<double> column(const std::string& name)
  {
    return SampleRuns::valuesOf(table(), name);
  }
  vtkTable* table() { return container.getTable(); }
  vtkChartXY* chart() { return container.getChartXY(); }

  /// Kind, x and y column of a plot.
  std::array<std::string, 3> plotAt(int index)
  {
    vtkPlot* plot = chart()->GetPlot(index);
    const bool isLine = plot->IsA("vtkPlotLine");
    const bool byIndex = plot->GetUseIndexForXSeries();
    return {isLine ? "line" : "points", byIndex ? "index" : plottedName(plot, 0),
            plottedName(plot, 1)};
  }

  PlotScene scene;
  PlotContainer container{nullptr};
  FitRun run;
  FitSettings course;
  OtherFitData other;
  std::vector<std::vector<double>> predictions{{2.0, 4.0, 1.0}, {8.0, 24.0, 30.0}};
};

#endif
