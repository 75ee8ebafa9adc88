#include "plot/DrawingSteps.h"

#include "plot/PlotState.h"
#include "plot/SettingsSignals.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace Talmesh::plot
{

void addStep(PlotState& state, DrawingMoment moment, const QObject* owner,
             std::function<bool()> run)
{
  state.steps.list.push_back(
      std::make_shared<DrawingStep>(DrawingStep{owner, moment, std::move(run)}));
}

void removeSteps(PlotState& state, const QObject* owner)
{
  auto& list = state.steps.list;
  const auto isDropped = [owner](const std::shared_ptr<DrawingStep>& step)
  {
    if (step->owner != owner)
      return false;
    step->owner.clear();
    return true;
  };
  list.erase(std::remove_if(list.begin(), list.end(), isDropped), list.end());
}

bool runSteps(PlotState& state, DrawingMoment moment)
{
  // Also those of owners that have died are dropped here.
  removeSteps(state, nullptr);
  const std::vector<std::shared_ptr<DrawingStep>> steps = state.steps.list;
  const QScopedValueRollback<bool> guard(state.steps.running, true);
  for (const std::shared_ptr<DrawingStep>& step : steps)
  {
    if (step->moment != moment || !step->owner)
      continue;
    const bool goesOn = step->run();
    // Some operations end with settings that speak.
    blockSettings(state);
    if (!goesOn)
      return false;
  }
  return true;
}

} // namespace Talmesh::plot
