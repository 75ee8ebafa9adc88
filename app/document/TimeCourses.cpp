#include "app/document/TimeCourses.h"

#include "app/document/ColouredRuns.h"
#include "app/import/TranslatedText.h"
#include "app/runs/RunCourse.h"
#include "external/ColumnNames.h"
#include "plot/PlotContainer.h"

#include <vtkAbstractArray.h>
#include <vtkChartXY.h>
#include <vtkContextMapper2D.h>
#include <vtkPlot.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <set>

namespace Talmesh::app
{

namespace
{

bool isCourse(const TypedConcentrationName& item)
{
  return item.first != TimeOrValue && item.first != Parameter;
}

std::vector<double> pointsOf(const LinePlotTable& runs, std::size_t item, std::size_t run)
{
  const double* first = runs.values[item] + run * runs.pointsPerTrajectory;
  return {first, first + runs.pointsPerTrajectory};
}

} // namespace

int timeOfCourses(const LinePlotTable& runs)
{
  std::vector<TypedConcentrationName> items = runs.items;
  for (TypedConcentrationName& item : items)
    if (item == runIndexItem())
      item.first = UndefinedType;
  const int time = timeItem(items);
  return time >= 0 && runs.values[static_cast<std::size_t>(time)] ? time : -1;
}

std::vector<int> shownRunNumbers(const LinePlotTable& runs)
{
  std::vector<int> places(runs.numberOfTrajectories);
  std::iota(places.begin(), places.end(), 0);
  const auto found = std::find(runs.items.begin(), runs.items.end(), runIndexItem());
  const auto item = static_cast<std::size_t>(found - runs.items.begin());
  if (found == runs.items.end() || !runs.values[item])
    return places;
  std::vector<int> numbers;
  for (std::size_t run = 0; run < runs.numberOfTrajectories; ++run)
  {
    const double number = runs.values[item][run * runs.pointsPerTrajectory];
    if (!(std::abs(number) <= std::numeric_limits<int>::max()) || std::floor(number) != number)
      return places;
    numbers.push_back(static_cast<int>(number));
  }
  const std::set<int> different(numbers.begin(), numbers.end());
  return different.size() == numbers.size() ? numbers : places;
}

std::vector<std::vector<double>> featuresOfRuns(const LinePlotTable& runs, int time)
{
  std::vector<std::vector<double>> features;
  const std::size_t points = runs.pointsPerTrajectory;
  for (std::size_t i = 0; i < runs.items.size(); ++i)
  {
    if (!isCourse(runs.items[i]) || !runs.values[i])
      continue;
    for (double (*feature)(const RunCourse&) : {smallestOf, largestOf, meanOf, finalOf})
    {
      features.emplace_back();
      for (std::size_t run = 0; run < runs.numberOfTrajectories; ++run)
        features.back().push_back(
            feature({runs.values[static_cast<std::size_t>(time)] + run * points,
                     runs.values[i] + run * points, points}));
    }
  }
  return features;
}

RunCourses::RunCourses(const LinePlotTable& runs, int time, const std::vector<std::size_t>& shown)
    : times(pointsOf(runs, static_cast<std::size_t>(time), shown.front()))
{
  const std::vector<int> numbers = shownRunNumbers(runs);
  // The record points into the list, which therefore must not grow any more.
  values.reserve(runs.items.size() * shown.size());
  for (const std::size_t run : shown)
    for (std::size_t i = 0; i < runs.items.size(); ++i)
    {
      if (!isCourse(runs.items[i]) || !runs.values[i])
        continue;
      TypedConcentrationName name = runs.items[i];
      if (shown.size() > 1)
        name.second = withValues(translated("TimeCourses", "%1, run %2"),
                                 {name.second, std::to_string(numbers[run])});
      items[name.second] = runs.items[i].second;
      places[selectionPairToString(name)] = run;
      values.push_back(pointsOf(runs, i, run));
      record.series[name] = &values.back();
    }
  record.xName = runs.items[static_cast<std::size_t>(time)].second;
  record.xValues = &times;
}

void colourCourses(PlotContainer& container, const std::map<std::string, std::size_t>& runs,
                   const RunGroups& kept)
{
  vtkChartXY* chart = container.getChartXY();
  for (vtkIdType i = 0; chart && i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    auto* values = plot->GetInput()
                       ? plot->GetData()->GetInputAbstractArrayToProcess(1, plot->GetInput())
                       : nullptr;
    const auto found = values && values->GetName() ? runs.find(values->GetName()) : runs.end();
    if (found == runs.end() || found->second >= kept.groupOfRun.size())
      continue;
    const int group = kept.groupOfRun[found->second];
    if (group == othersOfKept)
      continue;
    const QColor colour = colourOf(kept, group);
    plot->SetColor(static_cast<unsigned char>(colour.red()),
                   static_cast<unsigned char>(colour.green()),
                   static_cast<unsigned char>(colour.blue()), 255);
    plot->SetLabel(plot->GetLabel() + " (" + kept.names[static_cast<std::size_t>(group)] + ')');
  }
}

void drawTimeCourses(const LinePlotTable& runs, std::size_t run, std::size_t items,
                     PlotContainer& container)
{
  const int time = timeOfCourses(runs);
  if (time < 0 || run >= runs.numberOfTrajectories)
    return;
  RunCourses courses(runs, time, {run});
  PlotOptions options = container.getOptions();
  options.breaksLinesAtGaps = true;
  container.setOptions(options);
  container.setLinePlotData(&courses.record);
  std::vector<TypedConcentrationName> shown;
  for (const auto& series : courses.record.series)
    if (shown.size() < items)
      shown.push_back(series.first);
  container.setLinePlotItems(&shown);
}

} // namespace Talmesh::app
