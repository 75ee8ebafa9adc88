#include "app/window/TaskBar.h"

#include "app/tasks/TaskRunner.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QToolButton>

namespace Talmesh::app
{

TaskBar::TaskBar(QWidget* parent)
    : QWidget(parent)
    , bar(new QProgressBar)
{
  auto* button = new QToolButton;
  button->setText(tr("Cancel"));
  bar->setRange(0, 100);
  bar->setFixedWidth(16 * fontMetrics().averageCharWidth());
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(bar);
  layout->addWidget(button);
  connect(button, &QToolButton::clicked, this, &TaskBar::cancelled);
  hide();
}

void TaskBar::follow(const TaskRunner& runner, const QString& name)
{
  findChild<QToolButton*>()->setObjectName(name);
  connect(&runner, &TaskRunner::started, this, &TaskBar::begin);
  connect(&runner, &TaskRunner::progressed, this, &TaskBar::setPercent);
  connect(&runner, &TaskRunner::ended, this, &TaskBar::hide);
}

void TaskBar::begin()
{
  bar->setValue(0);
  show();
}

void TaskBar::setPercent(int percent)
{
  bar->setValue(percent);
}

} // namespace Talmesh::app
