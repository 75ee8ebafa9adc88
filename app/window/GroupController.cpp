#include "app/window/GroupController.h"

#include "app/document/Document.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/ClusterDock.h"
#include "app/window/TaskBar.h"
#include "plot/RunClustering.h"

#include <new>

namespace Talmesh::app
{

GroupController::GroupController(ClusterDock& panel, Document& shown, TaskBar& bar, QObject* parent)
    : QObject(parent)
    , dock(panel)
    , document(shown)
    , runner(new TaskRunner(this))
{
  bar.follow(*runner, QStringLiteral("cancelGrouping"));
  connect(&bar, &TaskBar::cancelled, this, &GroupController::cancel);
  connect(&dock, &ClusterDock::groupingChanged, this,
          [this]
          {
            if (dock.category().empty())
              document.groups().setGrouping(dock.groupCount(), dock.mode());
          });
  connect(&dock, &ClusterDock::groupingRequested, this, &GroupController::group);
  connect(&dock, &ClusterDock::groupChosen, this,
          [this](int group) { document.groups().select(group); });
  connect(&dock, &ClusterDock::lookChanged, this,
          [this]
          {
            RunLook look = dock.look();
            look.keptColours = document.groups().state().look.keptColours;
            document.setLook(look);
          });
  connect(&dock, &ClusterDock::normalisingRequested, this, &GroupController::normalise);
  connect(&document, &Document::studyChanged, runner, &TaskRunner::cancel);
  connect(&document, &Document::studyChanged, this, &GroupController::showStudy);
  connect(&document, &Document::drawn, this, &GroupController::showNormalised);
  showStudy();
}

GroupController::~GroupController()
{
  // Its thread must not outlive what it reports to.
  delete runner;
}

/// The runs stay as they were left while a chart of its own takes their place.
void GroupController::showStudy()
{
  const GroupedRuns& groups = document.groups();
  const bool haveCourses = groups.runs() > 0;
  const std::vector<std::string> categories = groups.categories();
  dock.reset(haveCourses ? groups.mostPossible() : 0, categories,
             haveCourses || !categories.empty() ? QString()
                                                : tr("This data has no runs over time to group."));
  dock.setGroups(groups.groups());
  dock.setGrouping(groups.state().count, groups.state().mode, groups.state().category);
  dock.setLook(groups.state().look);
  showNormalised();
}

std::shared_ptr<RunClustering> GroupController::prepare()
{
  try
  {
    return document.groups().clustering();
  }
  catch (const std::bad_alloc&)
  {
    emit failed(QString::fromStdString(missingTaskMemory()));
    return nullptr;
  }
}

void GroupController::groupByTexts(const std::string& label)
{
  runner->cancel();
  const std::string failure = document.takeCategory(label);
  if (!failure.empty())
    emit failed(QString::fromStdString(failure));
  showGroups();
}

void GroupController::showGroups()
{
  dock.setGroups(document.groups().groups());
  dock.setLook(document.groups().state().look);
}

void GroupController::group()
{
  if (const std::string label = dock.category(); !label.empty())
    return groupByTexts(label);
  // A copy of the runs, which may be large.
  const std::shared_ptr<RunClustering> clustering = prepare();
  if (!clustering)
    return;
  emit said(tr("Grouping the runs ..."));
  using Found = std::shared_ptr<RunClustering>;
  runner->start<Found>(
      this,
      [clustering](const TaskProgress& progress) {
        return clustering->compute(progress) ? Result<Found>(clustering)
                                             : Result<Found>::cancelled();
      },
      [this](const Result<Found>& found) { take(found); });
}

void GroupController::cancel()
{
  runner->cancel();
  emit stopped(tr("Cancelled"));
}

void GroupController::take(const Result<std::shared_ptr<RunClustering>>& found)
{
  emit ended();
  if (!found.error().empty())
    emit failed(QString::fromStdString(found.error()));
  if (!found.hasValue())
    return;
  document.takeGroups(*found.value());
  showGroups();
}

bool GroupController::isGrouping() const
{
  return runner->isRunning();
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
