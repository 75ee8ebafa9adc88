#include "plot/PlotSeams.h"

#include "plot/DrawingSteps.h"
#include "plot/DrawnRows.h"
#include "plot/GroupCurves.h"
#include "plot/PlotState.h"
#include "plot/Redraw.h"

#include <utility>

namespace
{

/// A step that does not refuse the drawing.
std::function<bool()> goingOn(std::function<void()> step)
{
  return [step = std::move(step)]
  {
    step();
    return true;
  };
}

} // namespace

PlotSeams::PlotSeams(std::unique_ptr<Talmesh::plot::PlotState> state)
    : d(std::move(state))
{
}

PlotSeams::~PlotSeams() = default;

void PlotSeams::setSummary(const SummaryTable& summary)
{
  d->summary = summary;
}

const SummaryTable& PlotSeams::getSummary() const
{
  return d->summary;
}

bool PlotSeams::showsSummary() const
{
  return Talmesh::plot::drawsSummary(*d);
}

void PlotSeams::setGestureHandler(std::function<bool(const Talmesh::SelectionGesture&)> take)
{
  d->gestures->select = std::move(take);
}

void PlotSeams::setHoverText(
    std::function<std::optional<std::string>(const Talmesh::SelectionGesture&)> describe)
{
  d->gestures->describe = std::move(describe);
}

void PlotSeams::setSelectionTool(Talmesh::SelectionTool tool)
{
  d->gestures->tool = tool;
}

Talmesh::SelectionTool PlotSeams::getSelectionTool() const
{
  return d->gestures->tool;
}

void PlotSeams::setParameterTests(std::optional<std::vector<ParameterTest>> tests)
{
  d->parameterTests = std::move(tests);
}

void PlotSeams::setDistributionGroups(std::optional<std::vector<DistributionGroup>> groups)
{
  Talmesh::plot::setDistributionGroups(*d, std::move(groups));
}

void PlotSeams::addCompletion(const QObject* owner, std::function<void()> complete)
{
  Talmesh::plot::addStep(*d, Talmesh::plot::DrawingMoment::after, owner,
                         goingOn(std::move(complete)));
}

void PlotSeams::addPreparation(const QObject* owner, std::function<void()> prepare)
{
  Talmesh::plot::addStep(*d, Talmesh::plot::DrawingMoment::before, owner,
                         goingOn(std::move(prepare)));
}

void PlotSeams::addCondition(const QObject* owner, std::function<bool()> allows)
{
  Talmesh::plot::addStep(*d, Talmesh::plot::DrawingMoment::question, owner, std::move(allows));
}

void PlotSeams::removeDrawingSteps(const QObject* owner)
{
  Talmesh::plot::removeSteps(*d, owner);
}

void PlotSeams::withoutDrawing(const std::function<void()>& change)
{
  Talmesh::plot::withoutDrawing(*d, change);
}
