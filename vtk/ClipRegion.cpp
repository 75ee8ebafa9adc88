#include "vtk/ClipRegion.h"

#include <vtkMatrix3x3.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Talmesh
{
namespace
{
constexpr int edges = 4;
constexpr double tolerance = 0.01;

template <std::size_t Size>
std::array<double, Size> mix(const std::array<double, Size>& a, const std::array<double, Size>& b,
                             double part)
{
  std::array<double, Size> mixed;
  for (std::size_t i = 0; i < Size; ++i)
    mixed[i] = (1.0 - part) * a[i] + part * b[i];
  return mixed;
}
} // namespace

ClipRegion::ClipRegion(const ClipRectangle& exact, vtkMatrix3x3* matrix)
    : rectangle{exact.left - tolerance, exact.bottom - tolerance, exact.right + tolerance,
                exact.top + tolerance}
{
  std::copy_n(matrix->GetData(), toPixels.size(), toPixels.begin());
}

ClipRegion::Vertex ClipRegion::vertex(const float* points, const unsigned char* colors,
                                      int components, int index) const
{
  Vertex made{};
  const double x = points[2 * index];
  const double y = points[2 * index + 1];
  made.point = {x, y};
  for (std::size_t row = 0; row < 2; ++row)
    made.pixel[row] = toPixels[3 * row] * x + toPixels[3 * row + 1] * y + toPixels[3 * row + 2];
  if (colors)
    std::copy_n(colors + static_cast<std::ptrdiff_t>(index) * components,
                std::min(components, static_cast<int>(made.color.size())), made.color.begin());
  return made;
}

ClipRegion::Vertex ClipRegion::between(const Vertex& a, const Vertex& b, double part)
{
  return {mix(a.pixel, b.pixel, part), mix(a.point, b.point, part), mix(a.color, b.color, part)};
}

void ClipRegion::add(ClippedPoints& to, const Vertex& vertex, int components)
{
  for (const double coordinate : vertex.point)
    to.points.push_back(static_cast<float>(coordinate));
  for (int i = 0; i < components; ++i)
    to.colors.push_back(
        static_cast<unsigned char>(std::lround(vertex.color[static_cast<std::size_t>(i)])));
}

double ClipRegion::inside(const Vertex& vertex, int edge) const
{
  switch (edge)
  {
  case 0:
    return vertex.pixel[0] - rectangle.left;
  case 1:
    return rectangle.right - vertex.pixel[0];
  case 2:
    return vertex.pixel[1] - rectangle.bottom;
  default:
    return rectangle.top - vertex.pixel[1];
  }
}

bool ClipRegion::holds(const Vertex& vertex, double reach) const
{
  for (int edge = 0; edge < edges; ++edge)
    if (!(inside(vertex, edge) >= -reach))
      return false;
  return true;
}

bool ClipRegion::cutSegment(Vertex& from, Vertex& to) const
{
  double first = 0.0;
  double last = 1.0;
  for (int edge = 0; edge < edges; ++edge)
  {
    const double a = inside(from, edge);
    const double b = inside(to, edge);
    if (!std::isfinite(a) || !std::isfinite(b) || (a < 0.0 && b < 0.0))
      return false;
    if (a < 0.0)
      first = std::max(first, a / (a - b));
    else if (b < 0.0)
      last = std::min(last, a / (a - b));
  }
  if (first > last)
    return false;
  const Vertex whole = from;
  if (first > 0.0)
    from = between(whole, to, first);
  if (last < 1.0)
    to = between(whole, to, last);
  return true;
}

std::vector<ClipRegion::Vertex> ClipRegion::cutPolygon(std::vector<Vertex> corners) const
{
  for (int edge = 0; edge < edges; ++edge)
  {
    std::vector<Vertex> left;
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
      const Vertex& corner = corners[i];
      const Vertex& next = corners[(i + 1) % corners.size()];
      const double a = inside(corner, edge);
      const double b = inside(next, edge);
      if (!std::isfinite(a) || !std::isfinite(b))
        return {};
      if (a >= 0.0)
        left.push_back(corner);
      if ((a < 0.0) != (b < 0.0))
        left.push_back(between(corner, next, a / (a - b)));
    }
    corners.swap(left);
  }
  return corners;
}

std::vector<ClippedPoints> ClipRegion::polyLine(const float* points, int n,
                                                const unsigned char* colors, int components) const
{
  const int kept = colors ? components : 0;
  std::vector<ClippedPoints> pieces;
  bool goesOn = false;
  for (int i = 0; i + 1 < n; ++i)
  {
    Vertex from = vertex(points, colors, components, i);
    Vertex to = vertex(points, colors, components, i + 1);
    const bool endsInside = holds(to);
    if (!cutSegment(from, to))
    {
      goesOn = false;
      continue;
    }
    if (!goesOn)
    {
      pieces.emplace_back();
      add(pieces.back(), from, kept);
    }
    add(pieces.back(), to, kept);
    goesOn = endsInside;
  }
  return pieces;
}

ClippedPoints ClipRegion::lines(const float* points, int n, const unsigned char* colors,
                                int components) const
{
  const int kept = colors ? components : 0;
  ClippedPoints left;
  for (int i = 0; i + 1 < n; i += 2)
  {
    Vertex from = vertex(points, colors, components, i);
    Vertex to = vertex(points, colors, components, i + 1);
    if (!cutSegment(from, to))
      continue;
    add(left, from, kept);
    add(left, to, kept);
  }
  return left;
}

ClippedPoints ClipRegion::points(const float* points, int n, const unsigned char* colors,
                                 int components, double reach) const
{
  ClippedPoints left;
  for (int i = 0; i < n; ++i)
  {
    const Vertex point = vertex(points, colors, components, i);
    if (holds(point, reach))
      add(left, point, colors ? components : 0);
  }
  return left;
}

std::vector<ClippedPoints> ClipRegion::polygon(const float* points, int n,
                                               const unsigned char* colors, int components) const
{
  std::vector<Vertex> corners;
  for (int i = 0; i < n; ++i)
    corners.push_back(vertex(points, colors, components, i));
  std::vector<std::vector<Vertex>> shapes;
  if (std::all_of(corners.begin(), corners.end(),
                  [this](const Vertex& corner) { return holds(corner); }))
    shapes.push_back(corners);
  else
    for (std::size_t i = 1; i + 1 < corners.size(); ++i)
      shapes.push_back(cutPolygon({corners[0], corners[i], corners[i + 1]}));

  std::vector<ClippedPoints> left;
  for (const std::vector<Vertex>& shape : shapes)
  {
    if (shape.size() < 3)
      continue;
    left.emplace_back();
    for (const Vertex& corner : shape)
      add(left.back(), corner, colors ? components : 0);
  }
  return left;
}
} // namespace Talmesh
