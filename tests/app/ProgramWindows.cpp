#include "ProgramWindows.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <thread>

namespace
{

constexpr auto patience = std::chrono::seconds(60);
constexpr auto betweenLooks = std::chrono::milliseconds(50);
constexpr auto betweenPresses = std::chrono::seconds(5);

/// Windows come and go while they are looked at.
int ignoreError(::Display*, XErrorEvent*)
{
  return 0;
}

std::string titleOf(::Display* display, Window window)
{
  XTextProperty text = {};
  const Atom name = XInternAtom(display, "_NET_WM_NAME", False);
  if (!XGetTextProperty(display, window, &text, name) || !text.value)
    return {};
  std::string title(reinterpret_cast<char*>(text.value), text.nitems);
  XFree(text.value);
  return title;
}

bool isVisible(::Display* display, Window window)
{
  XWindowAttributes attributes = {};
  return XGetWindowAttributes(display, window, &attributes) && attributes.map_state == IsViewable;
}

/// Window managers put windows into frames.
Window find(::Display* display, Window from, const std::string& title)
{
  if (titleOf(display, from) == title && isVisible(display, from))
    return from;
  Window root = 0;
  Window parent = 0;
  Window* children = nullptr;
  unsigned int count = 0;
  if (!XQueryTree(display, from, &root, &parent, &children, &count) || !children)
    return 0;
  const std::vector<Window> all(children, children + count);
  XFree(children);
  for (const Window child : all)
    if (const Window found = find(display, child, title))
      return found;
  return 0;
}

} // namespace

struct ProgramWindows::Display
{
  ::Display* x11;
};

ProgramWindows::ProgramWindows()
{
  if (::Display* opened = XOpenDisplay(nullptr))
    display = std::make_unique<Display>(Display{opened});
}

ProgramWindows::~ProgramWindows()
{
  if (display)
    XCloseDisplay(display->x11);
}

unsigned long ProgramWindows::waitFor(const std::string& title) const
{
  return waitFor(title, Clock::now() + patience);
}

unsigned long ProgramWindows::waitFor(const std::string& title, Clock::time_point end) const
{
  const auto before = XSetErrorHandler(ignoreError);
  Window found = 0;
  while (!found && Clock::now() < end)
  {
    found = find(display->x11, DefaultRootWindow(display->x11), title);
    if (!found)
      std::this_thread::sleep_for(betweenLooks);
  }
  XSetErrorHandler(before);
  return found;
}

unsigned long ProgramWindows::pressFor(unsigned long window, const std::vector<const char*>& keys,
                                       const std::string& title) const
{
  unsigned long found = 0;
  for (const auto end = Clock::now() + patience; !found && Clock::now() < end;)
  {
    for (const char* key : keys)
      press(window, key, true);
    found = waitFor(title, Clock::now() + betweenPresses);
  }
  return found;
}

void ProgramWindows::press(unsigned long window, const char* key, bool control) const
{
  const auto before = XSetErrorHandler(ignoreError);
  XSetInputFocus(display->x11, window, RevertToParent, CurrentTime);
  XKeyEvent event = {};
  event.display = display->x11;
  event.window = window;
  event.root = DefaultRootWindow(display->x11);
  event.same_screen = True;
  event.keycode = XKeysymToKeycode(display->x11, XStringToKeysym(key));
  event.state = control ? ControlMask : 0;
  for (const int type : {KeyPress, KeyRelease})
  {
    event.type = type;
    XSendEvent(display->x11, window, True, type == KeyPress ? KeyPressMask : KeyReleaseMask,
               reinterpret_cast<XEvent*>(&event));
  }
  XSync(display->x11, False);
  XSetErrorHandler(before);
}
