#ifndef PageFixture_h
#define PageFixture_h

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"

#include <vtkChart.h>
#include <vtkChartMatrix.h>

#include <gtest/gtest.h>

/// A container without data and a scene for its page of many charts.
class PageFixture : public ::testing::Test
{
protected:
  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkChartMatrix* matrix() { return container.getChartMatrix(); }
  vtkChart* cell(int column, int row) { return matrix()->GetChart(vtkVector2i(column, row)); }

  PlotScene scene{1000, 800};
  PlotContainer container{nullptr};
};

#endif
