#include "app/document/SelectionController.h"

#include "app/import/TranslatedText.h"
#include "app/session/RunSelectionFile.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunSelection.h"
#include "plot/RunSplit.h"
#include "plot/TableColumns.h"
#include "vtk/RowSelections.h"

#include <vtkCommand.h>
#include <vtkIntArray.h>
#include <vtkTable.h>

#include <QMetaObject>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <numeric>
#include <set>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// Priority of an observer of the link.
constexpr float beforeAllOthers = 1.0F;

/// Each step keeps a bit per row.
constexpr int mostSteps = 100;

/// More run indices do not fit into a line.
constexpr int mostIndices = 10;

using Runs = std::vector<plot::PlacedRun>;

std::unique_ptr<ParameterSelection> runsOf(PlotContainer* container)
{
  return std::unique_ptr<ParameterSelection>(container ? container->getSelection() : nullptr);
}

vtkIdType selectedRows(const PlotContainer& container)
{
  const auto flags = vtkSmartPointer<vtkIntArray>::Take(container.getCurrentSelection());
  if (!flags)
    return 0;
  const int* first = flags->GetPointer(0);
  return std::accumulate(first, first + flags->GetNumberOfValues(), vtkIdType(0));
}

/// Whether the first rows of all runs have the same time: only then does the comparison of runs
/// count all of them as selected where nothing but these rows is.
bool startTogether(const PlotContainer& container, const Runs& runs)
{
  vtkDoubleArray* times =
      plot::doubleColumn(container.getTable(), plot::timeColumnOf(stateOf(container)));
  return times && !runs.empty() && runs.back().firstRow < times->GetNumberOfValues() &&
         std::all_of(
             runs.begin(), runs.end(),
             [&](const plot::PlacedRun& run)
             { return times->GetValue(run.firstRow) == times->GetValue(runs.front().firstRow); });
}

/// The rows to select for everything to be selected. One row stands for its run where lines are
/// drawn, because a run is highlighted once for each of its selected rows.
std::vector<vtkIdType> rowsOfEverything(const PlotContainer& container)
{
  const vtkIdType count = container.getTable()->GetNumberOfRows();
  const PlotMetaData& settings = *container.getMetaData();
  const Runs runs = plot::wholeRuns(stateOf(container));
  const bool nothingElse = static_cast<vtkIdType>(runs.size()) * settings.getStride() == count;
  std::vector<vtkIdType> rows;
  if (settings.getPlotLine() && !runs.empty() && nothingElse && startTogether(container, runs))
  {
    for (const plot::PlacedRun& run : runs)
      rows.push_back(run.firstRow);
    return rows;
  }
  rows.resize(static_cast<std::size_t>(count));
  std::iota(rows.begin(), rows.end(), 0);
  return rows;
}

/// One line that says which of the runs of a file are not in the table.
std::string noteOnMissing(const QString& path, const std::set<int>& missing, std::size_t wanted)
{
  QStringList indices;
  for (const int run : missing)
  {
    if (indices.size() == mostIndices)
    {
      indices.append(QStringLiteral("..."));
      break;
    }
    indices.append(QString::number(run));
  }
  std::string text;
  if (missing.size() == wanted)
    text = translated("SelectionController", "%1: none of its runs is in this table: %2");
  else if (missing.size() == 1)
    text = translated("SelectionController", "%1: 1 of its %3 runs is not in this table: %2");
  else
    text = translated("SelectionController", "%1: %4 of its %3 runs are not in this table: %2");
  return withValues(text, {path.toStdString(), indices.join(QStringLiteral(", ")).toStdString(),
                           std::to_string(wanted), std::to_string(missing.size())});
}

} // namespace

SelectionController::SelectionController(QObject* parent)
    : QObject(parent)
    , history(stack)
    , visitHistory(visitStack)
{
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
}

void SelectionController::follow(PlotContainer* another)
{
  visitHistory.follow(nullptr);
  followed = another;
  observe(another, stack);
  history.follow(another);
  history.restart();
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
  container = observed;
  link = observed ? observed->getAnnotationLink() : nullptr;
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

void SelectionController::announce()
{
  emit changing();
}

void SelectionController::announceLater()
{
  if (announcing)
    return;
  announcing = true;
  QMetaObject::invokeMethod(
      this,
      [this]
      {
        announcing = false;
        emit changed();
      },
      Qt::QueuedConnection);
}

void SelectionController::selectAll()
{
  if (container)
    container->getAnnotationLink()->SetCurrentSelection(
        makeRowSelection(rowsOfEverything(*container)));
}

void SelectionController::clear()
{
  if (container)
    container->getAnnotationLink()->SetCurrentSelection(makeRowSelection({}));
}

FilterFault SelectionController::selectWhere(const std::string& words, RunCombination how)
{
  if (!container)
    return {};
  TableRuns runs(*container);
  if (runs.numberOfRuns() == 0)
    return {0, tr("This table has no runs to select.").toStdString()};
  FilterFault fault;
  const RunFilter filter = RunFilter::read(words, runs, fault);
  if (!fault.text.empty())
    return fault;
  const std::vector<bool> hit = filter.select(runs, {}).value();
  SelectionHistory& steps = container == followed ? history : visitHistory;
  const SelectionHistory::Step step(steps, QString::fromStdString(stepText(how, hit, words)));
  runs.select(combineRuns(runs.selected(), hit, how));
  return {};
}

std::string SelectionController::save(const QString& path) const
{
  const std::unique_ptr<ParameterSelection> runs = runsOf(container);
  if (!runs)
    return tr("This table has no runs to select.").toStdString();
  return saveRunSelection(path, *runs);
}

std::string SelectionController::load(const QString& path)
{
  const Result<ParameterSelection> loaded = loadRunSelection(path);
  if (!loaded.hasValue())
    return loaded.error();
  const std::set<int>& wanted = loaded.value().runs;
  std::set<int> missing = wanted;
  std::vector<vtkIdType> rows;
  const auto present = container ? plot::wholeRuns(stateOf(*container)) : Runs();
  if (present.empty())
    return tr("This table has no runs to select.").toStdString();
  for (const plot::PlacedRun& run : present)
  {
    missing.erase(run.index);
    if (wanted.count(run.index) != 0)
      rows.push_back(run.firstRow);
  }
  // A file may well say that nothing is selected.
  if (!rows.empty() || wanted.empty())
    container->getAnnotationLink()->SetCurrentSelection(makeRowSelection(rows));
  return missing.empty() ? std::string() : noteOnMissing(path, missing, wanted.size());
}

QString SelectionController::summary() const
{
  if (!container)
    return {};
  const std::unique_ptr<ParameterSelection> selected = runsOf(container);
  if (selected && container->getMetaData()->getStride() > 0)
  {
    const Runs runs = plot::wholeRuns(stateOf(*container));
    const auto count = std::count_if(runs.begin(), runs.end(),
                                     [&selected](const plot::PlacedRun& run)
                                     { return selected->runs.count(run.index) != 0; });
    return tr("%1 of %2 runs selected").arg(count).arg(runs.size());
  }
  return tr("%1 of %2 rows selected")
      .arg(selectedRows(*container))
      .arg(container->getTable()->GetNumberOfRows());
}

} // namespace Talmesh::app
