#ifndef ScaledMarker_h
#define ScaledMarker_h

#include <vector>

namespace Talmesh::app
{

/// A marker as triangles that do not overlap: x and y in turn around its centre.
/// @param shape one of VTK's markers; a plus for any other number
/// @param highlight with thick strokes, for crosses and pluses
/// @param size its width and height
/// @param stroke the width of a thin stroke
std::vector<double> markerTriangles(int shape, bool highlight, double size, double stroke);

} // namespace Talmesh::app

#endif
