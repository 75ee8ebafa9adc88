#ifndef UpdateClock_h
#define UpdateClock_h

#include <vtkAnnotationLink.h>
#include <vtkWeakPointer.h>

#include <QElapsedTimer>

#include <optional>

namespace Talmesh::app
{

/// Measures how long the window takes to show a change: from the moment when a selection changes,
/// or a change is announced by `begin`, to `end`.
class UpdateClock
{
public:
  UpdateClock() = default;
  ~UpdateClock();
  UpdateClock(const UpdateClock&) = delete;
  UpdateClock& operator=(const UpdateClock&) = delete;

  /// Turns to the selections of another link, not owned. Null turns to none.
  void follow(vtkAnnotationLink* link);
  /// Starts the clock, unless it runs.
  void begin();
  /// Stops the clock.
  /// @return milliseconds, or nothing when the clock did not run
  std::optional<qint64> end();

private:
  void stopObserving();

  vtkWeakPointer<vtkAnnotationLink> link;
  unsigned long observerTag = 0;
  QElapsedTimer timer;
};

} // namespace Talmesh::app

#endif
