#include "app/ScaledMarker.h"

#include <vtkMath.h>
#include <vtkRenderingCoreEnums.h>

#include <algorithm>
#include <cmath>

namespace Talmesh::app
{

namespace
{

using Coordinates = std::vector<double>;

void addRectangle(Coordinates& triangles, double left, double bottom, double right, double top)
{
  triangles.insert(triangles.end(), {left, bottom, right, bottom, right, top});
  triangles.insert(triangles.end(), {left, bottom, right, top, left, top});
}

Coordinates square(double size)
{
  Coordinates triangles;
  addRectangle(triangles, -0.5 * size, -0.5 * size, 0.5 * size, 0.5 * size);
  return triangles;
}

Coordinates plus(double size, double stroke)
{
  const double half = 0.5 * size;
  const double thick = std::min(0.5 * stroke, half);
  Coordinates triangles;
  addRectangle(triangles, -half, -thick, half, thick);
  addRectangle(triangles, -thick, thick, thick, half);
  addRectangle(triangles, -thick, -half, thick, -thick);
  return triangles;
}

/// Its strokes reach from corner to corner. The screen's are steps of pixels, which are thinner
/// across than along the axes.
Coordinates cross(double size, double stroke)
{
  const double diagonal = std::sqrt(2.0);
  Coordinates triangles = plus(size * diagonal, stroke / diagonal);
  for (std::size_t i = 0; i < triangles.size(); i += 2)
  {
    const double x = triangles[i];
    const double y = triangles[i + 1];
    triangles[i] = (x - y) / diagonal;
    triangles[i + 1] = (x + y) / diagonal;
  }
  return triangles;
}

/// A regular polygon with a corner at the right.
Coordinates polygon(double radius, int corners)
{
  Coordinates triangles;
  const auto add = [&](int corner)
  {
    const double angle = 2.0 * vtkMath::Pi() * corner / corners;
    triangles.insert(triangles.end(), {radius * std::cos(angle), radius * std::sin(angle)});
  };
  for (int corner = 1; corner + 1 < corners; ++corner)
  {
    add(0);
    add(corner);
    add(corner + 1);
  }
  return triangles;
}

Coordinates disc(double size)
{
  // Sides of about two pixels look round.
  constexpr double side = 2.0;
  const double sides = vtkMath::Pi() * size / side;
  return polygon(0.5 * size, static_cast<int>(std::clamp(sides, 12.0, 90.0)));
}

} // namespace

std::vector<double> markerTriangles(int shape, bool highlight, double size, double stroke)
{
  const double thickness = (highlight ? 3.0 : 1.0) * stroke;
  switch (shape)
  {
  case VTK_MARKER_CROSS:
    return cross(size, thickness);
  case VTK_MARKER_SQUARE:
    return square(size);
  case VTK_MARKER_CIRCLE:
    return disc(size);
  case VTK_MARKER_DIAMOND:
    return polygon(0.5 * size, 4);
  default:
    return plus(size, thickness);
  }
}

} // namespace Talmesh::app
