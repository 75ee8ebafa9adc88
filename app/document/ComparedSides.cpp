#include "app/document/ComparedSides.h"

#include "app/comparison/ReplicateLabels.h"
#include "app/document/AskedParameters.h"
#include "app/document/RunConditions.h"
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

const KeptSelection* findKept(const std::vector<KeptSelection>& kept, const std::string& name)
{
  const auto found = std::find_if(kept.begin(), kept.end(),
                                  [&name](const KeptSelection& selection)
                                  { return !name.empty() && selection.name == name; });
  return found == kept.end() ? nullptr : &*found;
}

ComparedSide sideOf(const KeptSelection& kept)
{
  const auto part = [&kept](int shift)
  { return static_cast<unsigned char>(kept.colour >> shift & 0xFFU); };
  return {kept.name, kept.runs, kept.words, {part(16), part(8), part(0)}, conditionsOn(kept.asked)};
}

/// The condition of a side; one that selects nothing where there is none, or it cannot be read.
/// @param isKnown false from now on unless it tells of any run whether it is selected. Nobody need
/// look: each run is asked by itself, so that in any part those meet it that are selected there
RunFilter filterOf(const ComparedSide& side, const TableRuns& runs, bool& isKnown)
{
  FilterFault fault;
  if (side.words.empty())
  {
    isKnown = false;
    return {};
  }
  RunFilter filter = RunFilter::read(side.words, runs, fault);
  isKnown = isKnown && fault.text.empty() && !filter.listsRuns();
  return filter;
}

void addColumns(const std::vector<int>& further, std::vector<int>& columns)
{
  columns.insert(columns.end(), further.begin(), further.end());
}

/// The runs that are compared, each in one group at most.
void divide(const ComparedSides& sides, ComparedStudy& study)
{
  const std::vector<bool>& selected = sides.selected.runs;
  study.selected.assign(selected.begin(), selected.end());
  study.sides.selected = sides.selected.name;
  if (!sides.others)
    return;
  study.sides.others = sides.others->name;
  study.leftOut.resize(selected.size(), 0);
  for (std::size_t run = 0; run < selected.size(); ++run)
  {
    study.leftOut[run] = selected[run] == sides.others->runs[run] ? 1 : 0;
    study.inBoth += selected[run] && sides.others->runs[run] ? 1 : 0;
  }
}

bool isAmong(const std::vector<std::size_t>& positions, std::size_t position)
{
  return std::find(positions.begin(), positions.end(), position) != positions.end();
}

/// Missing values are equal. Each is compared with the one behind it, all at once: of many points
/// one call for each takes longer than all else that is said of a selection.
bool isConstant(const RunCourse& course)
{
  return course.size < 2 ||
         std::memcmp(course.y, course.y + 1, (course.size - 1) * sizeof(double)) == 0;
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
      group.values.push_back(isAmong(study.changing, k) ? ofPoints(k, members)
                                                        : ofRuns(k, members));
    return group;
  }

private:
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

std::array<unsigned char, 3> ComparedSides::colorOfOthers() const
{
  if (others)
    return others->color;
  return selected.name.empty() ? colorOfOtherRuns : colorOfRest;
}

ComparedSides comparedSides(PlotContainer& container, const ComparisonChoice& choice,
                            const std::vector<KeptSelection>& kept, const std::string& words)
{
  ComparedSides sides;
  if (const KeptSelection* first = findKept(kept, choice.compared))
    sides.selected = sideOf(*first);
  else
    sides.selected = {{}, TableRuns(container).selected(), words, colorOfSelectedRuns};
  if (const KeptSelection* second = findKept(kept, choice.comparedWith))
    sides.others = sideOf(*second);
  return sides;
}

std::string chooseSides(PlotContainer& container, const PlotWishes& wishes, KeptSelections& kept)
{
  if (!wishes.with.empty() && TableRuns(container).numberOfRuns() == 0)
    return "--with: this table has no runs to compare";
  ComparisonChoice choice = comparisonChoiceOf(container);
  choice.comparedBy = wishes.comparedBy.value_or(choice.comparedBy);
  choice.adjustment = wishes.adjustment.value_or(choice.adjustment);
  choice.halves = choice.halves || wishes.halves;
  choice.seed = wishes.seed.value_or(choice.seed);
  choice.design = wishes.design.value_or(choice.design);
  if (!wishes.with.empty() && !findKept(kept.list(), wishes.with))
  {
    const TableRuns runs(container);
    FilterFault fault;
    const RunFilter filter = RunFilter::read(wishes.with, runs, fault);
    if (!fault.text.empty())
      return describe(fault, wishes.with);
    std::vector<KeptSelection> list = kept.list();
    list.push_back({wishes.with, kept.freeColour(), filter.select(runs, {}).value(), wishes.with});
    if (!kept.hasRoom())
      return "--with: there are as many kept selections as there can be";
    kept.restore(list);
    choice.comparedWith = kept.list().back().name;
  }
  else if (!wishes.with.empty())
    choice.comparedWith = wishes.with;
  writeComparisonChoice(container, choice);
  return {};
}

ComparedStudy comparedStudy(PlotContainer& container, const ComparedSides& sides, bool byWords)
{
  ComparedStudy study;
  const TableRuns runs(container);
  study.byWords = byWords;
  const RunFilter filter = filterOf(sides.selected, runs, study.byWords);
  RunFilter second;
  if (sides.others)
    second = filterOf(*sides.others, runs, study.byWords);
  std::vector<int> asked = filter.columns();
  addColumns(second.columns(), asked);
  std::vector<std::string> conditions = sides.selected.conditions;
  if (sides.others)
    conditions.insert(conditions.end(), sides.others->conditions.begin(),
                      sides.others->conditions.end());
  for (const std::string& condition : conditions)
  {
    FilterFault fault;
    addColumns(RunFilter::read(condition, runs, fault).columns(), asked);
  }
  divide(sides, study);
  for (const int column : container.getMetaData()->parameterColumns)
  {
    const std::size_t k = study.names.size();
    study.names.push_back(shownName(plot::columnName(container.getTable(), column)));
    study.columns.emplace_back();
    const bool hasNumbers = plot::doubleColumn(container.getTable(), column) != nullptr;
    bool changes = !hasNumbers;
    for (std::size_t run = 0; run < study.selected.size() && hasNumbers; ++run)
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
  study.labels = replicateLabels(study);
  return study;
}

std::vector<DistributionGroup> drawnGroups(PlotContainer& container, const ComparedStudy& study,
                                           const Comparison& comparison, const ComparedSides& sides)
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
  GroupValues values(container, study);
  std::vector<DistributionGroup> groups{values.of(std::vector<bool>(runs, true), black)};
  if (!isAny(selected))
    return groups;
  groups.push_back(values.of(selected, sides.selected.color));
  if (isAny(others))
    groups.push_back(values.of(others, sides.colorOfOthers()));
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
