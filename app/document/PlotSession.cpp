#include "app/document/PlotSession.h"

#include "app/comparison/ComparisonChoice.h"
#include "app/comparison/TestNames.h"
#include "app/document/FeatureColumns.h"
#include "app/document/RunNormaliser.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr const char* saltelliKey = "saltelli";

std::vector<SessionColumn> entriesOf(const std::vector<int>& columns)
{
  std::vector<SessionColumn> entries;
  for (const int column : columns)
  {
    const std::optional<RunFeature> feature = featureIn(column);
    entries.push_back({itemOf(column), feature ? functionOf(*feature) : ""});
  }
  return entries;
}

/// The settings of the plot have the columns of the table.
std::vector<SessionColumn> entriesOfFeatures(const std::vector<int>& columns)
{
  if (std::none_of(columns.begin(), columns.end(), isFeature))
    return {};
  return entriesOf(columns);
}

/// Those that the container has; a feature that nobody knows is none.
std::vector<int> columnsOf(const std::vector<SessionColumn>& entries,
                           const PlotContainer& container)
{
  std::vector<int> columns;
  const auto add = [&columns](int column)
  {
    if (std::find(columns.begin(), columns.end(), column) == columns.end())
      columns.push_back(column);
  };
  for (const SessionColumn& entry : entries)
  {
    if (entry.feature.empty())
      add(entry.column);
    for (const RunFeature feature : runFeatures())
      if (const int column = featureColumn(entry.column, feature);
          functionOf(feature) == entry.feature && isFeatureOf(container, column))
        add(column);
  }
  return columns;
}

} // namespace

SessionSource sessionOf(const Study& study, PlotContainer& container, const PlotChoice& choice,
                        const RunNormaliser* normaliser)
{
  SessionSource source{study, container, choice.legend, choice.logY, {}, {}, {}, {}, {}, {}, {}};
  const ComparisonChoice comparison = comparisonChoiceOf(container);
  source.tests = {comparedByNames().value(static_cast<int>(comparison.comparedBy)).key,
                  adjustmentNames().value(static_cast<int>(comparison.adjustment)).key,
                  comparison.halves,
                  static_cast<double>(comparison.seed),
                  comparison.compared,
                  comparison.comparedWith};
  if (comparison.design.isSaltelli)
  {
    source.tests.design = QLatin1String(saltelliKey);
    source.tests.designedParameters = static_cast<int>(comparison.design.parameters);
  }
  source.shown = {entriesOfFeatures({choice.x}), entriesOfFeatures(choice.y),
                  entriesOfFeatures({choice.z}), entriesOf(choice.axes)};
  if (normaliser)
  {
    source.normalised = normaliser->normalised();
    source.original = [normaliser] { return normaliser->originalTable(); };
  }
  return source;
}

PlotChoice restoredChoice(const RestoredSession& session, const PlotContainer& container)
{
  PlotChoice choice = choiceOf(container);
  // Only an XY chart would know them.
  choice.legend = session.settings.legend;
  choice.logY = session.settings.logY;
  const SessionColumns& shown = session.settings.shown;
  choice.axes = columnsOf(shown.axes, container);
  if (const std::vector<int> y = columnsOf(shown.y, container); !y.empty())
    choice.y = y;
  for (const int x : columnsOf(shown.x, container))
    choice.x = x;
  for (const int z : columnsOf(shown.z, container))
    choice.z = z;
  return choice;
}

void restoreTests(const RestoredSession& session, PlotContainer& container)
{
  ComparisonChoice choice = comparisonChoiceOf(container);
  const SessionTests& tests = session.settings.tests;
  choice.comparedBy =
      static_cast<stats::ComparedBy>(positionOf(tests.comparedBy, comparedByNames()));
  choice.adjustment =
      static_cast<stats::Adjustment>(positionOf(tests.adjustment, adjustmentNames()));
  choice.halves = tests.halves;
  if (const auto seed = static_cast<std::uint64_t>(tests.seed); seed <= largestSeed)
    choice.seed = seed;
  choice.design = {tests.design == QLatin1String(saltelliKey),
                   static_cast<std::size_t>(tests.designedParameters)};
  choice.compared = tests.compared;
  choice.comparedWith = tests.comparedWith;
  writeComparisonChoice(container, choice);
}

} // namespace Talmesh::app
