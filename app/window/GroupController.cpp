#include "app/window/GroupController.h"

#include "app/document/Document.h"
#include "app/window/ClusterDock.h"

#include <QApplication>

namespace Talmesh::app
{

namespace
{

class WaitCursor
{
public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

GroupController::GroupController(ClusterDock& panel, Document& shown, QObject* parent)
    : QObject(parent)
    , dock(panel)
    , document(shown)
{
  connect(&dock, &ClusterDock::groupingChanged, this,
          [this] { document.groups().setGrouping(dock.groupCount(), dock.mode()); });
  connect(&dock, &ClusterDock::groupingRequested, this, &GroupController::group);
  connect(&dock, &ClusterDock::groupChosen, this,
          [this](int group) { document.groups().select(group); });
  connect(&dock, &ClusterDock::lookChanged, this, [this] { document.setLook(dock.look()); });
  connect(&dock, &ClusterDock::normalisingRequested, this, &GroupController::normalise);
  connect(&document, &Document::studyChanged, this, &GroupController::showStudy);
  connect(&document, &Document::drawn, this, &GroupController::showNormalised);
  showStudy();
}

/// The runs stay as they were left while a chart of its own takes their place.
void GroupController::showStudy()
{
  const GroupedRuns& groups = document.groups();
  const bool usable = groups.runs() > 0;
  dock.reset(usable ? groups.mostPossible() : 0,
             usable ? QString() : tr("This data has no runs over time to group."));
  dock.setGroups(groups.groups());
  dock.setGrouping(groups.state().count, groups.state().mode);
  dock.setLook(groups.state().look);
  showNormalised();
}

void GroupController::group()
{
  {
    const WaitCursor waiting;
    document.group();
  }
  dock.setGroups(document.groups().groups());
  dock.setLook(document.groups().state().look);
}

void GroupController::normalise(bool on)
{
  document.groups().normalise(on);
  showNormalised();
}

void GroupController::showNormalised()
{
  dock.setNormalised(document.groups().showsNormalised());
}

} // namespace Talmesh::app
