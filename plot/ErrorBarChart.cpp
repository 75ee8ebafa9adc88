#include "plot/ErrorBarChart.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/ChartLifetime.h"
#include "plot/DrawnRows.h"
#include "plot/Margins.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/PlotTexts.h"
#include "plot/PointAppearance.h"
#include "plot/TableColumns.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <vtkAxis.h>
#include <vtkFloatArray.h>
#include <vtkObjectFactory.h>

namespace Talmesh::plot
{

namespace
{

/// Donates the reference that the base's destructor releases. It does so at the last moment, when
/// it is known which column, if any, the item ended with.
class OwnedErrorPoints : public vtkPlotErrorPoints
{
public:
  static OwnedErrorPoints* New();

protected:
  OwnedErrorPoints() = default;
  ~OwnedErrorPoints() override
  {
    if (ErrorArray)
      ErrorArray->Register(nullptr);
  }
};

vtkStandardNewMacro(OwnedErrorPoints);

/// With the row index as x, a column that cannot be drawn does no harm as x.
void feed(const PlotState& state, vtkPlot* plot, vtkTable* table, int x, int y)
{
  if (!feedPlot(plot, table, x, y) && state.useIndexForXSeries)
    feedPlotByIndex(plot, table, y);
}

void addErrorBars(PlotState& state)
{
  const DrawnRows drawn = drawnRows(state);
  state.chartXY->SetAnnotationLink(drawn.link);
  showSelectionInSummary(state);
  vtkNew<OwnedErrorPoints> points;
  points->SetUseIndexForXSeries(state.useIndexForXSeries);
  feed(state, points, drawn.table, drawn.x, drawn.y);
  points->SelectErrorArray(static_cast<vtkIdType>(drawn.z));
  points->SetWidth(static_cast<float>(state.metaData->getLineWidth()));
  state.chartXY->AddPlot(points);
}

/// Only until the first layout, because the axis fits the data; a client that reads it before sees
/// the padded range, computed in the column's precision.
void padBottomAxis(PlotState& state)
{
  const DrawnRows drawn = drawnRows(state);
  vtkAbstractArray* column = columnAt(drawn.table, drawn.x);
  double range[2];
  if (!finiteRange(vtkFloatArray::SafeDownCast(column), range))
    return;
  const float low = static_cast<float>(range[0]);
  const float high = static_cast<float>(range[1]);
  const float padding = static_cast<float>(rangePadding) * (high - low);
  setDataRange(state.chartXY->GetAxis(vtkAxis::BOTTOM), low - padding, high + padding);
}

vtkTable* lineTable(const PlotState& state)
{
  const bool hasOwn = !state.derivedTables.empty() && state.derivedTables.front();
  return hasOwn ? state.derivedTables.front() : state.table;
}

void addLine(PlotState& state)
{
  const PlotMetaData& settings = *state.metaData;
  const bool hasSecondX = settings.xColumns.size() >= 2;
  // Its columns are those of the plot table.
  if (drawsSummary(state) || settings.yColumns.size() < 2 ||
      (!hasSecondX && !state.useIndexForXSeries))
    return;
  vtkPlot* line = state.chartXY->AddPlot(vtkChart::LINE);
  vtkTable* table = lineTable(state);
  const int x = hasSecondX ? settings.xColumns[1] : 0;
  const int y = settings.yColumns[1];
  line->SetUseIndexForXSeries(state.useIndexForXSeries);
  if (columnAt(table, x) && columnAt(table, y))
    feed(state, line, table, x, y);
  if (table != state.table)
    makeUnselectable(line);
}

} // namespace

void drawErrorBarChart(PlotState& state, vtkContextScene* scene)
{
  vtkChartXY* chart = reuseChartXY(state, scene);
  applyXYBorders(state);
  addErrorBars(state);
  chart->GetAxis(vtkAxis::BOTTOM)->SetTitle(state.metaData->xLabel);
  padBottomAxis(state);
  addLine(state);
  applyTickLabelsByIndex(state, chart->GetAxis(vtkAxis::BOTTOM));
  chart->GetAxis(vtkAxis::LEFT)->SetTitle(state.metaData->yLabel);
  useColors(state, nullptr);
  chart->SetTitle(state.metaData->title);
}

} // namespace Talmesh::plot
