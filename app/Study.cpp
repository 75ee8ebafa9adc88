#include "app/Study.h"

#include "app/ExampleStudy.h"
#include "app/OwnChart.h"
#include "app/TranslatedText.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace Talmesh::app
{

namespace
{

std::string counted(std::size_t count, const std::string& one, const std::string& many)
{
  return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

/// The parameter values, one per run, that are blank or no number.
std::size_t missingValues(const LinePlotTable& runs)
{
  std::size_t missing = 0;
  for (std::size_t i = 0; i < runs.items.size() && i < runs.values.size(); ++i)
    for (std::size_t run = 0; runs.items[i].first == Parameter && run < runs.numberOfTrajectories;
         ++run)
      missing += std::isnan(runs.values[i][run * runs.pointsPerTrajectory]) ? 1 : 0;
  return missing;
}

std::string runSize(const LinePlotTable& runs, std::size_t parameters)
{
  const std::string size = withValues(
      translated("Study", "%1, %2 each, %3"),
      {counted(runs.numberOfTrajectories, translated("Study", "run"), translated("Study", "runs")),
       counted(runs.pointsPerTrajectory, translated("Study", "point"),
               translated("Study", "points")),
       counted(parameters, translated("Study", "parameter"), translated("Study", "parameters"))});
  const std::size_t missing = missingValues(runs);
  if (missing == 0)
    return size;
  return withValues(translated("Study", "%1, %2"),
                    {size, counted(missing, translated("Study", "parameter value missing"),
                                   translated("Study", "parameter values missing"))});
}

std::string tableSize(vtkTable& table)
{
  return withValues(translated("Study", "%1, %2"),
                    {counted(static_cast<std::size_t>(table.GetNumberOfRows()),
                             translated("Study", "row"), translated("Study", "rows")),
                     counted(static_cast<std::size_t>(table.GetNumberOfColumns()),
                             translated("Study", "column"), translated("Study", "columns"))});
}

std::size_t varyingParameters(const LinePlotTable& runs)
{
  return static_cast<std::size_t>(
      std::count_if(runs.parameterRanges.begin(), runs.parameterRanges.end(),
                    [](const auto& range) { return range.first != range.second; }));
}

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

} // namespace

Study exampleStudyOfRepressilator(const ImportProgress& progress)
{
  return {"Repressilator", makeExampleStudy(progress), nullptr};
}

void showStudy(const Study& study, PlotContainer& container)
{
  PlotMetaData& settings = *container.getMetaData();
  // Each selection draws, and would take the pair that the user looks at away.
  container.setKeepsScatterPair(true);
  if (study.chart)
  {
    study.chart->draw(container, study.chart->firstVariant);
  }
  else if (study.runs)
  {
    container.setLinePlotTable(study.runs, false);
    const std::vector<int> plotted = plottedColumns(container);
    settings.yColumns = {plotted.front()};
    settings.zColumns = {plotted[std::min<std::size_t>(1, plotted.size() - 1)]};
    settings.blockSignals(true);
    settings.setPlotLine(study.runs->pointsPerTrajectory > 1);
    // All columns of a study would be too many scatter plots to read, and slow to draw.
    settings.setLimitColumVisibility(!settings.parameterColumns.empty());
    settings.blockSignals(false);
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
  settings.sourceName = study.name;
}

Study lastPoints(const Study& study)
{
  if (!study.runs)
    return study;
  const LinePlotTable& runs = *study.runs;
  auto last = boost::make_shared<LinePlotTable>();
  last->items = runs.items;
  last->parameterRanges = runs.parameterRanges;
  last->numberOfTrajectories = runs.numberOfTrajectories;
  last->pointsPerTrajectory = 1;
  last->values.reserve(runs.values.size());
  for (const double* values : runs.values)
  {
    last->values.push_back(new double[runs.numberOfTrajectories]);
    for (std::size_t run = 0; run < runs.numberOfTrajectories; ++run)
      last->values.back()[run] = values[(run + 1) * runs.pointsPerTrajectory - 1];
  }
  return {study.name, last, nullptr};
}

std::string studySize(const Study& study)
{
  if (study.runs)
    return runSize(*study.runs, varyingParameters(*study.runs));
  if (study.table)
    return tableSize(*study.table);
  return {};
}

std::string studySize(const Study& study, const PlotContainer& container)
{
  return studySize(study.chart ? Study{study.name, nullptr, container.getTable()} : study);
}

} // namespace Talmesh::app
