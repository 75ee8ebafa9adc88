#include "app/import/Study.h"

#include "app/import/TranslatedText.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>

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

} // namespace

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
  return {study.name, last, nullptr, nullptr, study.categories};
}

int runsOverTime(const Study& study)
{
  const bool runs = study.runs && study.runs->pointsPerTrajectory > 1;
  return runs ? static_cast<int>(study.runs->numberOfTrajectories) : 0;
}

std::string studySize(const Study& study)
{
  if (study.runs)
    return runSize(*study.runs, varyingParameters(*study.runs));
  if (study.table)
    return tableSize(*study.table);
  return {};
}

} // namespace Talmesh::app
