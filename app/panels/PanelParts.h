#ifndef PanelParts_h
#define PanelParts_h

#include <QAction>
#include <QIcon>
#include <QLatin1String>
#include <QList>
#include <QString>
#include <QWidget>

class QColor;
class QLabel;

/// What panels of the window have alike.
namespace Talmesh::app
{

/// A square of one colour, which it keeps in a row that is selected.
QIcon swatch(const QColor& colour, int size);

/// Something that the user can do with a list, also by its menu.
/// @param name by which programs know it
/// @param panel what holds the list and does it
template <typename Panel>
QAction* addStep(QWidget& list, const QString& text, const char* name, Panel& panel,
                 void (Panel::*step)())
{
  auto* action = new QAction(text, &panel);
  action->setObjectName(QLatin1String(name));
  QObject::connect(action, &QAction::triggered, &panel, step);
  list.addAction(action);
  return action;
}

/// A button for each action, one above the other, as wide as the widest of them.
QWidget* makeButtonColumn(const QList<QAction*>& steps);

/// A text in the middle of a panel that says why it is empty.
QLabel* makeExplanation(const QString& text);

} // namespace Talmesh::app

#endif
