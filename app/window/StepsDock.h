#ifndef StepsDock_h
#define StepsDock_h

#include <QDockWidget>

class QAction;
class QListWidget;
class QUndoView;

namespace Talmesh::app
{

class SelectionController;

/// The panel that lists the steps which led to the selection, in words; a click returns to a step.
/// Above them stand those that were made before a session was saved, only to be read.
class StepsDock : public QDockWidget
{
  Q_OBJECT

public:
  /// @param selection outlives the panel
  explicit StepsDock(SelectionController& selection, QWidget* parent = nullptr);

  /// The steps that led to what is now selected, one line each, with their numbers, and how much
  /// that is.
  QString stepsText() const;

signals:
  /// The user wants to do with these words something else.
  void wordsWanted(const QString& words);
  /// What has become of a step, in one line.
  void said(const QString& message);

private:
  void copySteps();
  void copyCondition();
  void reuseCondition();
  void enableSteps();
  void listEarlier();
  QString condition() const;

  SelectionController& selection;
  QUndoView* list = nullptr;
  QListWidget* earlier = nullptr;
  QAction* copyStepsAction = nullptr;
  QAction* copyConditionAction = nullptr;
  QAction* reuseAction = nullptr;
};

} // namespace Talmesh::app

#endif
