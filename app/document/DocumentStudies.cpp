#include "app/document/AskedParameters.h"
#include "app/document/ComparedSides.h"
#include "app/document/Document.h"
#include "app/document/PlotSession.h"
#include "app/document/ShownChart.h"
#include "app/document/ShownStudy.h"
#include "app/document/TableRuns.h"

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
  if (failure.empty() && !wishes.select.empty())
    container.withoutDrawing([&] { failure = selectWhere(container, wishes.select); });
  if (failure.empty())
    failure = chooseSides(container, wishes, keptSelections);
  if (failure.empty())
    shown.choice = wished;
  // The history begins with what is restored, whole runs of it, as they are drawn.
  SelectionStart start;
  if (opened.session && wishes.select.empty())
    start = {opened.session->settings.words, conditionsOn(opened.session->settings.asked),
             opened.session->settings.steps};
  else
    start.words = wordsOfAny(wishes.select);
  selected.follow(&container, start);
  drawSilently();
  return failure;
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
