#ifndef GestureHandling_h
#define GestureHandling_h

#include "vtk/SelectionGesture.h"

#include <functional>
#include <optional>
#include <string>

namespace Talmesh
{

/// Pixels of the scene. A hand that means to click does not move farther.
constexpr float clickExtent = 3.0F;

/// What a program does with gestures, shared by all charts of a page.
struct GestureHandling
{
  /// Asked before rows are selected, which happens only if it answers false; null answers false.
  std::function<bool(const SelectionGesture&)> select;
  /// What to say beside the mouse at a place, given as a click there: empty for nothing, none for
  /// what charts say by themselves. Null for none.
  std::function<std::optional<std::string>(const SelectionGesture&)> describe;
  SelectionTool tool = SelectionTool::Rectangle;
};

} // namespace Talmesh

#endif
