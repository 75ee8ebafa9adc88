#ifndef SelectionPageFixture_h
#define SelectionPageFixture_h

#include "plot/PlotState.h"
#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/PlotFixture.h"
#include "vtk/RowSelections.h"

#include <vtkAxis.h>

#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <vector>

/// The selection page of a parameter study.
class SelectionPageFixture : public PageFixture
{
protected:
  static constexpr int runs = 20;
  static constexpr int points = 5;

  void draw(int parameters)
  {
    container.setScene(scene.scene());
    container.setPlotStyle(selectionCdfPlot);
    container.setLinePlotTable(parameterStudy(runs, points, parameters), true);
  }

  /// Selects all rows of the runs below `count`.
  void selectFirstRuns(int count)
  {
    std::vector<vtkIdType> rows(static_cast<std::size_t>(count * points));
    std::iota(rows.begin(), rows.end(), 0);
    container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
  }

  static std::array<int, 3> colorOf(vtkPlot* plot)
  {
    unsigned char rgb[3];
    plot->GetColor(rgb);
    return {rgb[0], rgb[1], rgb[2]};
  }
};

#endif
