#include "app/document/AskedParameters.h"

#include "app/document/TableRuns.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <set>

namespace Talmesh::app
{

namespace
{

std::set<int> columnsOf(const std::vector<std::string>& conditions, const TableRuns& runs)
{
  std::set<int> columns;
  for (const std::string& condition : conditions)
  {
    FilterFault fault;
    for (const int column : RunFilter::read(condition, runs, fault).columns())
      columns.insert(column);
  }
  return columns;
}

} // namespace

std::vector<std::string> askedBeside(const std::string& words, PlotContainer& container,
                                     const std::vector<std::string>& conditions)
{
  const TableRuns runs(container);
  const std::set<int> known = columnsOf({words}, runs);
  const std::set<int> asked = columnsOf(conditions, runs);
  std::vector<std::string> names;
  for (const int column : container.getMetaData()->parameterColumns)
    if (asked.count(column) > 0 && known.count(column) == 0)
      names.push_back(runs.nameOf(column));
  return names;
}

std::vector<std::string> conditionsOn(const std::vector<std::string>& names)
{
  std::vector<std::string> conditions;
  for (const std::string& name : names)
    conditions.push_back(filterName(name) + " = " + filterName(name));
  return conditions;
}

} // namespace Talmesh::app
