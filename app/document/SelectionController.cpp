#include "app/document/SelectionController.h"

#include "plot/PlotContainer.h"
#include "vtk/RowSelections.h"

#include <vtkCommand.h>
#include <vtkIntArray.h>
#include <vtkTable.h>

#include <algorithm>
#include <numeric>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// Priority of an observer of the link.
constexpr float beforeAllOthers = 1.0F;

/// Each step keeps a bit per row.
constexpr int mostSteps = 100;

vtkIdType selectedRows(const PlotContainer& container)
{
  const auto flags = vtkSmartPointer<vtkIntArray>::Take(container.getCurrentSelection());
  if (!flags)
    return 0;
  const int* first = flags->GetPointer(0);
  return std::accumulate(first, first + flags->GetNumberOfValues(), vtkIdType(0));
}

/// For tables without runs.
void selectRows(PlotContainer& container, const std::vector<bool>& wanted)
{
  std::vector<vtkIdType> rows;
  for (std::size_t row = 0; row < wanted.size(); ++row)
    if (wanted[row])
      rows.push_back(static_cast<vtkIdType>(row));
  container.getAnnotationLink()->SetCurrentSelection(makeRowSelection(rows));
}

} // namespace

SelectionController::SelectionController(QObject* parent)
    : QObject(parent)
    , history(stack)
    , visitHistory(visitStack)
    , pointing([this](const PointedAt& meant, RunCombination how) { return select(meant, how); })
    , search([this](const std::vector<bool>& hit, const std::string& words, RunCombination how)
             { selectRuns(hit, words, how); },
             [this] { emit gaveUp(); })
    , telling(*this, [this] { emit changed(); })
{
  for (SelectionHistory* steps : {&history, &visitHistory})
    steps->setNaming(&SelectionController::stepToSelected);
  for (QUndoStack* steps : {&stack, &visitStack})
  {
    steps->setUndoLimit(mostSteps);
    group.addStack(steps);
  }
  group.setActiveStack(&stack);
}

SelectionController::~SelectionController()
{
  stopObserving();
  // The stacks leave it after the histories have gone, which whoever hears of it would ask for
  // words.
  group.blockSignals(true);
}

void SelectionController::follow(PlotContainer* another, const SelectionStart& start)
{
  earlier = start.steps;
  visitHistory.follow(nullptr);
  followed = another;
  observe(another, stack);
  history.follow(another);
  history.restart(start.words, start.asked);
  emit restarted();
}

void SelectionController::visit(PlotContainer* another)
{
  observe(another, visitStack);
  visitHistory.follow(another);
}

void SelectionController::endVisit()
{
  visitHistory.follow(nullptr);
  observe(followed, stack);
}

void SelectionController::observe(PlotContainer* observed, QUndoStack& itsStack)
{
  stopObserving();
  giveUp();
  container = observed;
  link = observed ? observed->getAnnotationLink() : nullptr;
  pointing.follow(observed);
  if (observed)
    observed->withoutDrawing([this] { makeWhole(); });
  if (link)
  {
    firstObserverTag = link->AddObserver(vtkCommand::AnnotationChangedEvent, this,
                                         &SelectionController::announce, beforeAllOthers);
    observerTag = link->AddObserver(vtkCommand::AnnotationChangedEvent, this,
                                    &SelectionController::announceLater);
  }
  group.setActiveStack(&itsStack);
}

void SelectionController::stopObserving()
{
  if (link)
  {
    link->RemoveObserver(firstObserverTag);
    link->RemoveObserver(observerTag);
  }
  link = nullptr;
}

/// Whoever selects rows, a client, a file or a chart of them, selects their runs.
/// @return whether others were selected, which has been announced
bool SelectionController::makeWhole()
{
  TableRuns runs(*container);
  if (runs.numberOfRuns() == 0 || runs.areSelectedWhole())
    return false;
  const std::vector<bool> selected = runs.selected();
  selectRuns(selected, runs.words(selected), RunCombination::Replace);
  return true;
}

/// Also those who select whole runs, all or none of them.
NamedStep SelectionController::stepToSelected(PlotContainer& changed)
{
  const TableRuns runs(changed);
  if (runs.numberOfRuns() == 0)
    return {};
  const std::vector<bool> selected = runs.selected();
  const std::string words = runs.words(selected);
  return {QString::fromStdString(stepText(RunCombination::Replace, selected, words)),
          {RunCombination::Replace, words}};
}

/// @return whether nobody else is to hear of it
bool SelectionController::announce(vtkObject*, unsigned long, void*)
{
  if (container && makeWhole())
    return true;
  if (search.isUnderWay())
    search.giveUpUnless(selectedRuns());
  emit changing();
  return false;
}

void SelectionController::announceLater()
{
  telling.ask();
}

void SelectionController::selectAll()
{
  if (!container)
    return;
  TableRuns runs(*container);
  if (runs.numberOfRuns() > 0)
    return runs.select(std::vector<bool>(runs.numberOfRuns(), true));
  const auto rows = static_cast<std::size_t>(container->getTable()->GetNumberOfRows());
  selectRows(*container, std::vector<bool>(rows, true));
}

void SelectionController::clear()
{
  if (container)
    selectRows(*container, {});
}

void SelectionController::invert()
{
  if (!container)
    return;
  TableRuns runs(*container);
  const bool ofRuns = runs.numberOfRuns() > 0;
  std::vector<bool> others = ofRuns
                                 ? runs.selected()
                                 : markedRows(container->getAnnotationLink()->GetCurrentSelection(),
                                              container->getTable());
  others.flip();
  const std::string turned = wordsOfOthers(words());
  const std::string said = ofRuns && turned.empty() ? runs.words(others) : turned;
  const QString named = QString::fromStdString(namedBy(tr("Invert Selection").toStdString(), said));
  const SelectionHistory::Step step(shownHistory(), named, {RunCombination::Replace, said, true});
  if (ofRuns)
    runs.select(others);
  else
    selectRows(*container, others);
}

FilterFault SelectionController::selectWhere(const std::string& words, RunCombination how)
{
  if (!container)
    return {};
  if (!hasRuns())
    return {0, noRuns()};
  return search.search(TableRuns(*container), words, how);
}

/// @return whether its words could be read
bool SelectionController::select(const PointedAt& meant, RunCombination how)
{
  if (!meant.runs)
    return selectWhere(meant.words, how).text.empty();
  search.take(TableRuns(*container), *meant.runs, meant.words, how);
  return true;
}

SelectionHistory& SelectionController::shownHistory()
{
  return container == followed ? history : visitHistory;
}

void SelectionController::selectRuns(const std::vector<bool>& hit, const std::string& words,
                                     RunCombination how, const std::vector<std::string>& asked)
{
  if (!container)
    return;
  TableRuns runs(*container);
  if (hit.size() != runs.numberOfRuns())
    return;
  const SelectionHistory::Step step(shownHistory(),
                                    QString::fromStdString(stepText(how, hit, words)),
                                    {how, words, false, asked});
  const std::vector<bool> before = runs.selected();
  const std::vector<bool> after = combineRuns(before, hit, how);
  runs.select(after);
  if (after == before)
    shownHistory().note({how, words});
}

std::vector<bool> SelectionController::selectedRuns() const
{
  return container ? TableRuns(*container).selected() : std::vector<bool>();
}

std::string SelectionController::wordsAtFirst() const
{
  return container == followed ? history.wordsAtFirst() : visitHistory.wordsAtFirst();
}

int SelectionController::forgottenSteps() const
{
  return container == followed ? history.forgotten() : visitHistory.forgotten();
}

std::string SelectionController::words() const
{
  return container == followed ? history.words() : visitHistory.words();
}

std::vector<std::string> SelectionController::conditions() const
{
  return container == followed ? history.conditions() : visitHistory.conditions();
}

bool SelectionController::hasRuns() const
{
  return container && TableRuns(*container).numberOfRuns() > 0;
}

std::string SelectionController::noRuns()
{
  return tr("This table has no runs to select.").toStdString();
}

QString SelectionController::summary() const
{
  if (!container)
    return {};
  const TableRuns runs(*container);
  if (runs.numberOfRuns() > 0)
  {
    const std::vector<bool> selected = runs.selected();
    return tr("%1 of %2 runs selected")
        .arg(std::count(selected.begin(), selected.end(), true))
        .arg(selected.size());
  }
  return tr("%1 of %2 rows selected")
      .arg(selectedRows(*container))
      .arg(container->getTable()->GetNumberOfRows());
}

} // namespace Talmesh::app
