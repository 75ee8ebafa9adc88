#ifndef GroupController_h
#define GroupController_h

#include "app/document/GroupedPlots.h"
#include "app/document/RunNormaliser.h"
#include "app/session/SessionGroups.h"

#include <QObject>
#include <QPointer>

#include <vector>

class PlotContainer;
class QUndoStack;

namespace Talmesh::app
{

class ClusterDock;
struct Study;

/// Does what the panel of groups asks for with the container now shown.
class GroupController : public QObject
{
  Q_OBJECT

public:
  /// @param dock, stack outlive the controller's work; the stack takes the scaling of runs
  GroupController(ClusterDock& dock, QUndoStack& stack, QObject* parent = nullptr);

  /// Gives back the values of the study now shown, which is about to be left.
  void leave();
  /// Turns to the container of another study, not owned.
  void follow(PlotContainer* container, const Study& study);
  /// Completes the chart that the container has just drawn.
  void dress();
  /// Normalises columns that were normalised when their session was saved. Emits nothing, and the
  /// user's history does not have it.
  void restoreNormalised(const std::vector<int>& columns);
  const RunNormaliser& runNormaliser() const { return normaliser; }
  /// What a session keeps of the groups.
  SessionGroups sessionGroups() const;
  /// Brings back what a session kept of the same runs. Emits nothing.
  void restoreGroups(const SessionGroups& kept);

signals:
  /// The chart must be drawn anew.
  void changed();
  /// As above, in the XY plot, which alone shows what the user has asked for.
  void xyPlotWanted();

private:
  std::vector<int> shownColumns() const;
  void showNewValues();
  void group();
  void takeGroups(const std::vector<int>& groupOfRun);
  void show();
  void select(int group);
  void normalise(bool on);

  ClusterDock& dock;
  QUndoStack& stack;
  RunNormaliser normaliser;
  QPointer<PlotContainer> container;
  RunGroups groups;
};

} // namespace Talmesh::app

#endif
