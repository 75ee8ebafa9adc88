#include "app/document/CategoryGroups.h"

#include "app/document/ShownCategories.h"
#include "app/document/TableRuns.h"
#include "app/import/ColumnRoles.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Talmesh::app
{

namespace
{

const Category* categoryCalled(const PlotContainer& container, const std::string& label)
{
  for (const Category& category : categoriesOf(container))
    if (category.column == label)
      return &category;
  return nullptr;
}

/// The text of each run, as its place among the texts; those behind all stand for none.
std::vector<std::size_t> levelOfRuns(const TableRuns& runs, int column, std::size_t levels)
{
  std::vector<std::size_t> levelOfRun;
  for (std::size_t run = 0; run < runs.numberOfRuns(); ++run)
  {
    const double number = runs.course(run, column, -1).y[0];
    const bool isLevel = number >= 0.0 && number < static_cast<double>(levels);
    levelOfRun.push_back(isLevel ? static_cast<std::size_t>(number) : levels);
  }
  return levelOfRun;
}

} // namespace

std::vector<std::string> groupableCategories(PlotContainer& container)
{
  const TableRuns runs(container);
  std::vector<std::string> labels;
  for (const Category& category : categoriesOf(container))
  {
    const int column = plot::columnIndex(container.getTable(), category.column);
    if (runs.numberOfRuns() > 0 && plot::doubleColumn(container.getTable(), column) &&
        runs.isOfWholeRun(column))
      labels.push_back(category.column);
  }
  return labels;
}

Result<RunGroups> groupsOfCategory(PlotContainer& container, const std::string& label)
{
  using Groups = Result<RunGroups>;
  const std::vector<std::string> labels = groupableCategories(container);
  const Category* category = categoryCalled(container, label);
  if (!category || std::find(labels.begin(), labels.end(), label) == labels.end())
    return Groups::failed(
        withValues(translated("CategoryGroups", "The column %1 has no text for each run."),
                   {quotedForMessage(shownName(label))}));
  const std::size_t levels = category->levels.size();
  const std::vector<std::size_t> levelOfRun =
      levelOfRuns(TableRuns(container), plot::columnIndex(container.getTable(), label), levels);
  RunGroups groups;
  std::vector<int> groupOfLevel(levels + 1, -1);
  for (std::size_t level = 0; level <= levels; ++level)
  {
    if (std::find(levelOfRun.begin(), levelOfRun.end(), level) == levelOfRun.end())
      continue;
    groupOfLevel[level] = static_cast<int>(groups.names.size());
    groups.names.push_back(level < levels ? category->levels[level]
                                          : translated("CategoryGroups", "(no text)"));
  }
  if (groups.names.size() > static_cast<std::size_t>(mostGroups))
    return Groups::failed(withValues(
        translated("CategoryGroups",
                   "The column %1 has %2 different texts; there are colours for %3 groups."),
        {quotedForMessage(shownName(label)), std::to_string(groups.names.size()),
         std::to_string(mostGroups)}));
  for (const std::size_t level : levelOfRun)
    groups.groupOfRun.push_back(groupOfLevel[level]);
  return groups;
}

} // namespace Talmesh::app
