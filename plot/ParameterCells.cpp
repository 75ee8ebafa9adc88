#include "plot/ParameterCells.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/LogScales.h"
#include "vtk/vtkSelectableChartXY.h"

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

std::string parameterTitle(const PlotState& state, std::size_t parameter)
{
  const int column = state.metaData->parameterColumns[parameter];
  return columnAt(state.table, column) ? withoutPrefix(columnName(state.table, column)) : "";
}

std::vector<std::string> parameterTitles(const PlotState& state)
{
  std::vector<std::string> titles;
  for (std::size_t k = 0; k < state.metaData->parameterColumns.size(); ++k)
    titles.push_back(parameterTitle(state, k));
  return titles;
}

void forEachPair(std::size_t parameters, const std::function<void(const ParameterPair&)>& visit)
{
  for (std::size_t column = 0; column + 1 < parameters; ++column)
  {
    for (std::size_t row = 0; row + column + 1 < parameters; ++row)
      visit({static_cast<int>(column), static_cast<int>(row), column, parameters - 1 - row});
  }
}

vtkChart* pairCell(PlotState& state, const ParameterPair& pair)
{
  const vtkVector2i cell(pair.column, pair.row);
  state.chartMatrix->SetChartSpan(cell, vtkVector2i(1, 1));
  vtkChart* chart = state.chartMatrix->GetChart(cell);
  enableSelection(state, chart);
  return chart;
}

void dressPairAxes(const PlotState& state, vtkChart* chart, const ParameterPair& pair,
                   const std::vector<std::string>& titles)
{
  dressParameterAxis(state, chart, vtkAxis::BOTTOM, titles[pair.x], pair.row == 0);
  dressParameterAxis(state, chart, vtkAxis::LEFT, titles[pair.y], pair.column == 0);
}

void disablePanAndZoom(vtkChart* chart)
{
  chart->SetActionToButton(vtkChart::PAN, neverPressed);
  chart->SetActionToButton(vtkChart::ZOOM, neverPressed);
}

void enableSelection(const PlotState& state, vtkChart* chart)
{
  chart->SetAnnotationLink(state.annotationLink);
  if (auto* selectable = vtkSelectableChartXY::SafeDownCast(chart))
    selectable->SetGestures(state.gestures);
  chart->SetActionToButton(vtkChart::SELECT, vtkContextMouseEvent::RIGHT_BUTTON);
}

void dressParameterAxis(const PlotState& state, vtkChart* chart, int position,
                        const std::string& title, bool atEdge)
{
  vtkAxis* axis = chart->GetAxis(position);
  axis->SetTitle(atEdge ? title : "");
  axis->SetLabelsVisible(atEdge);
  axis->SetLogScale(state.metaData->getLogParameterAxes());
  useDecadeTicks(chart, position);
}

} // namespace Talmesh::plot
