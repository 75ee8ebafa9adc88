#include "app/document/RunGestures.h"

#include "plot/PlotContainer.h"

#include <utility>

namespace Talmesh::app
{

namespace
{

RunCombination combinationOf(SelectionGesture::Mode mode)
{
  switch (mode)
  {
  case SelectionGesture::Mode::Add:
    return RunCombination::Add;
  case SelectionGesture::Mode::Subtract:
    return RunCombination::Subtract;
  case SelectionGesture::Mode::Toggle:
    return RunCombination::Toggle;
  default:
    return RunCombination::Replace;
  }
}

} // namespace

RunGestures::RunGestures(Select selectThem)
    : select(std::move(selectThem))
{
}

RunGestures::~RunGestures()
{
  leave();
}

void RunGestures::follow(PlotContainer* container)
{
  leave();
  followed = container;
  if (!container)
    return;
  container->setSelectionTool(chosenTool);
  container->setGestureHandler([this](const SelectionGesture& gesture) { return take(gesture); });
  container->setHoverText(
      [this, container](const SelectionGesture& place)
      { return nearestRun(*container, TableRuns(*container), place, reach()); });
}

void RunGestures::setTool(SelectionTool wanted)
{
  chosenTool = wanted;
  if (followed)
    followed->setSelectionTool(wanted);
}

void RunGestures::leave()
{
  if (!followed)
    return;
  followed->setGestureHandler(nullptr);
  followed->setHoverText(nullptr);
}

double RunGestures::reach() const
{
  return pointingReach * (pixelRatio ? pixelRatio() : 1.0);
}

bool RunGestures::take(const SelectionGesture& gesture)
{
  const auto meant = meantByGesture(*followed, TableRuns(*followed), gesture, chosenRule, reach());
  if (!meant)
    return false;
  return meant->words.empty() || select(*meant, combinationOf(gesture.mode));
}

} // namespace Talmesh::app
