#include "app/window/GroupController.h"

#include "app/import/Study.h"
#include "app/window/ClusterDock.h"
#include "external/LinePlotTable.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/RunLayout.h"
#include "plot/SelectionNodes.h"

#include <vtkAnnotationLink.h>
#include <vtkIntArray.h>
#include <vtkTable.h>

#include <QApplication>
#include <QSignalBlocker>
#include <QUndoStack>

#include <algorithm>
#include <iterator>
#include <vector>

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

std::vector<int> membershipOf(const PlotContainer& container)
{
  vtkIntArray* membership = container.getClusterMembership();
  if (!membership)
    return {};
  const int* first = membership->GetPointer(0);
  return {first, first + membership->GetNumberOfTuples()};
}

} // namespace

GroupController::GroupController(ClusterDock& panel, QUndoStack& undoStack, QObject* parent)
    : QObject(parent)
    , dock(panel)
    , stack(undoStack)
{
  connect(&dock, &ClusterDock::groupingRequested, this, &GroupController::group);
  connect(&dock, &ClusterDock::groupChosen, this, &GroupController::select);
  connect(&dock, &ClusterDock::lookChanged, this, &GroupController::show);
  connect(&dock, &ClusterDock::normalisingRequested, this, &GroupController::normalise);
  connect(&normaliser, &RunNormaliser::changed, this, &GroupController::showNewValues);
}

void GroupController::leave()
{
  normaliser.follow(nullptr);
}

void GroupController::follow(PlotContainer* followed, const Study& study)
{
  container = followed;
  normaliser.follow(followed);
  groups = {};
  const bool runs = study.runs && study.runs->pointsPerTrajectory > 1;
  dock.reset(runs ? static_cast<int>(study.runs->numberOfTrajectories) : 0,
             runs ? QString() : tr("This data has no runs over time to group."));
}

void GroupController::group()
{
  if (!container)
    return;
  {
    const WaitCursor waiting;
    container->clusterTimeSeries(dock.groupCount(), dock.mode());
  }
  takeGroups(membershipOf(*container));
  show();
}

void GroupController::takeGroups(const std::vector<int>& groupOfRun)
{
  groups = namedGroups(groupOfRun);
  dock.setGroups(groups);
}

SessionGroups GroupController::sessionGroups() const
{
  return {groups.groupOfRun, dock.groupCount(), dock.mode(), dock.look()};
}

void GroupController::restoreGroups(const SessionGroups& kept)
{
  if (!container)
    return;
  takeGroups(kept.groupOfRun);
  dock.setGrouping(kept.count, kept.mode);
  dock.setLook(kept.look);
}

void GroupController::show()
{
  const RunLook look = dock.look();
  const bool any = look.groupColours || look.groupMeans || look.quartileBands;
  if (container && any && container->getMetaData()->getPlotStyle() != xyPlot)
    emit xyPlotWanted();
  else
    emit changed();
}

void GroupController::select(int group)
{
  if (!container || group < 0 || group >= static_cast<int>(groups.names.size()))
    return;
  const plot::RunLayout layout = {container->getTable()->GetNumberOfRows(),
                                  container->getMetaData()->getStride()};
  // A group counts its runs by position, whatever their numbers in the table.
  std::vector<vtkIdType> rows;
  for (std::size_t run = 0; run < groups.groupOfRun.size(); ++run)
    if (groups.groupOfRun[run] == group && static_cast<vtkIdType>(run) < layout.runs())
      rows.push_back(layout.firstRow(static_cast<vtkIdType>(run)));
  container->getAnnotationLink()->SetCurrentSelection(plot::makeRowSelection(rows));
}

/// The columns over x that can be scaled.
std::vector<int> GroupController::shownColumns() const
{
  const PlotMetaData& settings = *container->getMetaData();
  std::vector<int> columns = normaliser.scalable(settings.yColumns);
  const auto isX = [&x = settings.xColumns](int column)
  { return std::find(x.begin(), x.end(), column) != x.end(); };
  columns.erase(std::remove_if(columns.begin(), columns.end(), isX), columns.end());
  return columns;
}

/// The tables of selected and of other runs are copies of the plot's and must be made anew.
void GroupController::showNewValues()
{
  if (container)
    container->annotationUpdate();
  emit changed();
}

void GroupController::restoreNormalised(const std::vector<int>& columns)
{
  const QSignalBlocker silent(normaliser);
  normaliser.setNormalised(columns, true);
}

void GroupController::normalise(bool on)
{
  if (!container)
    return;
  const std::vector<int> shown = shownColumns();
  std::vector<int> others;
  std::copy_if(shown.begin(), shown.end(), std::back_inserter(others),
               [&](int column) { return normaliser.isNormalised({column}) != on; });
  if (!others.empty())
    stack.push(normaliser.makeCommand(others, on));
  dock.setNormalised(normaliser.isNormalised(shown));
}

void GroupController::dress()
{
  if (!container)
    return;
  dock.setNormalised(normaliser.isNormalised(shownColumns()));
  dressRuns(*container, groups, dock.look());
}

} // namespace Talmesh::app
