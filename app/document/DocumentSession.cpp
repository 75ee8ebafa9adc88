#include "app/document/Document.h"
#include "app/document/PlotSession.h"

/// What a session keeps of a document, and brings back.
namespace Talmesh::app
{

void Document::restore(const RestoredSession& session)
{
  PlotContainer& container = *shown.container;
  restoreSettings(session, container);
  restoreTests(session, container);
  compared.setLookedBefore(static_cast<std::size_t>(session.settings.tests.looked));
  grouped.restoreNormalised(session.settings.normalised);
  grouped.restore(session.settings.groups);
  keptSelections.restore(session.settings.kept);
  shown.choice = restoredChoice(session, container);
  summarise();
  // Normalising has forgotten the window.
  restoreWindow(session, container);
  container.withoutDrawing([&] { restoreSelection(session, container); });
}

std::optional<SessionSource> Document::sessionSource()
{
  const Shown& opened = shown.study.chart ? aside : shown;
  if (!opened.container || !(opened.study.runs || opened.study.table))
    return {};
  SessionSource source =
      sessionOf(opened.study, *opened.container, opened.choice, &grouped.runNormaliser());
  source.groups = grouped.state();
  source.kept = keptSelections.list();
  source.words = selected.followedWords();
  source.tests.looked = static_cast<int>(compared.selections());
  return source;
}

std::string Document::save(const QString& path, QByteArray* end)
{
  const std::optional<SessionSource> source = sessionSource();
  return source ? saveSession(path, *source, end) : std::string();
}

} // namespace Talmesh::app
