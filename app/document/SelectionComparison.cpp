#include "app/document/SelectionComparison.h"

#include "app/comparison/ComparisonText.h"
#include "app/document/ComparedSides.h"
#include "app/document/DrawnGroups.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <algorithm>
#include <cmath>

namespace Talmesh::app
{

namespace
{

std::size_t fingerprint(const ComparedStudy& study)
{
  std::string groups(study.selected.begin(), study.selected.end());
  groups.append(study.leftOut.begin(), study.leftOut.end());
  return std::hash<std::string>()(groups);
}

/// Whether another choice asks for other numbers than those that are there.
bool isSameTest(const ComparisonChoice& one, const ComparisonChoice& other)
{
  return one.comparedBy == other.comparedBy && one.adjustment == other.adjustment &&
         one.halves == other.halves && one.seed == other.seed && one.design == other.design &&
         (!one.halves ||
          (one.pThreshold == other.pThreshold && one.ksThreshold == other.ksThreshold));
}

std::vector<ParameterTest> testsOf(const Comparison& comparison, std::size_t parameters)
{
  std::vector<ParameterTest> tests(parameters, {stats::ParameterComparison::none, 0.0, {}});
  for (std::size_t k = 0; k < std::min(parameters, comparison.parameters.size()); ++k)
  {
    const ComparedParameter& row = comparison.parameters[k];
    const double effect = std::isnan(row.result.effect()) ? 0.0 : row.result.effect();
    tests[k] = {row.result.adjusted, effect, chartTitle(row).toStdString()};
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

SelectionComparison::~SelectionComparison()
{
  if (followed)
    followed->removeDrawingSteps(this);
}

void SelectionComparison::follow(PlotContainer* container)
{
  if (followed)
    followed->removeDrawingSteps(this);
  if (underWay && background.cancel)
    background.cancel();
  underWay = false;
  followed = container;
  compared.reset();
  comparison = {};
  handed.clear();
  drawn.clear();
  bars.clear();
  seen.clear();
  lookedBefore = 0;
  isRestored = false;
  if (!container)
    return;
  container->addPreparation(this, [this] { update(); });
  container->addCompletion(this,
                           [this]
                           {
                             if (showsDistributions())
                               drawLevelBars(*followed, bars);
                           });
}

void SelectionComparison::setLookedBefore(std::size_t count)
{
  lookedBefore = count;
  isRestored = true;
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
  const ComparisonChoice chosen = comparisonChoiceOf(*followed);
  sides = comparedSides(*followed, chosen, kept ? kept() : std::vector<KeptSelection>(),
                        words ? words() : std::string());
  if (conditions && sides.selected.name.empty())
    sides.selected.conditions = conditions();
  ComparedStudy study = comparedStudy(*followed, sides, chosen.halves);
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
  if (underWay && background.cancel)
    background.cancel();
  underWay = false;
  if (comparisonState(*compared) == Comparison::State::compared)
  {
    seen.insert(fingerprint(*compared));
    lookedBefore -= isRestored && lookedBefore > 0 ? 1 : 0;
  }
  isRestored = false;
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
  if (background.cancel)
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
  const bool drawsOthers = handOverGroups();
  return drawsOthers ||
         !std::equal(before.begin(), before.end(), handed.begin(), handed.end(), isSame);
}

bool SelectionComparison::showsDistributions() const
{
  return followed && viewerStyle(followed->getMetaData()->getPlotStyle()).showsDistributions;
}

/// @return as handOver()
bool SelectionComparison::handOverGroups()
{
  // Another style than this one shows none; they are handed over before it is drawn.
  if (!showsDistributions())
    return false;
  const std::vector<DrawnRunGroup> runs = drawnRunGroups(*compared, comparison, sides);
  std::vector<DistributionGroup> groups = drawnGroups(*followed, *compared, runs);
  std::vector<LevelShares> shares = levelShares(*compared, runs);
  if (areSame(groups, drawn) && shares == bars)
    return false;
  drawn = std::move(groups);
  bars = std::move(shares);
  followed->setDistributionGroups(drawn);
  return true;
}

} // namespace Talmesh::app
