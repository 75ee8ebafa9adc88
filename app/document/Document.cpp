#include "app/document/Document.h"

#include "app/document/ColouredRuns.h"
#include "app/document/FeatureColumns.h"
#include "app/document/ShownChart.h"
#include "app/document/ShownStudy.h"
#include "app/import/SystemMemory.h"
#include "app/memory/PaintingMemory.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"

#include <QScopedValueRollback>

#include <utility>

namespace Talmesh::app
{

Document::Document(Stage where, PlotContainer* before, QObject* parent)
    : QObject(parent)
    , stage(std::move(where))
    , grouped(selected.undoStack())
    , keptSelections(selected.undoStack())
    , isThere(hasMemory)
{
  grouped.setKept([this]
                  { return groupsOfKept(keptSelections.list(), keptSelections.numberOfRuns()); });
  connect(&keptSelections, &KeptSelections::changed, this, &Document::followKept);
  connect(&axisOrder, &AxisOrder::changed, this, &Document::followAxes);
  connect(&shownPair, &ShownPair::changed, this, &Document::followPair);
  connect(&selected, &SelectionController::changing, this, [this] { beforeSelection = drawings; });
  connect(&selected, &SelectionController::changed, this, &Document::followSelection);
  compared.setWords([this] { return selected.followedWords(); });
  compared.setConditions([this] { return selected.followedConditions(); });
  compared.setKept([this] { return keptSelections.list(); });
  connect(&compared, &SelectionComparison::found, this, &Document::draw);
  summary.search().setFound([this] { draw(); });
  connect(&keptSelections, &KeptSelections::renamed, this, &Document::followName);
  connect(&grouped, &GroupedRuns::valuesChanged, this, &Document::drawNewValues);
  shown.container = before;
  selected.follow(before);
  grouped.follow(before, 0);
}

Document::~Document() = default;

/// Puts a container where it is seen.
void Document::show(PlotContainer* container)
{
  if (shown.container)
    shown.container->removeDrawingSteps(this);
  disconnect(settingsHeard);
  ownChart = nullptr;
  shown.container = container;
  container->addCondition(this, [this] { return mayDraw(); });
  container->addPreparation(this, [this] { summarise(); });
  container->addCompletion(this,
                           [this]
                           {
                             ++drawings;
                             axisOrder.watch(shown.container->getItem());
                             shownPair.watch(shown.container->getItem());
                             error.clear();
                           });
  stage(*container);
  // Connected after the container's own answer, which draws.
  settingsHeard = connect(container->getMetaData(), &PlotMetaData::redrawNeeded, this,
                          &Document::followSettings);
}

/// Asked when the settings say what will be drawn, also of drawings that the container begins by
/// itself.
bool Document::mayDraw()
{
  if (waits)
    return false;
  if (isThere(memoryToDraw(*shown.container)))
    return true;
  error = cannotDraw(missingMemory());
  return false;
}

/// Draws.
/// @return as `whyNotDone`, also of a drawing that was refused
std::string Document::whyNotDrawn(const std::function<void()>& drawing)
{
  error.clear();
  const std::string failure = whyNotDone(drawing);
  return failure.empty() ? error : failure;
}

/// The container has drawn what was changed in its settings.
void Document::followSettings()
{
  if (shown.study.chart)
  {
    shown.choice = choiceOf(*shown.container);
    emit choiceChanged();
  }
  announceDrawing();
}

/// The container draws what is selected only where there are parameters to compare.
void Document::followSelection()
{
  if (!shown.study.chart && drawings == beforeSelection)
    drawSilently();
  announceDrawing();
}

/// Containers that the document did not make are not its own.
void Document::drop(PlotContainer* container)
{
  if (container && container->parent() == this)
    container->deleteLater();
}

int Document::variant() const
{
  return ownChart ? ownChart->variant() : 0;
}

QString Document::size() const
{
  const Study& study = shown.study;
  const bool any = shown.container && (study.runs || study.table || study.chart);
  return any ? QString::fromStdString(studySize(study, *shown.container)) : QString();
}

QString Document::remark() const
{
  if (error.empty() && shown.container && !shown.study.chart)
    return remarkOn(shown.choice, *shown.container);
  return QString::fromStdString(error);
}

/// What charts of runs draw; values of the runs may be others since the last time.
void Document::summarise()
{
  if (!shown.container || shown.study.chart)
    return;
  shown.container->setSummary(summary.of(*shown.container, shown.choice));
  summary.setGroups(grouped.colouring().groupOfRun);
}

std::vector<int> Document::features() const
{
  if (!shown.container || shown.study.chart)
    return {};
  return featureColumns(*shown.container);
}

/// The chart shows the order already.
void Document::followAxes()
{
  shown.choice.axes = summary.columnsNamed(axisOrder.names());
  emit choiceChanged();
}

void Document::followPair()
{
  if (!shown.container || shown.study.chart)
    return;
  const RunGroups groups = grouped.colouring();
  if (groups.names.empty())
    return;
  colourPair(*shown.container, groups);
  emit drawn();
}

void Document::drawSilently()
{
  if (!shown.container || waits)
    return;
  const auto draw = [this] { return whyNotDrawn([this] { shown.container->redraw(); }); };
  if (!shown.study.chart)
  {
    summarise();
    error = applyChoice(*shown.container, shown.choice, draw);
    return;
  }
  error = draw();
  shown.choice = choiceOf(*shown.container);
}

/// What follows anyway is announced then.
void Document::announceDrawing()
{
  if (!waits)
    emit drawn();
}

void Document::draw()
{
  drawSilently();
  announceDrawing();
}

void Document::choose(const PlotChoice& choice)
{
  shown.choice = choice;
  drawSilently();
  emit choiceChanged();
  announceDrawing();
}

void Document::compareBy(const ComparisonChoice& choice)
{
  if (shown.container)
    writeComparisonChoice(*shown.container, choice);
  draw();
}

/// A kept selection that is compared remains so under another name.
void Document::followName(const std::string& before, const std::string& now)
{
  PlotContainer* container = shown.study.chart ? aside.container : shown.container;
  if (!container)
    return;
  ComparisonChoice choice = comparisonChoiceOf(*container);
  for (std::string* name : {&choice.compared, &choice.comparedWith})
    if (*name == before)
      *name = now;
  writeComparisonChoice(*container, choice);
}

/// Runs and colours of what is compared, and those that charts show, may be others.
void Document::followKept()
{
  const bool isCompared = shown.container && !shown.study.chart &&
                          !(comparisonChoiceOf(*shown.container).compared.empty() &&
                            comparisonChoiceOf(*shown.container).comparedWith.empty());
  if (isCompared || grouped.state().look.keptColours)
    drawSilently();
  emit drawn();
}

void Document::chooseVariant(int variant)
{
  if (ownChart)
    ownChart->choose(variant);
  draw();
}

void Document::together(const std::function<void()>& changes)
{
  {
    const QScopedValueRollback<bool> waiting(waits, true);
    changes();
  }
  draw();
}

/// The tables of selected and of other runs are copies of the plot's: they are made anew, which
/// draws where there are parameters to compare.
void Document::drawNewValues()
{
  emit valuesChanged();
  if (!shown.container)
    return;
  const unsigned long before = drawings;
  shown.container->annotationUpdate();
  if (drawings == before)
    drawSilently();
  announceDrawing();
}

} // namespace Talmesh::app
