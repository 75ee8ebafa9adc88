#include "plot/DrawnRows.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "plot/StyleTable.h"
#include "plot/TableColumns.h"
#include "vtk/RowSelections.h"

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

using Rows = std::vector<bool>;

std::size_t rowsEach(const SummaryTable& summary)
{
  return static_cast<std::size_t>(std::max<vtkIdType>(summary.rowsEach, 1));
}

Rows summarised(const Rows& rows, const SummaryTable& summary)
{
  Rows any(static_cast<std::size_t>(summary.table->GetNumberOfRows()), false);
  for (std::size_t row = 0; row < rows.size() && row / rowsEach(summary) < any.size(); ++row)
    if (rows[row])
      any[row / rowsEach(summary)] = true;
  return any;
}

/// @param count rows of the plot table
Rows spread(const Rows& any, const SummaryTable& summary, vtkIdType count)
{
  Rows rows(static_cast<std::size_t>(count), false);
  for (std::size_t row = 0; row < rows.size() && row / rowsEach(summary) < any.size(); ++row)
    rows[row] = any[row / rowsEach(summary)];
  return rows;
}

vtkSmartPointer<vtkSelection> selectionOf(const Rows& rows)
{
  std::vector<vtkIdType> list;
  for (std::size_t row = 0; row < rows.size(); ++row)
    if (rows[row])
      list.push_back(static_cast<vtkIdType>(row));
  return makeRowSelection(list);
}

} // namespace

bool drawsSummary(const PlotState& state)
{
  return state.summary.table && currentStyle(state).drawsSummaries;
}

DrawnRows drawnRows(const PlotState& state)
{
  if (drawsSummary(state))
    return {state.summary.table, state.summaryLink, state.summary.x, state.summary.y,
            state.summary.z};
  const PlotMetaData& settings = *state.metaData;
  return {state.table, state.annotationLink, firstOf(settings.xColumns), firstOf(settings.yColumns),
          firstOf(settings.zColumns)};
}

void showSelectionInSummary(PlotState& state)
{
  if (!drawsSummary(state))
    return;
  const Rows rows = markedRows(state.annotationLink->GetCurrentSelection(), state.table);
  const Rows any = summarised(rows, state.summary);
  // Charts take a selection that is set anew for one that they have not made.
  if (any != markedRows(state.summaryLink->GetCurrentSelection(), state.summary.table))
    state.summarySelection.show(selectionOf(any));
}

void adoptSummarySelection(PlotState& state, vtkSelection* selection)
{
  if (!drawsSummary(state))
    return;
  const vtkSmartPointer<vtkAnnotationLink> link = state.annotationLink;
  const Rows rows = spread(markedRows(selection, state.summary.table), state.summary,
                           state.table->GetNumberOfRows());
  if (rows != markedRows(link->GetCurrentSelection(), state.table))
    link->SetCurrentSelection(selectionOf(rows));
}

} // namespace Talmesh::plot
