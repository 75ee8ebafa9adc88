#include "app/window/GestureActions.h"

#include "app/document/RunGestures.h"

#include <QAction>
#include <QActionGroup>
#include <QSettings>
#include <QWidget>

namespace Talmesh::app
{

namespace
{

const QString ruleKey = QStringLiteral("rectanglesSelectInside");

QAction* withData(const QActionGroup& group, int data)
{
  for (QAction* action : group.actions())
    if (action->data().toInt() == data)
      return action;
  return nullptr;
}

QAction* separator(QObject* parent)
{
  auto* line = new QAction(parent);
  line->setSeparator(true);
  return line;
}

} // namespace

GestureActions::GestureActions(RunGestures& used, QObject* parent)
    : QObject(parent)
    , gestures(used)
    , tools(new QActionGroup(this))
    , rules(new QActionGroup(this))
{
  if (QSettings().value(ruleKey, false).toBool())
    gestures.setRule(GestureRule::Inside);
  addTools();
  addRules();
}

QAction* GestureActions::add(QActionGroup* group, const QString& text, const QString& shortText,
                             const QString& toolTip)
{
  QAction* action = group->addAction(text);
  action->setIconText(shortText);
  action->setToolTip(toolTip);
  action->setCheckable(true);
  return action;
}

void GestureActions::addTools()
{
  const auto addTool = [this](SelectionTool tool, const QString& text, const QString& shortText,
                              const QString& toolTip)
  {
    QAction* action = add(tools, text, shortText, toolTip);
    action->setData(static_cast<int>(tool));
    action->setChecked(gestures.tool() == tool);
    connect(action, &QAction::triggered, this, [this, tool] { gestures.setTool(tool); });
  };
  addTool(SelectionTool::Rectangle, tr("&Rectangle"), tr("Rectangle"),
          tr("The right mouse button draws a rectangle. With Ctrl runs are added, with Shift taken "
             "away, with both toggled; a click means the run that is nearest."));
  addTool(SelectionTool::Lasso, tr("Lass&o"), tr("Lasso"),
          tr("The right mouse button draws around what is to be selected"));
  addTool(SelectionTool::Line, tr("&Crossing line"), tr("Line"),
          tr("The right mouse button draws a line across the runs to be selected"));
}

void GestureActions::addRules()
{
  const auto addRule = [this](GestureRule rule, const QString& text, const QString& shortText,
                              const QString& toolTip)
  {
    QAction* action = add(rules, text, shortText, toolTip);
    action->setData(static_cast<int>(rule));
    action->setChecked(gestures.rule() == rule);
    connect(action, &QAction::triggered, this,
            [this, rule]
            {
              gestures.setRule(rule);
              QSettings().setValue(ruleKey, rule == GestureRule::Inside);
            });
  };
  addRule(GestureRule::Through, tr("Runs passing &through"), tr("Through"),
          tr("A rectangle means the runs whose line passes through it"));
  addRule(GestureRule::Inside, tr("Runs insi&de all the time"), tr("Inside"),
          tr("A rectangle means the runs that are in it at every time that it covers"));
}

void GestureActions::addTo(QWidget& menuOrBar) const
{
  menuOrBar.addActions(tools->actions());
  menuOrBar.addAction(separator(&menuOrBar));
  menuOrBar.addActions(rules->actions());
}

void GestureActions::refresh()
{
  action(gestures.tool())->setChecked(true);
  action(gestures.rule())->setChecked(true);
}

QAction* GestureActions::action(SelectionTool tool) const
{
  return withData(*tools, static_cast<int>(tool));
}

QAction* GestureActions::action(GestureRule rule) const
{
  return withData(*rules, static_cast<int>(rule));
}

} // namespace Talmesh::app
