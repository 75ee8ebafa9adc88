#include "plot/ParameterCells.h"

#include "external/PlotMetaData.h"
#include "plot/DecadeTicks.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkChart.h>
#include <vtkContextMouseEvent.h>

namespace Talmesh::plot
{

namespace
{

/// A button that no mouse event carries. Button 0 would match every move without a button.
constexpr int neverPressed = -1;

} // namespace

std::vector<std::string> parameterTitles(const PlotState& state)
{
  std::vector<std::string> titles;
  for (const int column : state.metaData->parameterColumns)
  {
    const std::string name = columnName(state.table, column);
    titles.push_back(name.empty() ? "" : withoutPrefix(name));
  }
  return titles;
}

void disablePanAndZoom(vtkChart* chart)
{
  chart->SetActionToButton(vtkChart::PAN, neverPressed);
  chart->SetActionToButton(vtkChart::ZOOM, neverPressed);
}

void enableSelection(const PlotState& state, vtkChart* chart)
{
  chart->SetAnnotationLink(state.annotationLink);
  chart->SetActionToButton(vtkChart::SELECT, vtkContextMouseEvent::RIGHT_BUTTON);
}

void dressParameterAxis(const PlotState& state, vtkAxis* axis, int column, const std::string& title,
                        bool atEdge)
{
  axis->SetTitle(atEdge ? title : "");
  axis->SetLabelsVisible(atEdge);
  axis->SetLogScale(state.metaData->getLogParameterAxes());
  useDecadeTicks(axis, plottableColumn(state.table, column));
}

} // namespace Talmesh::plot
