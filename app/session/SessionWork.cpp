#include "app/session/SessionWork.h"

#include "app/session/Session.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"

#include <algorithm>
#include <iterator>

namespace Talmesh::app
{

namespace
{

std::vector<bool> markedRows(const PlotContainer& container)
{
  const vtkSmartPointer<vtkIntArray> flags = plot::selectionFlags(stateOf(container));
  if (!flags)
    return {};
  const int* first = flags->GetPointer(0);
  const int* last = first + flags->GetNumberOfValues();
  if (std::find(first, last, 1) == last)
    return {};
  std::vector<bool> rows;
  rows.reserve(static_cast<std::size_t>(last - first));
  std::transform(first, last, std::back_inserter(rows), [](int flag) { return flag == 1; });
  return rows;
}

} // namespace

SessionWork workOf(const SessionSource& source)
{
  SessionSettings settings = settingsOf(source);
  SessionWork work;
  work.selected = markedRows(source.container);
  work.groupOfRun.swap(settings.groups.groupOfRun);
  work.normalised.swap(settings.normalised);
  work.selections.swap(settings.kept);
  settings.words.clear();
  settings.asked.clear();
  settings.steps = {};
  // What the mouse draws next changes nothing that is there.
  settings.views.tool.clear();
  settings.views.rule.clear();
  settings.origin = {};
  settings.plot->storedCoordinateWindow = CoordinateWindow();
  settings.windowScales = {};
  work.view = settingsText(settings);
  return work;
}

void SessionRecord::broughtBack(const SessionOrigin& origin)
{
  kept.reset();
  file = origin;
}

void SessionRecord::saved(const SessionWork& work, const SessionOrigin& origin)
{
  kept = work;
  file = origin;
}

void SessionRecord::selectionSaved(const SessionWork& work)
{
  if (kept && file.path.isEmpty())
    kept->selected = work.selected;
}

UnsavedParts SessionRecord::unsaved(const SessionWork& work) const
{
  UnsavedParts parts;
  if (!kept)
  {
    parts.selection = !work.selected.empty();
    parts.groups = !work.groupOfRun.empty();
    parts.normalised = !work.normalised.empty();
    parts.selections = !work.selections.empty();
    parts.view = true;
    return parts;
  }
  parts.selection = work.selected != kept->selected;
  parts.groups = work.groupOfRun != kept->groupOfRun;
  parts.normalised = work.normalised != kept->normalised;
  parts.selections = work.selections != kept->selections;
  parts.view = !file.path.isEmpty() && work.view != kept->view;
  return parts;
}

} // namespace Talmesh::app
