#ifndef GestureActions_h
#define GestureActions_h

#include "app/runs/GestureWords.h"
#include "vtk/SelectionGesture.h"

#include <QObject>

class QAction;
class QActionGroup;
class QWidget;

namespace Talmesh::app
{

class RunGestures;

/// The actions that choose what the mouse draws to select runs, and which runs a rectangle means:
/// the same ones in menu and tool bar, which show what is on. The latter is kept as a setting.
class GestureActions : public QObject
{
  Q_OBJECT

public:
  /// @param gestures outlive the actions
  explicit GestureActions(RunGestures& gestures, QObject* parent = nullptr);

  /// Adds all of them, in two sections.
  void addTo(QWidget& menuOrBar) const;
  /// Shows what is on, which others have changed.
  void refresh();
  QAction* action(SelectionTool tool) const;
  QAction* action(GestureRule rule) const;

private:
  QAction* add(QActionGroup* group, const QString& text, const QString& shortText,
               const QString& toolTip);
  void addTools();
  void addRules();

  RunGestures& gestures;
  QActionGroup* tools;
  QActionGroup* rules;
};

} // namespace Talmesh::app

#endif
