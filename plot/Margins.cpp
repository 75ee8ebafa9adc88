#include "plot/Margins.h"

#include "plot/PlotState.h"
#include "plot/StyleTable.h"

namespace Talmesh::plot
{

namespace
{

constexpr int headingHeight = 25; ///< pixels

/// @param betweenColumns width of the gutter between columns
/// @param betweenRows height of the gutter between rows
/// @param heading height that every chart needs above it besides
void applyMatrixBorders(const PlotState& state, vtkChartMatrix* matrix, int betweenColumns,
                        int betweenRows, int heading)
{
  matrix->SetGutter(
      vtkVector2f(static_cast<float>(betweenColumns), static_cast<float>(betweenRows + heading)));
  matrix->SetBorders(state.leftMargin, state.bottomMargin, state.rightMargin,
                     state.topMargin + heading);
}

} // namespace

void updateMargins(PlotState& state)
{
  if (const auto apply = currentStyle(state).applyBorders)
    apply(state);
}

void applyXYBorders(PlotState& state)
{
  if (state.chartXY)
    state.chartXY->SetBorders(state.leftMargin, state.bottomMargin, state.rightMargin,
                              state.topMargin);
}

void applyMultiPlotBorders(PlotState& state)
{
  applyMatrixBorders(state, state.chartMatrix, state.horizontalGutter, state.verticalGutter, 0);
}

void applySelectionPageBorders(PlotState& state)
{
  applyMatrixBorders(state, state.chartMatrix, state.horizontalGutter, state.verticalGutter,
                     headingHeight);
}

void applyTurnedBorders(const PlotState& state, vtkChartMatrix* matrix)
{
  applyMatrixBorders(state, matrix, state.verticalGutter, state.horizontalGutter, 0);
}

} // namespace Talmesh::plot
