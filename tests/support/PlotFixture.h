#ifndef PlotFixture_h
#define PlotFixture_h

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkPlot.h>

#include <gtest/gtest.h>

/// A container in a scene, drawn in style 0 with a table of four plain columns.
class PlotFixture : public ::testing::Test
{
protected:
  PlotFixture()
  {
    container.setPlotData(plainTable());
    container.setScene(scene.scene());
    container.redraw();
  }

  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkChartXY* chart() { return container.getChartXY(); }
  vtkAxis* bottom() { return chart()->GetAxis(vtkAxis::BOTTOM); }
  vtkAxis* left() { return chart()->GetAxis(vtkAxis::LEFT); }

  /// Draws the style.
  void drawStyle(int style)
  {
    settings().blockSignals(false);
    container.setPlotStyle(static_cast<plotStyles>(style));
    container.redraw();
  }

  /// Sets the style without drawing it.
  void storeStyle(int style)
  {
    settings().blockSignals(true);
    settings().setPlotStyle(static_cast<plotStyles>(style));
    settings().blockSignals(false);
  }

  /// Drawings completed since the last call.
  unsigned long newDrawings()
  {
    const unsigned long before = counted;
    counted = container.state().drawings;
    return counted - before;
  }

  PlotScene scene;
  PlotContainer container{nullptr};

private:
  unsigned long counted = 0;
};

/// The column that a plot takes as x (0) or y (1); null for a plot without input.
inline vtkAbstractArray* plottedColumn(vtkPlot* plot, int axis)
{
  vtkTable* input = plot->GetInput();
  return input ? plot->GetData()->GetInputAbstractArrayToProcess(axis, input) : nullptr;
}

#endif
