#include "plot/ParallelCoordinatesChart.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/FiniteTable.h"
#include "plot/ParameterCells.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "vtk/ParallelLines.h"
#include "vtk/RowSelections.h"

#include <vtkAxis.h>
#include <vtkLookupTable.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkTextProperty.h>

#include <iostream>

namespace Talmesh::plot
{

namespace
{

/// Fewer y columns than this are no choice of axes.
constexpr std::size_t fewestChosenAxes = 3;
constexpr double labelRotation = -45.0; ///< degrees
constexpr double blueHue = 2.0 / 3.0;
constexpr double redHue = 0.0;

void showColumn(PlotState& state, int column)
{
  double range[2];
  if (finiteRange(plottableColumn(state.table, column), range))
    state.parallelCoordinates->SetColumnVisibility(columnName(state.table, column), true);
}

void showColumns(PlotState& state)
{
  state.parallelCoordinates->SetColumnVisibilityAll(false);
  const std::vector<int>& chosen = state.metaData->yColumns;
  for (const int column : chosen.size() >= fewestChosenAxes ? chosen : columnsOfAll(state))
    showColumn(state, column);
}

void colorLines(PlotState& state)
{
  auto* plot = vtkPlotParallelCoordinates::SafeDownCast(state.parallelCoordinates->GetPlot(0));
  double range[2];
  const bool usable = finiteRange(plottableColumn(state.table, state.metaData->colorColumn), range);
  plot->SetScalarVisibility(usable);
  if (!usable)
    return;
  // VTK's own colours span bounds that this plot never sets.
  vtkNew<vtkLookupTable> blueToRed;
  blueToRed->SetHueRange(blueHue, redHue);
  blueToRed->SetRange(range);
  blueToRed->Build();
  plot->SetLookupTable(blueToRed);
  // By index: the search by name reads every name on its way and crashes on a column without one.
  plot->SelectColorArray(static_cast<vtkIdType>(state.metaData->colorColumn));
}

/// A plot that keeps an input keeps the columns that it last saw visible, so the chart gets a new
/// one for every drawing.
void feedLines(PlotState& state)
{
  vtkNew<ParallelLines> plot;
  plot->SetPictureStore(state.pictures);
  plot->SetSelection(listSelectedRows(state.annotationLink, state.table));
  state.parallelCoordinates->SetPlot(plot);
  state.parallelCoordinates->GetVisibleColumns()->SetNumberOfTuples(0);
  plot->vtkPlot::SetInputData(withoutInfinities(state.table));
}

} // namespace

void drawParallelCoordinates(PlotState& state, vtkContextScene* scene)
{
  if (!state.parallelCoordinates)
  {
    std::cerr << "Warning " << __PRETTY_FUNCTION__
              << ": a copied container has no parallel-coordinates chart" << std::endl;
    return;
  }
  showChart(state, state.parallelCoordinates, scene);
  // The button is the one that moves axes otherwise, and VTK reads an axis that is not there when
  // the mouse is pressed beside all of them.
  enableSelection(state, state.parallelCoordinates);
  state.parallelCoordinates->ClearPlots();
  feedLines(state);
  showColumns(state);
  colorLines(state);
  for (int axis = 0; axis < state.parallelCoordinates->GetNumberOfAxes(); ++axis)
    state.parallelCoordinates->GetAxis(axis)->GetLabelProperties()->SetOrientation(labelRotation);
}

void renewLineCopies(PlotState& state)
{
  vtkPlot* plot = state.parallelCoordinates && state.currentChart == state.parallelCoordinates
                      ? state.parallelCoordinates->GetPlot(0)
                      : nullptr;
  if (!plot)
    return;
  const vtkSmartPointer<vtkTable> finite = withoutInfinities(state.table);
  if (finite != state.table || plot->GetInput() != state.table)
    plot->vtkPlot::SetInputData(finite);
}

} // namespace Talmesh::plot
