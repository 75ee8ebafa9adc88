#include "app/window/UpdateClock.h"

#include <vtkCommand.h>

namespace Talmesh::app
{

namespace
{

/// Before the observers that do the work.
constexpr float first = 1.0F;

} // namespace

UpdateClock::~UpdateClock()
{
  stopObserving();
}

void UpdateClock::follow(vtkAnnotationLink* followed)
{
  stopObserving();
  link = followed;
  if (link)
    observerTag =
        link->AddObserver(vtkCommand::AnnotationChangedEvent, this, &UpdateClock::begin, first);
  timer.invalidate();
}

void UpdateClock::stopObserving()
{
  if (link)
    link->RemoveObserver(observerTag);
  link = nullptr;
}

void UpdateClock::begin()
{
  if (!timer.isValid())
    timer.start();
}

std::optional<qint64> UpdateClock::end()
{
  if (!timer.isValid())
    return {};
  const qint64 elapsed = timer.elapsed();
  timer.invalidate();
  return elapsed;
}

} // namespace Talmesh::app
