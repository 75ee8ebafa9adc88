#ifndef AxisNames_h
#define AxisNames_h

#include <functional>
#include <string>
#include <vector>

namespace Talmesh
{

/// The name of a vertical axis, to be written below its lower end.
struct AxisName
{
  std::string text; ///< UTF-8
  float x = 0;      ///< of the axis, pixels
};

/// How a name is written.
struct PlacedName
{
  std::string text;
  float x = 0; ///< of its middle
  int row = 0; ///< 0 is the one next to the axes
};

/// Places the names of axes, from left to right, so that all can be read: in two rows where
/// neighbours would overlap in one, within a page of this width, and with their middle left out
/// where there is not even that much room.
/// @param widthOf measures a text, in pixels
std::vector<PlacedName> placeNames(const std::vector<AxisName>& names, float pageWidth,
                                   const std::function<float(const std::string&)>& widthOf);

} // namespace Talmesh

#endif
