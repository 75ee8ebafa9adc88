#ifndef ProgramWindows_h
#define ProgramWindows_h

#include <memory>
#include <string>

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

private:
  struct Display;
  std::unique_ptr<Display> display;
};

#endif
