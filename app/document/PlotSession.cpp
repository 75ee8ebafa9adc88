#include "app/document/PlotSession.h"

#include "app/comparison/ComparisonChoice.h"
#include "app/document/RunNormaliser.h"

namespace Talmesh::app
{

SessionSource sessionOf(const Study& study, PlotContainer& container, const PlotChoice& choice,
                        const RunNormaliser* normaliser)
{
  SessionSource source{study, container, choice.legend, choice.logY, {}, {}, {}, {}, {}, {}, {}};
  const ComparisonChoice comparison = comparisonChoiceOf(container);
  source.tests = {static_cast<int>(comparison.comparedBy), static_cast<int>(comparison.adjustment),
                  comparison.halves};
  if (normaliser)
  {
    source.normalised = normaliser->normalised();
    source.original = [normaliser] { return normaliser->originalTable(); };
  }
  return source;
}

std::string saveSession(const QString& path, const Study& study, PlotContainer& container,
                        const PlotChoice& choice, const RunNormaliser* normaliser)
{
  return saveSession(path, sessionOf(study, container, choice, normaliser));
}

PlotChoice restoredChoice(const RestoredSession& session, const PlotContainer& container)
{
  PlotChoice choice = choiceOf(container);
  // Only an XY chart would know them.
  choice.legend = session.settings.legend;
  choice.logY = session.settings.logY;
  return choice;
}

void restoreTests(const RestoredSession& session, PlotContainer& container)
{
  ComparisonChoice choice = comparisonChoiceOf(container);
  const SessionTests& tests = session.settings.tests;
  choice.comparedBy = static_cast<stats::ComparedBy>(tests.comparedBy);
  choice.adjustment = static_cast<stats::Adjustment>(tests.adjustment);
  choice.halves = tests.halves;
  writeComparisonChoice(container, choice);
}

} // namespace Talmesh::app
