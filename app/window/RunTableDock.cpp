#include "app/window/RunTableDock.h"

#include "app/document/Document.h"
#include "app/panels/PanelParts.h"
#include "app/window/FileDialogs.h"
#include "app/window/RunColumnMenu.h"
#include "app/window/RunTableModel.h"
#include "app/window/RunTableView.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTimer>
#include <QUndoStack>

#include <set>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// How long the window may wait for numbers, before it first shows and between its events.
constexpr int firstMilliseconds = 150;
constexpr int milliseconds = 30;

enum Page
{
  explanationPage,
  tablePage
};

/// The rows as ranges of neighbours.
QItemSelection rangesOf(const RunTableModel& model, const std::vector<bool>& runs)
{
  QItemSelection ranges;
  const int last = model.columnCount() - 1;
  const int count = model.rowCount();
  const auto isIn = [&](int row) { return row < count && runs[model.runOf(row)]; };
  for (int row = 0; row < count; ++row)
  {
    if (!isIn(row))
      continue;
    const int first = row;
    while (isIn(row + 1))
      ++row;
    ranges.append(QItemSelectionRange(model.index(first, 0), model.index(row, last)));
  }
  return ranges;
}

} // namespace

RunTableDock::RunTableDock(Document& shown, QWidget* parent)
    : QDockWidget(tr("Table of runs"), parent)
    , document(shown)
    , model(new RunTableModel(this))
    , view(new RunTableView)
    , pages(new QStackedWidget)
    , explanation(makeExplanation({}))
    , columns(new RunColumnMenu(this))
    , columnStep(columns->menuAction())
    , copyStep(addStep(*view, tr("Copy"), "copyRuns", *this, &RunTableDock::copy))
    , saveStep(addStep(*view, tr("Save..."), "saveRuns", *this, &RunTableDock::save))
    , idle(new QTimer(this))
{
  setObjectName(QStringLiteral("runTableDock"));
  copyStep->setShortcut(QKeySequence::Copy);
  copyStep->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  copyStep->setToolTip(tr("Copy the selected runs, or all of them, for a spreadsheet (Ctrl+C)"));
  saveStep->setToolTip(tr("Write the table of all runs to a CSV file"));
  columnStep->setToolTip(tr("Choose what the table shows of each run"));
  setWidget(makePanel());
  idle->setInterval(0);
  connect(idle, &QTimer::timeout, this, &RunTableDock::goOn);
  connect(view, &RunTableView::pressBegins, this, [this] { stepOfClick = nullptr; });
  connect(view, &RunTableView::rowsChosen, this, &RunTableDock::selectChosen);
  connect(view, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { openRun(index.row()); });
  connect(model, &RunTableModel::modelReset, this,
          [this]
          {
            shownSelection.clear();
            showSelection();
          });
  connect(this, &QDockWidget::visibilityChanged, this,
          [this](bool visible)
          {
            seen = visible;
            begin();
          });
  connect(columns, &RunColumnMenu::chosenChanged, this,
          [this]
          {
            document.views().runTable = columns->ticked();
            invalidate();
          });
  connect(&document, &Document::studyChanged, this, &RunTableDock::takeStudy);
  connect(&document, &Document::valuesChanged, this, &RunTableDock::invalidate);
  connect(&document, &Document::drawn, this, &RunTableDock::followGroups);
  connect(&document.selection(), &SelectionController::changed, this, &RunTableDock::showSelection);
  takeStudy();
}

RunTableDock::~RunTableDock() = default;

QWidget* RunTableDock::makePanel()
{
  view->setModel(model);
  view->setSortingEnabled(true);
  view->sortByColumn(0, Qt::AscendingOrder);
  pages->addWidget(explanation);
  pages->addWidget(view);
  // It takes the room that is left and scrolls.
  pages->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* panel = new QWidget;
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(pages, 1);
  row->addWidget(makeButtonColumn({columnStep, copyStep, saveStep}));
  return panel;
}

void RunTableDock::takeStudy()
{
  const bool usable = document.container() && !document.study().chart;
  if (usable)
    columns->list(TableRuns(*document.container()));
  if (usable && document.views().runTable)
    columns->tick(*document.views().runTable);
  invalidate();
}

void RunTableDock::followGroups()
{
  if (complete && shownGroups != document.groups().groups().groupOfRun)
    invalidate();
}

/// Null if there is none.
const QUndoCommand* RunTableDock::lastStep() const
{
  const QUndoStack* steps = document.selection().undoGroup().activeStack();
  return steps ? steps->command(steps->index() - 1) : nullptr;
}

/// The first of the two clicks has selected the run, which nobody wanted who looks at it.
void RunTableDock::openRun(int row)
{
  const QUndoCommand* step = std::exchange(stepOfClick, nullptr);
  if (step && step == lastStep())
    document.selection().undoGroup().undo();
  emit runOpened(model->runOf(row));
}

/// What the table shows is computed anew when it is seen.
void RunTableDock::invalidate()
{
  idle->stop();
  filling.reset();
  runs.reset();
  complete = false;
  begin();
}

void RunTableDock::begin()
{
  if (complete || filling || !seen)
    return;
  const bool usable = document.container() && !document.study().chart;
  if (usable)
    runs = std::make_unique<TableRuns>(*document.container());
  const bool any = runs && runs->numberOfRuns() > 0;
  for (QAction* step : {columnStep, copyStep, saveStep})
    step->setEnabled(any);
  if (!any)
  {
    runs.reset();
    model->setTable({});
    explanation->setText(tr("This data has no runs to list."));
    pages->setCurrentIndex(explanationPage);
    return;
  }
  filling = std::make_unique<RunTableFilling>(*runs, columns->chosen(*runs));
  filling->goOn(firstMilliseconds);
  goOn();
}

void RunTableDock::goOn()
{
  if (!filling->isDone())
  {
    explanation->setText(tr("Computing the numbers of the runs ..."));
    pages->setCurrentIndex(explanationPage);
    filling->goOn(milliseconds);
    idle->start();
    return;
  }
  idle->stop();
  complete = true;
  RunTable table = filling->take();
  shownGroups = document.groups().groups().groupOfRun;
  addColumn(table, "group", groupNumbers(document.groups().groups()));
  model->setTable(std::move(table));
  filling.reset();
  runs.reset();
  pages->setCurrentIndex(tablePage);
  view->resizeColumnsToContents();
}

void RunTableDock::showSelection()
{
  if (!complete || !document.container())
    return;
  std::vector<bool> selected = document.selection().selectedRuns();
  if (selected == shownSelection || static_cast<int>(selected.size()) != model->rowCount())
    return;
  const QScopedValueRollback<bool> guard(showing, true);
  shownSelection = std::move(selected);
  const QItemSelection ranges = rangesOf(*model, shownSelection);
  view->selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
  if (!ranges.isEmpty())
    view->scrollTo(ranges.front().topLeft());
}

std::vector<int> RunTableDock::chosenRows() const
{
  std::set<int> rows;
  for (const QItemSelectionRange& range : view->selectionModel()->selection())
    for (int row = range.top(); row <= range.bottom(); ++row)
      rows.insert(row);
  return {rows.begin(), rows.end()};
}

void RunTableDock::selectChosen()
{
  if (!complete || showing)
    return;
  std::vector<bool> chosen(shownSelection.size(), false);
  for (const int row : chosenRows())
    chosen[model->runOf(row)] = true;
  if (chosen == shownSelection)
    return;
  const RunStep step = shortestStep(shownSelection, chosen);
  shownSelection = chosen;
  const QUndoCommand* before = lastStep();
  document.selection().selectRuns(step.hit, TableRuns(*document.container()).words(step.hit),
                                  step.how);
  // Not their number, which stays where the oldest is forgotten for another one.
  if (lastStep() != before)
    stepOfClick = lastStep();
}

void RunTableDock::copy()
{
  QApplication::clipboard()->setText(model->tabbedText(chosenRows()));
  emit said(tr("Copied the table of runs"));
}

void RunTableDock::save()
{
  askToSaveTable(this, tr("Save the table of runs"), commaText(model->table()),
                 [this](const QString& path, const QString& error)
                 {
                   if (error.isEmpty())
                     emit said(tr("Wrote %1").arg(path));
                   else
                     emit failed(error);
                 });
}

} // namespace Talmesh::app
