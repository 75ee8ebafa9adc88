#include "app/document/FurtherSeries.h"

#include "app/import/ColumnRoles.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotFeed.h"
#include "plot/TableColumns.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkNew.h>
#include <vtkPen.h>
#include <vtkTable.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Talmesh::app
{

namespace
{

vtkSmartPointer<vtkPlot> addSeries(vtkChartXY* chart, const PlotContainer& container)
{
  const PlotMetaData& settings = *container.getMetaData();
  if (settings.getPlotLine() && !container.showsSummary())
  {
    vtkNew<vtkPlotLineSet> runs;
    runs->SetStride(settings.getStride());
    runs->SetOnlyShowSelected(0);
    runs->SetBreakAtGaps(container.getOptions().breaksLinesAtGaps);
    runs->SetHighlight(container.getOptions().look.highlight);
    if (auto* first = vtkPlotLineSet::SafeDownCast(chart->GetPlot(0)))
      runs->SetPictureStore(first->GetPictureStore());
    chart->AddPlot(runs);
    return runs;
  }
  vtkPlot* plot = chart->AddPlot(vtkChart::POINTS);
  if (auto* points = vtkPlotPoints::SafeDownCast(plot))
  {
    points->SetMarkerSize(static_cast<float>(settings.pointSize));
    points->SetMarkerStyle(settings.markerStyle);
  }
  return plot;
}

void colour(vtkPlot* plot, const PlotLook& look, std::size_t series, unsigned char alpha)
{
  const PlotLook::Color& c = look.series[series % look.series.size()];
  plot->SetColor(c[0], c[1], c[2], alpha);
}

/// Runs that are one point each cover nothing, unlike the lines that the settings' colour is for.
constexpr int alphaOfRunPoints = 190;

void strengthen(vtkPlot* plot)
{
  unsigned char color[4];
  plot->GetPen()->GetColor(color);
  color[3] = std::max(color[3], static_cast<unsigned char>(alphaOfRunPoints));
  plot->SetColor(color[0], color[1], color[2], color[3]);
}

/// A drawing leaves the left axis where the window of the columns before had it.
void freeLeftAxis(const PlotContainer& container, vtkChartXY* chart)
{
  if (!plot::rememberedWindow(stateOf(container)))
    chart->GetAxis(vtkAxis::LEFT)->SetBehavior(vtkAxis::AUTO);
}

} // namespace

void addFurtherSeries(PlotContainer& container)
{
  vtkChartXY* chart = container.getChartXY();
  const PlotMetaData& settings = *container.getMetaData();
  if (!chart || chart->GetNumberOfPlots() == 0)
    return;
  if (container.showsSummary() && settings.solidColor)
    strengthen(chart->GetPlot(0));
  if (!styleOf(settings).hasSeries)
    return;
  freeLeftAxis(container, chart);
  const PlotLook& look = container.getOptions().look;
  const bool runs = container.showsSummary();
  const SummaryTable& summary = container.getSummary();
  vtkTable* table = runs ? summary.table.Get() : container.getTable();
  const int x = runs ? summary.x : plot::firstOf(settings.xColumns);
  const std::vector<int>& columns = runs ? summary.columns : settings.yColumns;
  const auto alpha = static_cast<unsigned char>(runs ? std::max(alphaOfRunPoints, settings.color[3])
                                                     : settings.color[3]);
  for (std::size_t series = 0; series < columns.size(); ++series)
  {
    vtkSmartPointer<vtkPlot> plot = chart->GetPlot(0);
    if (series > 0)
    {
      plot = addSeries(chart, container);
      plot::feedPlot(plot, table, x, columns[series]);
    }
    if (columns.size() > 1 && !look.series.empty())
      colour(plot, look, series, alpha);
    plot->SetLabel(runs ? plot::columnName(table, columns[series])
                        : shownName(plot::columnName(table, columns[series])));
  }
}

} // namespace Talmesh::app
