#include "app/document/ShownStudy.h"

#include "app/document/ChartDressing.h"
#include "app/document/ShownCategories.h"
#include "app/styles/ViewerLook.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// The positions of the columns that hold plotted items; the first column without any.
std::vector<int> plottedColumns(const PlotContainer& container)
{
  const auto& items = container.getColumnItems();
  std::vector<int> columns;
  for (std::size_t i = 0; i < items.size(); ++i)
    if (items[i].first != TimeOrValue && items[i].first != Parameter)
      columns.push_back(static_cast<int>(i));
  return columns.empty() ? std::vector<int>{0} : columns;
}

/// The colour of the first series. The more runs lie on each other, the more light shines through.
std::array<int, 4> seriesColour(std::size_t runs)
{
  constexpr double leastAlpha = 60.0;
  const double alpha =
      std::max(leastAlpha, 255.0 * std::min(1.0, 10.0 / static_cast<double>(runs)));
  return {31, 84, 150, static_cast<int>(alpha)};
}

void fill(const Study& study, PlotContainer& container)
{
  PlotMetaData& settings = *container.getMetaData();
  PlotOptions options;
  options.showsDiagnostics = false;
  // Each selection draws, and would take the pair that the user looks at away.
  options.keepsScatterPair = true;
  options.breaksLinesAtGaps = true;
  options.showsSelectionMarks = false;
  options.movesParallelAxes = true;
  options.look = viewerLook();
  container.setOptions(options);
  settings.sourceName = study.name;
  keepCategories(container, study.categories);
  if (study.chart)
    return;
  dressDrawings(container);
  if (study.runs)
  {
    container.setLinePlotTable(study.runs, false);
    const std::vector<int> plotted = plottedColumns(container);
    settings.yColumns = {plotted.front()};
    settings.zColumns = {plotted[std::min<std::size_t>(1, plotted.size() - 1)]};
    const QSignalBlocker silence(settings);
    settings.setPlotLine(study.runs->pointsPerTrajectory > 1);
    // All columns of a study would be too many scatter plots to read, and slow to draw.
    settings.setLimitColumVisibility(!settings.parameterColumns.empty());
    settings.color = seriesColour(settings.getPlotLine() ? study.runs->numberOfTrajectories : 1);
  }
  else
  {
    container.setPlotData(study.table);
    const int last = static_cast<int>(study.table->GetNumberOfColumns()) - 1;
    settings.xColumns = {0};
    settings.yColumns = {std::min(1, last)};
    settings.zColumns = {std::min(2, last)};
    settings.color = seriesColour(1);
  }
  settings.title.clear();
}

} // namespace

void showStudy(const Study& study, PlotContainer& container)
{
  container.withoutDrawing([&] { fill(study, container); });
}

std::string studySize(const Study& study, const PlotContainer& container)
{
  return studySize(study.chart ? Study{study.name, nullptr, container.getTable()} : study);
}

} // namespace Talmesh::app
