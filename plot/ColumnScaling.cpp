#include "plot/ColumnScaling.h"

#include "external/PlotMetaData.h"
#include "plot/ParallelCoordinatesChart.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/Quartiles.h"
#include "plot/Redraw.h"
#include "plot/ScatterMatrix.h"
#include "plot/TableColumns.h"
#include "stats/RunScaling.h"

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

/// Column `index` if its storage is one double per row; null otherwise.
vtkDoubleArray* plainColumn(const PlotState& state, int index)
{
  vtkDoubleArray* column = doubleColumn(state.table, index);
  const bool plain =
      column && column->GetNumberOfComponents() == 1 && column->GetNumberOfTuples() > 0;
  return plain ? column : nullptr;
}

/// The rows of a column that are rows of the table, which other columns may be longer than.
std::size_t tableRows(const PlotState& state, const vtkDoubleArray* column)
{
  return static_cast<std::size_t>(
      std::min(column->GetNumberOfTuples(), state.table->GetNumberOfRows()));
}

/// Values written through the storage are invisible to VTK's cached ranges until it is told.
void announce(PlotState& state, vtkDoubleArray* column)
{
  column->Modified();
  state.table->Modified();
  tableChanged(state);
  renewMatrixCopies(state);
  renewLineCopies(state);
}

void finish(PlotState& state)
{
  generateQuartiles(state);
  markDirty(state);
}

} // namespace

void scaleColumn(PlotState& state, const double* factors, int column)
{
  vtkDoubleArray* values = plainColumn(state, column);
  if (values && factors)
  {
    stats::scaleRuns(values->GetPointer(0), tableRows(state, values), state.metaData->getStride(),
                     factors);
    announce(state, values);
  }
  finish(state);
}

void scaleToRunMaximum(PlotState& state, int column)
{
  if (vtkDoubleArray* values = plainColumn(state, column))
  {
    stats::normaliseRunsToMaximum(values->GetPointer(0), tableRows(state, values),
                                  state.metaData->getStride());
    announce(state, values);
  }
  finish(state);
}

void scaleColumnByColumn(PlotState& state, int column, int byColumn, bool divide)
{
  vtkDoubleArray* values = plainColumn(state, column);
  vtkDoubleArray* by = plainColumn(state, byColumn);
  if (!values || !by)
    return;
  const std::size_t rows = std::min(tableRows(state, values), tableRows(state, by));
  if (divide)
    stats::divideElementwise(values->GetPointer(0), by->GetPointer(0), rows);
  else
    stats::multiplyElementwise(values->GetPointer(0), by->GetPointer(0), rows);
  announce(state, values);
}

} // namespace Talmesh::plot
