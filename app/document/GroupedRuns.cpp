#include "app/document/GroupedRuns.h"

#include "app/document/CategoryGroups.h"
#include "app/document/ColouredRuns.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/RunLayout.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkIntArray.h>
#include <vtkTable.h>

#include <QSignalBlocker>
#include <QUndoStack>

#include <algorithm>
#include <iterator>

namespace Talmesh::app
{

namespace
{

/// Into how many groups runs are sorted unless the user says otherwise.
constexpr int firstGroups = 3;

bool isMode(int mode)
{
  return mode == byCourse || mode == byPhases || mode == byMagnitudes;
}

std::vector<int> membershipOf(const PlotContainer& container)
{
  vtkIntArray* membership = container.getClusterMembership();
  if (!membership)
    return {};
  const int* first = membership->GetPointer(0);
  return {first, first + membership->GetNumberOfTuples()};
}

} // namespace

GroupedRuns::GroupedRuns(QUndoStack& undoStack, QObject* parent)
    : QObject(parent)
    , stack(undoStack)
{
  connect(&normaliser, &RunNormaliser::changed, this, &GroupedRuns::valuesChanged);
}

void GroupedRuns::leave()
{
  normaliser.follow(nullptr);
}

void GroupedRuns::follow(PlotContainer* followed, int runs)
{
  if (container)
    container->removeDrawingSteps(this);
  container = followed;
  runCount = runs;
  const int mode = kept.mode;
  kept = {};
  kept.mode = mode;
  kept.count = std::min(firstGroups, mostPossible());
  named = {};
  normaliser.follow(followed);
  if (container)
    container->addCompletion(this, [this] { complete(); });
}

int GroupedRuns::mostPossible() const
{
  return std::max(1, std::min(runCount, mostGroups));
}

void GroupedRuns::setGrouping(int count, int mode)
{
  kept.count = count;
  kept.mode = mode;
}

std::shared_ptr<RunClustering> GroupedRuns::clustering() const
{
  if (!container || runCount == 0)
    return nullptr;
  return std::make_shared<RunClustering>(*container, kept.count, kept.mode);
}

void GroupedRuns::take(const RunClustering& found)
{
  if (!container)
    return;
  found.handOver(*container);
  kept.groupOfRun = membershipOf(*container);
  named = namedGroups(kept.groupOfRun);
  kept.category.clear();
  kept.look.groupColours = !named.names.empty();
}

std::vector<std::string> GroupedRuns::categories() const
{
  return container ? groupableCategories(*container) : std::vector<std::string>();
}

std::string GroupedRuns::takeCategory(const std::string& label)
{
  if (!container)
    return {};
  const Result<RunGroups> found = groupsOfCategory(*container, label);
  if (!found.hasValue())
    return found.error();
  named = found.value();
  kept.groupOfRun = named.groupOfRun;
  kept.category = label;
  kept.look.groupColours = true;
  return {};
}

void GroupedRuns::restore(const SessionGroups& groups)
{
  kept.groupOfRun = groups.groupOfRun;
  named = namedGroups(kept.groupOfRun);
  if (!groups.category.empty())
    takeCategory(groups.category);
  if (groups.count >= 1 && groups.count <= mostPossible())
    kept.count = groups.count;
  if (isMode(groups.mode))
    kept.mode = groups.mode;
  const bool any = !named.names.empty();
  kept.look = {groups.look.groupColours && any, groups.look.groupMeans && any,
               groups.look.quartileBands && runCount > 0, groups.look.keptColours};
}

void GroupedRuns::setLook(const RunLook& look)
{
  kept.look = look;
}

void GroupedRuns::select(int group)
{
  if (!container || group < 0 || group >= static_cast<int>(named.names.size()))
    return;
  const plot::RunLayout layout = {container->getTable()->GetNumberOfRows(),
                                  container->getMetaData()->getStride()};
  // A group counts its runs by position, whatever their numbers in the table.
  std::vector<vtkIdType> rows;
  for (std::size_t run = 0; run < named.groupOfRun.size(); ++run)
    if (named.groupOfRun[run] == group && static_cast<vtkIdType>(run) < layout.runs())
      rows.push_back(layout.firstRow(static_cast<vtkIdType>(run)));
  container->getAnnotationLink()->SetCurrentSelection(makeRowSelection(rows));
}

/// The columns over x that can be scaled.
std::vector<int> GroupedRuns::shownColumns() const
{
  const PlotMetaData& settings = *container->getMetaData();
  std::vector<int> columns = normaliser.scalable(settings.yColumns);
  const auto isX = [&x = settings.xColumns](int column)
  { return std::find(x.begin(), x.end(), column) != x.end(); };
  columns.erase(std::remove_if(columns.begin(), columns.end(), isX), columns.end());
  return columns;
}

void GroupedRuns::restoreNormalised(const std::vector<int>& columns)
{
  const QSignalBlocker silent(normaliser);
  normaliser.setNormalised(columns, true);
}

void GroupedRuns::normalise(bool on)
{
  if (!container)
    return;
  const std::vector<int> shown = shownColumns();
  std::vector<int> others;
  std::copy_if(shown.begin(), shown.end(), std::back_inserter(others),
               [&](int column) { return normaliser.isNormalised({column}) != on; });
  if (!others.empty())
    stack.push(normaliser.makeCommand(others, on));
}

bool GroupedRuns::showsNormalised() const
{
  return container && normaliser.isNormalised(shownColumns());
}

RunGroups GroupedRuns::colouring() const
{
  RunGroups groups = keptColouring();
  return groups.names.empty() && kept.look.groupColours ? named : groups;
}

RunGroups GroupedRuns::keptColouring() const
{
  return kept.look.keptColours && keptGroups ? keptGroups() : RunGroups();
}

void GroupedRuns::complete()
{
  const RunGroups colours = colouring();
  dressRuns(*container, named, colours, kept.look);
  colourCharts(*container, colours);
}

} // namespace Talmesh::app
