#include "app/document/AskedParameters.h"
#include "app/document/ComparedSides.h"
#include "app/document/Document.h"
#include "app/document/PlotSession.h"
#include "app/document/RunConditions.h"
#include "app/document/ShownChart.h"
#include "app/document/ShownStudy.h"

#include <utility>

/// In which order a document turns to another study.
namespace Talmesh::app
{

std::string Document::open(const OpenedStudy& opened, const PlotWishes& wishes)
{
  leave(opened.study.chart != nullptr);
  // A container remembers much of what it showed before, so each study gets its own.
  auto* container = new PlotContainer(this);
  show(container);
  shown = {opened.study, container, {}, {}};
  std::string failure;
  if (shown.study.chart)
    openOwnChart();
  else
    failure = openData(opened, wishes);
  emit studyChanged();
  announceDrawing();
  return failure;
}

std::string Document::openData(const OpenedStudy& opened, const PlotWishes& wishes)
{
  PlotContainer& container = *shown.container;
  showStudy(shown.study, container);
  chooseOpeningStyle(container, wishes);
  grouped.follow(&container, runsOverTime(shown.study));
  keptSelections.follow(TableRuns(container).numberOfRuns());
  compared.follow(&container);
  shown.choice = choiceOf(container);
  viewed = {};
  if (opened.session)
  {
    restore(*opened.session);
    // What is asked for is not the selection that was looked at last.
    if (!wishes.select.empty() || !wishes.with.empty())
      compared.setLookedBefore(static_cast<std::size_t>(opened.session->settings.tests.looked) + 1);
  }
  shown.columns = choosableColumns(container);
  PlotChoice wished = shown.choice;
  std::string failure = chooseByName(container, wishes, wished);
  bool isSelected = true;
  if (failure.empty() && !wishes.select.empty())
  {
    const Result<bool> done = selectWished(wishes.select);
    failure = done.error();
    isSelected = !done.hasValue() || done.value();
  }
  if (failure.empty())
    failure = chooseSides(container, wishes, keptSelections);
  if (failure.empty())
    shown.choice = wished;
  // The history begins with what is restored, whole runs of it, as they are drawn.
  SelectionStart start;
  if (opened.session && (wishes.select.empty() || !isSelected))
    start = {opened.session->settings.words, conditionsOn(opened.session->settings.asked),
             opened.session->settings.steps};
  else if (isSelected)
    start.words = wordsOfAny(wishes.select);
  selected.follow(&container, start);
  if (failure.empty() && !isSelected)
    selected.selectWhere(wordsOfAny(wishes.select), RunCombination::Replace);
  drawSilently();
  return failure;
}

/// @return whether the runs that meet any of the conditions are selected; otherwise it takes long
/// to look for them, or why they cannot be
Result<bool> Document::selectWished(const std::vector<std::string>& conditions)
{
  TableRuns runs(*shown.container);
  // Words that are too long for anyone cannot be looked for later.
  const bool mayWait = !wordsOfAny(conditions).empty();
  const Result<std::vector<bool>> hit =
      runsWhere(runs, conditions, mayWait ? selected.impatience() : ImportProgress());
  if (hit.isCancelled())
    return false;
  if (!hit.hasValue())
    return Result<bool>::without(hit);
  shown.container->withoutDrawing([&] { runs.select(hit.value()); });
  return true;
}

void Document::openOwnChart()
{
  PlotContainer& container = *shown.container;
  showStudy(shown.study, container);
  ownChart = new ShownChart(shown.study.chart, container);
  ownChart->choose(ownChart->variant());
  selected.visit(&container);
  drawSilently();
  shown.columns = container.getLabels();
}

/// Puts what is now shown aside, or away.
void Document::leave(bool forOwnChart)
{
  if (forOwnChart && (shown.study.runs || shown.study.table))
  {
    aside = shown;
    return;
  }
  drop(shown.container);
  if (forOwnChart)
    return;
  grouped.leave();
  drop(aside.container);
  aside = {};
}

void Document::returnToRuns()
{
  if (!canReturnToRuns())
    return;
  drop(shown.container);
  const Shown runs = std::exchange(aside, {});
  show(runs.container);
  shown = runs;
  selected.endVisit();
  drawSilently();
  emit studyChanged();
  announceDrawing();
}

} // namespace Talmesh::app
