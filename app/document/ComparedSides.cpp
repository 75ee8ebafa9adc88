#include "app/document/ComparedSides.h"

#include "app/comparison/ReplicateLabels.h"
#include "app/document/AskedParameters.h"
#include "app/document/RunConditions.h"
#include "app/document/ShownCategories.h"
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

/// The texts that a column's numbers stand for; none for numbers that are numbers.
std::vector<std::string> levelsOf(const PlotContainer& container, const std::string& column)
{
  for (const Category& category : categoriesOf(container))
    if (category.column == column)
      return category.levels;
  return {};
}

/// Missing values are equal. Each is compared with the one behind it, all at once: of many points
/// one call for each takes longer than all else that is said of a selection.
bool isConstant(const RunCourse& course)
{
  return course.size < 2 ||
         std::memcmp(course.y, course.y + 1, (course.size - 1) * sizeof(double)) == 0;
}

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
    const std::string name = plot::columnName(container.getTable(), column);
    study.names.push_back(shownName(name));
    study.levels.push_back(levelsOf(container, name));
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

} // namespace Talmesh::app
