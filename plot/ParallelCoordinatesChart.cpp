#include "plot/ParallelCoordinatesChart.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/DrawnRows.h"
#include "plot/FiniteTable.h"
#include "plot/ParameterCells.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "vtk/ParallelLines.h"
#include "vtk/RowSelections.h"
#include "vtk/vtkSelectableParallelCoordinates.h"

#include <vtkAxis.h>
#include <vtkContextMouseEvent.h>
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
constexpr int neverPressed = -1;
constexpr double labelRotation = -45.0; ///< degrees
constexpr double blueHue = 2.0 / 3.0;
constexpr double redHue = 0.0;

void showColumn(PlotState& state, int column)
{
  vtkTable* table = drawnRows(state).table;
  double range[2];
  if (finiteRange(plottableColumn(table, column), range))
    state.parallelCoordinates->SetColumnVisibility(columnName(table, column), true);
}

std::vector<int> columnsToShow(const PlotState& state)
{
  if (drawsSummary(state))
    return state.summary.columns;
  const std::vector<int>& chosen = state.metaData->yColumns;
  return chosen.size() >= fewestChosenAxes ? chosen : columnsOfAll(state);
}

void showColumns(PlotState& state)
{
  state.parallelCoordinates->SetColumnVisibilityAll(false);
  for (const int column : columnsToShow(state))
    showColumn(state, column);
}

void colorLines(PlotState& state)
{
  auto* plot = vtkPlotParallelCoordinates::SafeDownCast(state.parallelCoordinates->GetPlot(0));
  double range[2];
  // The settings speak of columns of the plot table.
  const bool usable = !drawsSummary(state) &&
                      finiteRange(plottableColumn(state.table, state.metaData->colorColumn), range);
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
  const DrawnRows drawn = drawnRows(state);
  vtkNew<ParallelLines> plot;
  plot->SetPictureStore(state.pictures);
  plot->SetSelection(listSelectedRows(drawn.link, drawn.table));
  state.parallelCoordinates->SetPlot(plot);
  state.parallelCoordinates->GetVisibleColumns()->SetNumberOfTuples(0);
  plot->vtkPlot::SetInputData(withoutInfinities(drawn.table));
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
  enableSelection(state, state.parallelCoordinates);
  state.parallelCoordinates->SetActionToButton(
      vtkChart::PAN,
      state.options.movesParallelAxes ? vtkContextMouseEvent::LEFT_BUTTON : neverPressed);
  if (auto* chart = vtkSelectableParallelCoordinates::SafeDownCast(state.parallelCoordinates))
  {
    chart->SetPlacesNames(drawsSummary(state));
    chart->SetGestures(state.gestures);
  }
  state.parallelCoordinates->SetAnnotationLink(drawnRows(state).link);
  showSelectionInSummary(state);
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
  vtkTable* table = drawnRows(state).table;
  const vtkSmartPointer<vtkTable> finite = withoutInfinities(table);
  if (finite != table || plot->GetInput() != table)
    plot->vtkPlot::SetInputData(finite);
}

} // namespace Talmesh::plot
