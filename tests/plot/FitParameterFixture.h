#ifndef FitParameterFixture_h
#define FitParameterFixture_h

#include "plot/PlotState.h"
#include "support/PageFixture.h"
#include "support/PlotFixture.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkColorTransferFunction.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

/// Scores that fall from 100 to 1 over 21 iterations in which three parameters change.
class FitParameterFixture : public PageFixture
{
protected:
  FitParameterFixture()
  {
    NamedValues columns = {{"Score", {}}, {"Iteration", {}}};
    for (const char* name : {"Parameter: k1", "Parameter: k2", "Parameter: k3"})
      columns.push_back({name, {}});
    for (int i = 0; i <= 20; ++i)
    {
      columns[0].second.push_back(std::pow(10.0, 2.0 - 0.1 * i));
      columns[1].second.push_back(i);
      columns[2].second.push_back(1.0 + 0.05 * i);
      columns[3].second.push_back(20.0 - 0.8 * i);
      columns[4].second.push_back(0.5 + 0.01 * i * i);
    }
    container.setPlotData(tableOf(columns));
    settings().parameterColumns = {2, 3, 4};
    container.setScene(scene.scene());
    settings().blockSignals(true);
    settings().setPlotStyle(fitParameterDistribution);
  }

  void draw() { container.drawFitParameterDistributionPlot(scene.scene()); }
  vtkAxis* bottom(int column, int row) { return cell(column, row)->GetAxis(vtkAxis::BOTTOM); }
  vtkAxis* left(int column, int row) { return cell(column, row)->GetAxis(vtkAxis::LEFT); }
  vtkPlotPoints* points(int column, int row)
  {
    return vtkPlotPoints::SafeDownCast(cell(column, row)->GetPlot(0));
  }

  std::string input(int column, int row, int axis)
  {
    return plottedName(points(column, row), axis);
  }

  /// Colour of a score, as the points get it.
  std::array<double, 3> colorOf(double score)
  {
    std::array<double, 3> rgb{};
    points(0, 0)->GetLookupTable()->GetColor(score, rgb.data());
    return rgb;
  }

  void expectColor(double score, double red, double green, double blue)
  {
    const auto rgb = colorOf(score);
    EXPECT_NEAR(rgb[0], red, 1e-9) << score;
    EXPECT_NEAR(rgb[1], green, 1e-9) << score;
    EXPECT_NEAR(rgb[2], blue, 1e-9) << score;
  }
};

#endif
