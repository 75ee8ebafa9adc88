#include "app/window/StepsDock.h"

#include "app/document/SelectionController.h"
#include "app/panels/PanelParts.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QListWidget>
#include <QUndoView>
#include <QVBoxLayout>

namespace Talmesh::app
{

namespace
{

QString lineOf(int number, const QString& step)
{
  return QStringLiteral("%1. %2").arg(number).arg(step);
}

} // namespace

StepsDock::StepsDock(SelectionController& shown, QWidget* parent)
    : QDockWidget(tr("Steps of the selection"), parent)
    , selection(shown)
{
  setObjectName(QStringLiteral("stepsDock"));
  list = new QUndoView(&selection.undoGroup());
  list->setObjectName(QStringLiteral("steps"));
  list->setEmptyLabel(tr("As opened"));
  list->setToolTip(tr("Click a step to return to what was selected then"));
  list->setContextMenuPolicy(Qt::ActionsContextMenu);
  list->setAlternatingRowColors(true);
  list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  copyStepsAction = addStep(*list, tr("Copy steps"), "copySteps", *this, &StepsDock::copySteps);
  copyStepsAction->setToolTip(tr("Copy the steps so far, as for a description of methods"));
  copyConditionAction =
      addStep(*list, tr("Copy condition"), "copyCondition", *this, &StepsDock::copyCondition);
  copyConditionAction->setToolTip(
      tr("Copy the condition that the selected runs meet, and no others"));
  reuseAction =
      addStep(*list, tr("Put into the line"), "reuseCondition", *this, &StepsDock::reuseCondition);
  reuseAction->setToolTip(
      tr("Put that condition into the line \"Runs where\", to change it or to use it with another "
         "study"));
  earlier = new QListWidget;
  earlier->setObjectName(QStringLiteral("earlierSteps"));
  earlier->setToolTip(
      tr("The steps before the session was saved, to be read: what was selected then is not kept"));
  earlier->setSelectionMode(QAbstractItemView::NoSelection);
  earlier->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* panel = new QWidget;
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(0, 0, 0, 0);
  auto* lists = new QVBoxLayout;
  lists->addWidget(earlier, 1);
  lists->addWidget(list, 2);
  row->addLayout(lists, 1);
  row->addWidget(makeButtonColumn({copyStepsAction, copyConditionAction, reuseAction}));
  setWidget(panel);
  connect(&selection.undoGroup(), &QUndoGroup::indexChanged, this, &StepsDock::enableSteps);
  connect(&selection, &SelectionController::changed, this, &StepsDock::enableSteps);
  connect(&selection, &SelectionController::restarted, this, &StepsDock::enableSteps);
  connect(&selection.undoGroup(), &QUndoGroup::activeStackChanged, this, &StepsDock::listEarlier);
  connect(&selection, &SelectionController::restarted, this, &StepsDock::listEarlier);
  listEarlier();
  enableSteps();
}

QString StepsDock::stepsText() const
{
  const QUndoStack* steps = selection.undoGroup().activeStack();
  const SessionSteps before = selection.earlierSteps();
  QString text;
  int number = before.forgotten;
  if (number > 0)
    text = tr("%1 steps before that are no longer known").arg(number) + QLatin1Char('\n');
  for (const std::string& step : before.texts)
    text += lineOf(++number, QString::fromStdString(step)) + QLatin1Char('\n');
  const QString first = QString::fromStdString(selection.wordsAtFirst());
  const int forgotten = selection.forgottenSteps();
  if (!first.isEmpty())
    text += tr("As opened: %1").arg(first) + QLatin1Char('\n');
  else if (forgotten > 0 || number > 0)
    text += tr("As opened") + QLatin1Char('\n');
  if (forgotten > 0)
    text += tr("%1 steps after that are no longer known").arg(forgotten) + QLatin1Char('\n');
  number += forgotten;
  for (int step = 0; steps && step < steps->index(); ++step)
    text += lineOf(++number, steps->text(step)) + QLatin1Char('\n');
  return text + selection.summary() + QLatin1Char('\n');
}

/// What a session has brought back.
void StepsDock::listEarlier()
{
  const SessionSteps before = selection.earlierSteps();
  earlier->clear();
  int number = before.forgotten;
  for (const std::string& step : before.texts)
    earlier->addItem(lineOf(++number, QString::fromStdString(step)));
  earlier->scrollToBottom();
  earlier->setVisible(!before.texts.empty());
}

QString StepsDock::condition() const
{
  return QString::fromStdString(selection.words());
}

void StepsDock::copySteps()
{
  QApplication::clipboard()->setText(stepsText());
  emit said(tr("Copied the steps"));
}

void StepsDock::copyCondition()
{
  QApplication::clipboard()->setText(condition());
  emit said(tr("Copied the condition"));
}

void StepsDock::reuseCondition()
{
  emit wordsWanted(condition());
}

void StepsDock::enableSteps()
{
  const QUndoStack* steps = selection.undoGroup().activeStack();
  const QString first = QString::fromStdString(selection.wordsAtFirst());
  list->setEmptyLabel(first.isEmpty() ? tr("As opened") : tr("As opened: %1").arg(first));
  copyStepsAction->setEnabled(!first.isEmpty() || !selection.earlierSteps().texts.empty() ||
                              (steps && steps->index() > 0));
  const bool known = !condition().isEmpty();
  copyConditionAction->setEnabled(known);
  reuseAction->setEnabled(known);
}

} // namespace Talmesh::app
