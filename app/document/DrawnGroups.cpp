#include "app/document/DrawnGroups.h"

#include "app/document/TableRuns.h"
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

bool haveEqualBytes(const std::vector<double>& one, const std::vector<double>& other)
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

  DistributionGroup of(const DrawnRunGroup& members) const
  {
    DistributionGroup group;
    group.color = members.color;
    for (std::size_t k = 0; k < study.columns.size(); ++k)
      group.values.push_back(valuesOf(k, members.runs));
    return group;
  }

private:
  std::vector<double> valuesOf(std::size_t k, const std::vector<bool>& members) const
  {
    if (study.isCategory(k))
      return {};
    const auto& changing = study.changing;
    const bool changes = std::find(changing.begin(), changing.end(), k) != changing.end();
    return changes ? ofPoints(k, members) : ofRuns(k, members);
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

std::vector<DrawnRunGroup> drawnRunGroups(const ComparedStudy& study, const Comparison& comparison,
                                          const ComparedSides& sides)
{
  const std::size_t runs = study.selected.size();
  const std::vector<char>& uncounted =
      comparison.uncounted.empty() ? study.leftOut : comparison.uncounted;
  std::vector<bool> selected(runs);
  std::vector<bool> others(runs);
  for (std::size_t run = 0; run < runs; ++run)
  {
    const bool counts = uncounted.empty() || uncounted[run] == 0;
    selected[run] = counts && study.selected[run] != 0;
    others[run] = counts && study.selected[run] == 0;
  }
  const auto isAny = [](const std::vector<bool>& members)
  { return std::find(members.begin(), members.end(), true) != members.end(); };
  std::vector<DrawnRunGroup> groups{{std::vector<bool>(runs, true), black}};
  if (!isAny(selected))
    return groups;
  groups.push_back({selected, sides.selected.color});
  if (isAny(others))
    groups.push_back({others, sides.colorOfOthers()});
  return groups;
}

std::vector<DistributionGroup> drawnGroups(PlotContainer& container, const ComparedStudy& study,
                                           const std::vector<DrawnRunGroup>& groups)
{
  const GroupValues values(container, study);
  std::vector<DistributionGroup> drawn;
  for (const DrawnRunGroup& group : groups)
    drawn.push_back(values.of(group));
  return drawn;
}

bool areSame(const std::vector<DistributionGroup>& ones,
             const std::vector<DistributionGroup>& others)
{
  return std::equal(ones.begin(), ones.end(), others.begin(), others.end(),
                    [](const DistributionGroup& one, const DistributionGroup& other)
                    {
                      return one.color == other.color &&
                             std::equal(one.values.begin(), one.values.end(), other.values.begin(),
                                        other.values.end(), haveEqualBytes);
                    });
}

} // namespace Talmesh::app
