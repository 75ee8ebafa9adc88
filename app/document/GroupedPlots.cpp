#include "app/document/GroupedPlots.h"

#include "app/import/TranslatedText.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/Decorations.h"
#include "plot/PlotContainer.h"
#include "plot/PlotFeed.h"
#include "plot/TableColumns.h"
#include "plot/TrajectoryChart.h"
#include "vtk/PointCloud.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkChartXY.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

/// Darker than the palette, which is too light for thin lines on white.
constexpr double brightness = 0.75;
constexpr int runAlpha = 150;
constexpr float meanWidth = 4.0F;

/// What is drawn of the runs: their columns and the plot of all of them.
struct DrawnRuns
{
  vtkChartXY* chart = nullptr;
  vtkPlotPoints* plot = nullptr;
  vtkDoubleArray* x = nullptr;
  vtkDoubleArray* y = nullptr;
  vtkIdType stride = 1;
  vtkIdType runs = 0;
};

/// Without a chart where there are no runs to complete.
DrawnRuns drawnRuns(const PlotContainer& container)
{
  const PlotMetaData& settings = *container.getMetaData();
  const SummaryTable& summary = container.getSummary();
  DrawnRuns drawn;
  if (container.showsSummary())
  {
    drawn.x = plot::doubleColumn(summary.table, summary.x);
    drawn.y = plot::doubleColumn(summary.table, summary.y);
  }
  else
  {
    drawn.x = plot::doubleColumn(container.getTable(), plot::firstOf(settings.xColumns));
    drawn.y = plot::doubleColumn(container.getTable(), plot::firstOf(settings.yColumns));
    drawn.stride = settings.getStride();
  }
  vtkChartXY* chart = container.getChartXY();
  const bool usable = styleOf(settings).hasSeries && chart && chart->GetNumberOfPlots() > 0 &&
                      drawn.x && drawn.y && drawn.stride > 0;
  if (!usable)
    return drawn;
  drawn.plot = vtkPlotPoints::SafeDownCast(chart->GetPlot(0));
  drawn.chart = drawn.plot ? chart : nullptr;
  drawn.runs = drawn.y->GetNumberOfTuples() / drawn.stride;
  return drawn;
}

/// Only the highlight of the selected runs stays.
void hideRuns(const DrawnRuns& drawn)
{
  if (auto* lines = vtkPlotLineSet::SafeDownCast(drawn.plot))
    lines->OnlyShowSelectedOn();
  else
    drawn.plot->SetColor(0, 0, 0, 0);
}

/// The x and y values of one group's runs, one run after another.
vtkSmartPointer<vtkTable> tableOfGroup(const DrawnRuns& drawn, const std::vector<int>& groupOfRun,
                                       int group)
{
  std::vector<double> x;
  std::vector<double> y;
  for (vtkIdType run = 0; run < drawn.runs; ++run)
  {
    if (static_cast<std::size_t>(run) >= groupOfRun.size() ||
        groupOfRun[static_cast<std::size_t>(run)] != group)
      continue;
    const vtkIdType first = run * drawn.stride;
    x.insert(x.end(), drawn.x->GetPointer(first), drawn.x->GetPointer(first) + drawn.stride);
    y.insert(y.end(), drawn.y->GetPointer(first), drawn.y->GetPointer(first) + drawn.stride);
  }
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(plot::makeColumn("x", x));
  table->AddColumn(plot::makeColumn("y", y));
  return table;
}

vtkSmartPointer<vtkPlotPoints> makePlotLike(const DrawnRuns& drawn)
{
  if (auto* allRuns = vtkPlotLineSet::SafeDownCast(drawn.plot))
  {
    auto lines = vtkSmartPointer<vtkPlotLineSet>::New();
    lines->SetStride(static_cast<int>(drawn.stride));
    lines->SetBreakAtGaps(allRuns->GetBreakAtGaps());
    lines->SetPictureStore(allRuns->GetPictureStore());
    lines->OnlyShowSelectedOff();
    return lines;
  }
  auto points = vtkSmartPointer<PointCloud>::New();
  points->SetMarkerStyle(drawn.plot->GetMarkerStyle());
  points->SetMarkerSize(drawn.plot->GetMarkerSize());
  return points;
}

void paint(vtkPlot* plot, const QColor& colour, int alpha)
{
  plot->SetColor(static_cast<unsigned char>(colour.red()),
                 static_cast<unsigned char>(colour.green()),
                 static_cast<unsigned char>(colour.blue()), static_cast<unsigned char>(alpha));
}

/// Puts the plots from `first` on behind the others, in their own order.
void lowerFrom(vtkChartXY* chart, vtkIdType first)
{
  for (vtkIdType i = chart->GetNumberOfPlots() - 1; i >= first; --i)
    chart->LowerPlot(chart->GetPlot(i));
}

/// The mean of the finite values of a group at every position within a run.
std::vector<double> meanCourse(vtkTable* group, vtkIdType stride)
{
  vtkDoubleArray* values = plot::doubleColumn(group, 1);
  const auto positions = static_cast<std::size_t>(stride);
  std::vector<double> sums(positions, 0.0);
  std::vector<double> counts(positions, 0.0);
  for (vtkIdType row = 0; row < values->GetNumberOfValues(); ++row)
  {
    if (!std::isfinite(values->GetValue(row)))
      continue;
    sums[static_cast<std::size_t>(row % stride)] += values->GetValue(row);
    counts[static_cast<std::size_t>(row % stride)] += 1.0;
  }
  for (std::size_t i = 0; i < positions; ++i)
    sums[i] = counts[i] > 0.0 ? sums[i] / counts[i] : std::numeric_limits<double>::quiet_NaN();
  return sums;
}

void addMean(const DrawnRuns& drawn, const RunGroups& groups, int group)
{
  const auto members = tableOfGroup(drawn, groups.groupOfRun, group);
  if (members->GetNumberOfRows() == 0)
    return;
  const double* time = plot::doubleColumn(members, 0)->GetPointer(0);
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(plot::makeColumn("x", {time, time + drawn.stride}));
  table->AddColumn(plot::makeColumn("mean", meanCourse(members, drawn.stride)));
  vtkPlot* plot = drawn.chart->AddPlot(vtkChart::LINE);
  paint(plot, groupColour(group).darker(140), 255);
  plot->SetWidth(meanWidth);
  plot->SetLegendVisibility(false);
  plot::feedPlot(plot, table, 0, 1);
  plot::makeUnselectable(plot);
}

} // namespace

std::vector<double> groupNumbers(const RunGroups& groups)
{
  std::vector<double> numbers;
  for (const int group : groups.groupOfRun)
    numbers.push_back(group + 1.0);
  return numbers;
}

QColor groupColour(int group)
{
  const plot::PaletteColor& colour = plot::paletteColor(static_cast<std::size_t>(group));
  return QColor::fromRgbF(colour[0] * brightness, colour[1] * brightness, colour[2] * brightness);
}

QColor colourOf(const RunGroups& groups, int group)
{
  const auto place = static_cast<std::size_t>(group);
  return place < groups.colours.size() ? groups.colours[place] : groupColour(group);
}

void colourGroups(PlotContainer& container, const RunGroups& groups)
{
  const DrawnRuns drawn = drawnRuns(container);
  if (!drawn.chart)
    return;
  const vtkIdType before = drawn.chart->GetNumberOfPlots();
  for (int group = 0; group < static_cast<int>(groups.names.size()); ++group)
  {
    const auto table = tableOfGroup(drawn, groups.groupOfRun, group);
    if (table->GetNumberOfRows() == 0)
      continue;
    const vtkSmartPointer<vtkPlotPoints> members = makePlotLike(drawn);
    members->SetWidth(drawn.plot->GetWidth());
    paint(members, colourOf(groups, group), runAlpha);
    members->SetLabel(groups.names[static_cast<std::size_t>(group)]);
    plot::feedPlot(members, table, 0, 1);
    plot::makeUnselectable(members);
    drawn.chart->AddPlot(members);
  }
  lowerFrom(drawn.chart, before);
  hideRuns(drawn);
  drawn.plot->SetLegendVisibility(false);
}

void addGroupMeans(PlotContainer& container, const RunGroups& groups)
{
  const DrawnRuns drawn = drawnRuns(container);
  if (!drawn.chart)
    return;
  for (int group = 0; group < static_cast<int>(groups.names.size()); ++group)
    addMean(drawn, groups, group);
}

void showQuartileBands(PlotContainer& container)
{
  const DrawnRuns drawn = drawnRuns(container);
  if (!drawn.chart)
    return;
  container.refreshQuartiles();
  const vtkIdType before = drawn.chart->GetNumberOfPlots();
  plot::addQuartileBands(stateOf(container));
  for (vtkIdType i = before; i < drawn.chart->GetNumberOfPlots(); ++i)
    drawn.chart->GetPlot(i)->SetLegendVisibility(false);
  lowerFrom(drawn.chart, before);
  hideRuns(drawn);
}

RunGroups namedGroups(const std::vector<int>& groupOfRun)
{
  RunGroups groups;
  groups.groupOfRun = groupOfRun;
  std::vector<std::size_t> counts;
  for (const int group : groupOfRun)
  {
    const auto place = static_cast<std::size_t>(group);
    counts.resize(std::max(counts.size(), place + 1));
    ++counts[place];
  }
  for (std::size_t i = 0; i < counts.size(); ++i)
  {
    const std::string text = counts[i] == 1 ? translated("GroupController", "Group %1: %2 run")
                                            : translated("GroupController", "Group %1: %2 runs");
    groups.names.push_back(withValues(text, {std::to_string(i + 1), std::to_string(counts[i])}));
  }
  return groups;
}

void dressRuns(PlotContainer& container, const RunGroups& groups, const RunGroups& colours,
               const RunLook& look)
{
  if (!colours.names.empty())
    colourGroups(container, colours);
  // Runs that are one point each have no course.
  if (container.showsSummary())
    return;
  if (look.quartileBands)
    showQuartileBands(container);
  if (look.groupMeans)
    addGroupMeans(container, groups);
}

} // namespace Talmesh::app
