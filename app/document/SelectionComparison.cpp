#include "app/document/SelectionComparison.h"

#include "app/comparison/ComparisonText.h"
#include "app/document/TableRuns.h"
#include "app/import/ColumnRoles.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>

namespace Talmesh::app
{

namespace
{

/// Missing values are equal.
bool isConstant(const RunCourse& course)
{
  return std::all_of(course.y, course.y + course.size,
                     [&course](double value)
                     { return std::memcmp(&value, course.y, sizeof(double)) == 0; });
}

std::size_t fingerprint(const std::vector<char>& selected)
{
  return std::hash<std::string_view>()({selected.data(), selected.size()});
}

/// Whether another choice asks for other numbers than those that are there.
bool isSameTest(const ComparisonChoice& one, const ComparisonChoice& other)
{
  return one.comparedBy == other.comparedBy && one.adjustment == other.adjustment &&
         one.halves == other.halves &&
         (!one.halves ||
          (one.pThreshold == other.pThreshold && one.ksThreshold == other.ksThreshold));
}

std::vector<ParameterTest> testsOf(const Comparison& comparison, std::size_t parameters)
{
  std::vector<ParameterTest> tests(parameters, {stats::ParameterComparison::none, 0.0, {}});
  for (std::size_t k = 0; k < std::min(parameters, comparison.parameters.size()); ++k)
  {
    const ComparedParameter& row = comparison.parameters[k];
    const double distance = std::isnan(row.result.distance) ? 0.0 : row.result.distance;
    tests[k] = {row.result.adjusted, distance, chartTitle(row).toStdString()};
  }
  return tests;
}

bool isSame(const ParameterTest& one, const ParameterTest& other)
{
  const bool areMissing = std::isnan(one.pValue) && std::isnan(other.pValue);
  return (areMissing || one.pValue == other.pValue) && one.statistic == other.statistic &&
         one.title == other.title;
}

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

SelectionComparison::~SelectionComparison()
{
  if (followed)
    followed->removeDrawingSteps(this);
}

void SelectionComparison::follow(PlotContainer* container)
{
  if (followed)
    followed->removeDrawingSteps(this);
  if (underWay)
    background.cancel();
  underWay = false;
  followed = container;
  compared.reset();
  comparison = {};
  handed.clear();
  seen.clear();
  if (container)
    container->addPreparation(this, [this] { update(); });
}

const Comparison& SelectionComparison::current()
{
  if (update())
    emit found();
  return comparison;
}

/// @return whether the charts must be drawn anew to say the same
bool SelectionComparison::update()
{
  if (!followed)
  {
    comparison = {};
    return false;
  }
  ComparedStudy study = comparedStudy(*followed, words ? words() : std::string());
  const ComparisonChoice chosen = comparisonChoiceOf(*followed);
  const bool isKnown = compared && *compared == study && isSameTest(choice, chosen);
  choice = chosen;
  if (isKnown)
  {
    applyThresholds(comparison, choice);
  }
  else
  {
    compared = std::move(study);
    begin();
  }
  return handOver();
}

void SelectionComparison::begin()
{
  if (underWay)
    background.cancel();
  underWay = false;
  if (comparisonState(*compared) == Comparison::State::compared)
    seen.insert(fingerprint(compared->selected));
  if (!background.start || comparisonState(*compared) != Comparison::State::compared ||
      !takesTime(*compared, choice))
  {
    comparison = compare(*compared, choice);
    return;
  }
  comparison = describe(*compared, choice, TestObstacle::pending);
  underWay = true;
  background.start([study = *compared, chosen = choice](const std::function<bool(double)>& progress)
                   { return compare(study, chosen, progress); },
                   [this](const Comparison& result) { take(result); });
}

void SelectionComparison::take(const Comparison& result)
{
  underWay = false;
  comparison = result;
  applyThresholds(comparison, choice);
  handOver();
  emit found();
}

void SelectionComparison::giveUp()
{
  if (!underWay)
    return;
  underWay = false;
  background.cancel();
  comparison = describe(*compared, choice, TestObstacle::cancelled);
  handOver();
  emit found();
}

/// @return whether that is something else than before
bool SelectionComparison::handOver()
{
  if (!followed)
    return false;
  const std::vector<ParameterTest> before = std::move(handed);
  handed = testsOf(comparison, followed->getMetaData()->parameterColumns.size());
  followed->setParameterTests(handed);
  return !std::equal(before.begin(), before.end(), handed.begin(), handed.end(), isSame);
}

} // namespace Talmesh::app
