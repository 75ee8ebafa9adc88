#ifndef ProgramWindows_h
#define ProgramWindows_h

#include <chrono>
#include <memory>
#include <string>
#include <vector>

/// The windows that other programs show on the display, and their keys.
class ProgramWindows
{
public:
  ProgramWindows();
  ~ProgramWindows();
  ProgramWindows(const ProgramWindows&) = delete;
  ProgramWindows& operator=(const ProgramWindows&) = delete;

  /// False on a display that is none of X11.
  bool canBeSeen() const { return display != nullptr; }
  /// Waits for a visible window of this title.
  /// @return 0 when none comes
  unsigned long waitFor(const std::string& title) const;
  /// Presses and releases a key of an X11 name, as "a" or "Return", in a window.
  void press(unsigned long window, const char* key, bool control = false) const;
  /// Presses keys with control, all of them again until a visible window of this title has come: a
  /// window that has just opened may not have the keyboard yet.
  /// @return 0 when none comes
  unsigned long pressFor(unsigned long window, const std::vector<const char*>& keys,
                         const std::string& title) const;

private:
  using Clock = std::chrono::steady_clock;
  struct Display;

  unsigned long waitFor(const std::string& title, Clock::time_point end) const;

  std::unique_ptr<Display> display;
};

#endif
