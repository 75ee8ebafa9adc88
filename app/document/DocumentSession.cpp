#include "app/document/AskedParameters.h"
#include "app/document/Document.h"
#include "app/document/PlotSession.h"

#include <array>
#include <utility>

/// What a session keeps of a document, and brings back.
namespace Talmesh::app
{

namespace
{

constexpr std::array<std::pair<SelectionTool, const char*>, 3> toolKeys = {
    {{SelectionTool::Rectangle, "rectangle"},
     {SelectionTool::Lasso, "lasso"},
     {SelectionTool::Line, "line"}}};
constexpr std::array<std::pair<GestureRule, const char*>, 2> ruleKeys = {
    {{GestureRule::Through, "through"}, {GestureRule::Inside, "inside"}}};

template <typename Keys, typename Value>
const char* keyOf(const Keys& keys, Value value)
{
  for (const auto& [known, key] : keys)
    if (known == value)
      return key;
  return "";
}

/// The fallback for a key that nobody knows.
template <typename Keys, typename Value>
Value valueOf(const Keys& keys, const std::string& wanted, Value fallback)
{
  for (const auto& [value, key] : keys)
    if (key == wanted)
      return value;
  return fallback;
}

} // namespace

void Document::restore(const RestoredSession& session)
{
  PlotContainer& container = *shown.container;
  restoreSettings(session, container);
  restoreTests(session, container);
  compared.setLookedBefore(static_cast<std::size_t>(session.settings.tests.looked));
  grouped.restoreNormalised(session.settings.normalised);
  grouped.restore(session.settings.groups);
  keptSelections.restore(session.settings.kept);
  viewed = session.settings.views;
  RunGestures& gestures = selected.gestures();
  gestures.setTool(valueOf(toolKeys, viewed.tool, gestures.tool()));
  gestures.setRule(valueOf(ruleKeys, viewed.rule, gestures.rule()));
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
  source.asked = askedBeside(source.words, *opened.container, selected.followedConditions());
  source.steps = selected.followedSteps();
  source.views = viewed;
  source.views.tool = keyOf(toolKeys, selected.gestures().tool());
  source.views.rule = keyOf(ruleKeys, selected.gestures().rule());
  source.tests.looked = static_cast<int>(compared.selections());
  return source;
}

std::string Document::save(const QString& path, QByteArray* end)
{
  const std::optional<SessionSource> source = sessionSource();
  return source ? saveSession(path, *source, end) : std::string();
}

} // namespace Talmesh::app
