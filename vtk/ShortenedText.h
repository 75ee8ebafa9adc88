#ifndef ShortenedText_h
#define ShortenedText_h

#include <string>

class vtkContext2D;

/// Text of one line, in the font that the painter has.
namespace Talmesh
{

/// Its width, in units of the scene.
float widthOf(vtkContext2D* painter, const std::string& text);

/// The text, or as much of its beginning and end as the width has room for, with three dots
/// between. Never cuts a character of several bytes.
std::string shortened(vtkContext2D* painter, const std::string& text, float width);

} // namespace Talmesh

#endif
