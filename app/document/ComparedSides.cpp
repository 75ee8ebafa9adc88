#include "app/document/ComparedSides.h"

#include "app/document/TableRuns.h"
#include "app/import/ColumnRoles.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"

#include <algorithm>
#include <cstring>

namespace Talmesh::app
{

namespace
{

constexpr std::array<unsigned char, 3> black = {0, 0, 0};

/// Missing values are equal.
bool isConstant(const RunCourse& course)
{
  return std::all_of(course.y, course.y + course.size,
                     [&course](double value)
                     { return std::memcmp(&value, course.y, sizeof(double)) == 0; });
}

bool areEqual(const std::vector<double>& one, const std::vector<double>& other)
{
  return one.size() == other.size() &&
         (one.empty() || std::memcmp(one.data(), other.data(), one.size() * sizeof(double)) == 0);
}

/// The values of each parameter in the runs of a group.
class GroupValues
{
public:
  GroupValues(PlotContainer& shown, const ComparedStudy& comparedRuns)
      : container(shown)
      , study(comparedRuns)
      , runs(shown)
  {
  }

  DistributionGroup of(const std::vector<bool>& members, const std::array<unsigned char, 3>& color)
  {
    DistributionGroup group;
    group.color = color;
    for (std::size_t k = 0; k < study.columns.size(); ++k)
      group.values.push_back(isChanging(k) ? ofPoints(k, members) : ofRuns(k, members));
    return group;
  }

private:
  bool isChanging(std::size_t k) const
  {
    return std::find(study.changing.begin(), study.changing.end(), k) != study.changing.end();
  }

  std::vector<double> ofRuns(std::size_t k, const std::vector<bool>& members) const
  {
    std::vector<double> values;
    for (std::size_t run = 0; run < study.columns[k].size(); ++run)
      if (members[run])
        values.push_back(study.columns[k][run]);
    return values;
  }

  std::vector<double> ofPoints(std::size_t k, const std::vector<bool>& members) const
  {
    std::vector<double> values;
    const int column = container.getMetaData()->parameterColumns[k];
    if (!plot::doubleColumn(container.getTable(), column))
      return values;
    for (std::size_t run = 0; run < members.size(); ++run)
    {
      const RunCourse course = runs.course(run, column, -1);
      if (members[run])
        values.insert(values.end(), course.y, course.y + course.size);
    }
    return values;
  }

  PlotContainer& container;
  const ComparedStudy& study;
  TableRuns runs;
};

} // namespace

ComparedStudy comparedStudy(PlotContainer& container, const std::string& words)
{
  ComparedStudy study;
  const TableRuns runs(container);
  const std::vector<bool> selected = runs.selected();
  study.selected.assign(selected.begin(), selected.end());
  std::vector<int> asked;
  FilterFault fault;
  if (!words.empty())
    asked = RunFilter::read(words, runs, fault).columns();
  for (const int column : container.getMetaData()->parameterColumns)
  {
    const std::size_t k = study.names.size();
    study.names.push_back(shownName(plot::columnName(container.getTable(), column)));
    study.columns.emplace_back();
    const bool hasNumbers = plot::doubleColumn(container.getTable(), column) != nullptr;
    bool changes = !hasNumbers;
    for (std::size_t run = 0; run < selected.size() && hasNumbers; ++run)
    {
      const RunCourse course = runs.course(run, column, -1);
      changes = changes || !isConstant(course);
      study.columns.back().push_back(course.y[0]);
    }
    if (changes)
      study.changing.push_back(k);
    if (std::find(asked.begin(), asked.end(), column) != asked.end())
      study.chosenBy.push_back(k);
  }
  return study;
}

std::vector<DistributionGroup> drawnGroups(PlotContainer& container, const ComparedStudy& study,
                                           const Comparison& comparison)
{
  const std::size_t runs = study.selected.size();
  std::vector<bool> selected(runs);
  std::vector<bool> others(runs);
  for (std::size_t run = 0; run < runs; ++run)
  {
    const bool counts = comparison.uncounted.empty() || comparison.uncounted[run] == 0;
    selected[run] = counts && study.selected[run] != 0;
    others[run] = counts && study.selected[run] == 0;
  }
  const auto isAny = [](const std::vector<bool>& members)
  { return std::find(members.begin(), members.end(), true) != members.end(); };
  GroupValues values(container, study);
  std::vector<DistributionGroup> groups{values.of(std::vector<bool>(runs, true), black)};
  if (!isAny(selected))
    return groups;
  groups.push_back(values.of(selected, colorOfSelectedRuns));
  if (isAny(others))
    groups.push_back(values.of(others, colorOfOtherRuns));
  return groups;
}

bool areSame(const std::vector<DistributionGroup>& ones,
             const std::vector<DistributionGroup>& others)
{
  return std::equal(ones.begin(), ones.end(), others.begin(), others.end(),
                    [](const DistributionGroup& one, const DistributionGroup& other)
                    {
                      return one.color == other.color &&
                             std::equal(one.values.begin(), one.values.end(), other.values.begin(),
                                        other.values.end(), areEqual);
                    });
}

} // namespace Talmesh::app
