#include "app/window/StepsDock.h"

#include "app/document/SelectionController.h"
#include "app/panels/PanelParts.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QUndoView>

namespace Talmesh::app
{

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
  auto* panel = new QWidget;
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(list, 1);
  row->addWidget(makeButtonColumn({copyStepsAction, copyConditionAction, reuseAction}));
  setWidget(panel);
  connect(&selection.undoGroup(), &QUndoGroup::indexChanged, this, &StepsDock::enableSteps);
  connect(&selection, &SelectionController::changed, this, &StepsDock::enableSteps);
  connect(&selection, &SelectionController::restarted, this, &StepsDock::enableSteps);
  enableSteps();
}

QString StepsDock::stepsText() const
{
  const QUndoStack* steps = selection.undoGroup().activeStack();
  const QString first = QString::fromStdString(selection.wordsAtFirst());
  const int forgotten = selection.forgottenSteps();
  QString text;
  if (!first.isEmpty())
    text = tr("As opened: %1").arg(first) + QLatin1Char('\n');
  else if (forgotten > 0)
    text = tr("As opened") + QLatin1Char('\n');
  if (forgotten > 0)
    text += tr("%1 steps after that are no longer known").arg(forgotten) + QLatin1Char('\n');
  for (int step = 0; steps && step < steps->index(); ++step)
    text += QStringLiteral("%1. %2\n").arg(forgotten + step + 1).arg(steps->text(step));
  return text + selection.summary() + QLatin1Char('\n');
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
  copyStepsAction->setEnabled(!first.isEmpty() || (steps && steps->index() > 0));
  const bool known = !condition().isEmpty();
  copyConditionAction->setEnabled(known);
  reuseAction->setEnabled(known);
}

} // namespace Talmesh::app
