#ifndef PlotFixture_h
#define PlotFixture_h

#include "external/PlotMetaData.h"
#include "external/PlotStyles.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"
#include "support/SilentSettings.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkPlot.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <string>

/// A container in a scene with a table of four plain columns, not drawn yet.
class UndrawnPlotFixture : public ::testing::Test
{
protected:
  UndrawnPlotFixture()
  {
    container.setPlotData(plainTable());
    container.setScene(scene.scene());
  }

  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkChartXY* chart() { return container.getChartXY(); }
  vtkAxis* bottom() { return chart()->GetAxis(vtkAxis::BOTTOM); }
  vtkAxis* left() { return chart()->GetAxis(vtkAxis::LEFT); }

  /// Sets the style, which draws it unless the settings are silenced.
  void setStyle(int style) { container.setPlotStyle(static_cast<plotStyles>(style)); }

  PlotScene scene;
  PlotContainer container{nullptr};
};

/// The same, drawn in style 0.
class PlotFixture : public UndrawnPlotFixture
{
protected:
  PlotFixture() { container.redraw(); }

  vtkPlotPoints* points() { return vtkPlotPoints::SafeDownCast(chart()->GetPlot(0)); }

  /// Draws the style.
  void drawStyle(int style)
  {
    settings().blockSignals(false);
    setStyle(style);
    container.redraw();
  }

  /// Sets the style without drawing it.
  void storeStyle(int style) { ::storeStyle(container, style); }

  /// Drawings completed since the last call.
  unsigned long newDrawings()
  {
    const unsigned long before = counted;
    counted = stateOf(container).drawings;
    return counted - before;
  }

  /// Shows a bar plot before a point plot, which no operation on the first plot may reach.
  vtkPlotPoints* hidePointsBehindBars()
  {
    chart()->ClearPlots();
    chart()->AddPlot(vtkChart::BAR);
    auto* later = vtkPlotPoints::SafeDownCast(chart()->AddPlot(vtkChart::POINTS));
    later->SetMarkerSize(11.0F);
    later->SetMarkerStyle(vtkPlotPoints::PLUS);
    later->SetColor(1, 2, 3, 4);
    return later;
  }

private:
  unsigned long counted = 0;
};

/// The column that a plot takes as x (0) or y (1); null for a plot without input.
inline vtkAbstractArray* plottedColumn(vtkPlot* plot, int axis)
{
  vtkTable* input = plot->GetInput();
  return input ? plot->GetData()->GetInputAbstractArrayToProcess(axis, input) : nullptr;
}

/// The name of that column; empty for a plot without input.
inline std::string plottedName(vtkPlot* plot, int axis)
{
  vtkAbstractArray* column = plottedColumn(plot, axis);
  return column ? column->GetName() : "";
}

#endif
