#include "app/document/PlotSession.h"

#include "app/document/RunNormaliser.h"

namespace Talmesh::app
{

SessionSource sessionOf(const Study& study, PlotContainer& container, const PlotChoice& choice,
                        const RunNormaliser* normaliser)
{
  SessionSource source{study, container, choice.legend, choice.logY, {}, {}, {}, {}, {}, {}};
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

} // namespace Talmesh::app
