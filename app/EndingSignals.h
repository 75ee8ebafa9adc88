#ifndef EndingSignals_h
#define EndingSignals_h

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace Talmesh::app
{

/// Makes TERM, INT and HUP end this program, or be ignored, as when it was started. Libraries that
/// VTK is linked with may have taken them before main: UCX makes of HUP a wish for more messages.
void takeSignalsBack();

/// Lets a program with an event loop do one last thing when TERM, INT or HUP shall end it; then the
/// signal ends it as it would have. A signal that comes a second time ends the program at once, and
/// one that was ignored when the program started stays so. One object per program.
class EndingSignals : public QObject
{
  Q_OBJECT

public:
  /// @param last called in the event loop
  explicit EndingSignals(std::function<void()> last, QObject* parent = nullptr);
  ~EndingSignals() override;

private:
  void end();

  std::function<void()> last;
  int reader = -1;
  QSocketNotifier* notifier = nullptr;
};

} // namespace Talmesh::app

#endif
